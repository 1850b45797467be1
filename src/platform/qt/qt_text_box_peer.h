#pragma once

#include "host/text_box.h"
#include "platform/qt/qt_child_peer.h"
#include "platform/qt/qt_line_edit.h"

namespace qrn::qt {

class QtTextBoxPeer final : public QtEditorPeer {
 public:
  QtTextBoxPeer(QtCanvas& canvas, host::TextBox& box);

 private:
  void applyContent() override;
  void applyLook() override;
  void applyEnabled() override;
  void applyPasswordChar();
  void makeRoom(const QString& text);
  void applySelection();
  void reportText();
  void reportSelection();

  host::TextBox& box_;
  QtLineEdit& line_;
  class HidingStyle* hiding_ = nullptr;  // the line edit's own, once it has hidden its text
};

/// What a text box shows in the place of every character; null for these themselves.
QChar passwordCharacter(const host::TextBox& box);

/// Where a text box's alignment puts its text.
Qt::Alignment horizontalAlignment(std::int32_t alignment);

}  // namespace qrn::qt
