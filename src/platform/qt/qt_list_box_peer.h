#pragma once

#include <QListWidget>
#include <functional>

#include "host/list_box.h"
#include "platform/qt/qt_child_peer.h"

namespace qrn::qt {

/// A list whose entries are ticked by a click anywhere on them, or by Space. A release ticks before it is
/// reported.
class CheckListWidget final : public QListWidget {
 public:
  explicit CheckListWidget(QWidget* parent);
  std::function<void(int)> onTicked;
  std::function<void(const QMouseEvent&)> onMouse;
  /// Where a letter leads to from the current entry.
  std::function<int(char32_t)> entryTypedTo;

  void keyboardSearch(const QString& search) override;
  /// What has been pressed is not there any more, or can't be used.
  void forgetPress() { pressedRow_ = -1; }

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void tick(int row);
  void tellMouse(const QMouseEvent& event);

  int pressedRow_ = -1;
};

class QtListBoxPeer final : public QtEditorPeer {
 public:
  QtListBoxPeer(QtCanvas& canvas, host::ListBox& box);
  ~QtListBoxPeer() override;
  QWidget* mouseReceiver() const override;

 private:
  void applyContent() override;
  void applyEntries() override;
  void reportTick(int row);
  void reportMouse(const QMouseEvent& event);

  host::ListBox& box_;
  CheckListWidget& list_;
};

}  // namespace qrn::qt
