#pragma once

#include <QComboBox>

#include "host/combo_box.h"
#include "platform/qt/qt_child_peer.h"

namespace qrn::qt {

/// A drop list that can be locked: then it looks like a text to read, and neither opens nor changes.
class LockableComboBox final : public QComboBox {
 public:
  using QComboBox::QComboBox;
  void setLocked(bool locked);
  void showPopup() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  bool locked_ = false;
};

class QtComboBoxPeer final : public QtEditorPeer {
 public:
  QtComboBoxPeer(QtCanvas& canvas, host::ComboBox& box);

 private:
  void applyContent() override;
  void applyEnabled() override;
  void applyEntries() override;

  host::ComboBox& box_;
  LockableComboBox& widget_;
};

}  // namespace qrn::qt
