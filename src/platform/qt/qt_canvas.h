#pragma once

#include <QWidget>
#include <cstdint>
#include <memory>

#include "platform/qt/qt_press_forwarder.h"

class QAccessibleInterface;
class QHelpEvent;

namespace qrn::host {
enum class Aspect : std::uint8_t;
struct AccessibleNode;
class Control;
class Input;
class UserControl;
}  // namespace qrn::host

namespace qrn::qt {

class QtAccessibleParts;
class QtPlatform;

/// The one widget of a user control: paints the whole tree of controls, reports what the user does to it, and
/// holds the widgets that are real, the scroll bar's and that of the editor with the focus.
class QtCanvas final : public QWidget {
 public:
  QtCanvas(QtPlatform& platform, host::UserControl& control);
  ~QtCanvas() override;

  QtPlatform& platform() const { return platform_; }
  /// Null once the control has gone.
  host::UserControl* control() const { return control_; }
  /// The control has gone: from now on the canvas is an empty widget.
  void release() { control_ = nullptr; }
  /// The control's size is another one now.
  void followSize();

  /// Sees the keys and the focus of an editor's widget before that does.
  void watch(QWidget& editor) { editor.installEventFilter(this); }

  // ---- the focus (qt_canvas_focus.cpp) ----

  /// Keeps the focus on this canvas, telling nobody.
  void keepFocus();
  /// The same, if the widget or one inside it has the focus.
  void takeFocusFrom(const QWidget& widget);
  /// The widget gets it back if it is kept here.
  void giveFocusTo(QWidget& widget);
  bool keepsFocusQuietly() const { return quiet_; }

  // ---- for assistive tools (qt_canvas_accessible.cpp) ----

  /// The interface of anything on the canvas, made now if nobody has asked for it before; null for none.
  QAccessibleInterface* accessible(const host::AccessibleNode& node);
  /// The control that has this widget for its editor; null for none.
  host::Control* controlOf(const QWidget& widget) const;
  /// How many interfaces there are beside those of widgets.
  std::size_t accessibleParts() const;
  void tellToolsOfChange(host::Control& control, host::Aspect aspect);
  /// That the focus is on something painted: of the focus on a widget Qt tells itself.
  void tellToolsOfFocus();

  QSize sizeHint() const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  host::Input& input() const;
  bool focusIsInside() const;
  void focusLeft(Qt::FocusReason reason);
  void leave(bool forward);
  void showCursorOver(const QPointF& at);
  void windowCameBack();
  void pressed(const QMouseEvent& event, bool again);
  bool showToolTip(QHelpEvent& event);
  bool offersMenu(const QWidget& editor, const QContextMenuEvent& event);

  bool wants(const QKeyEvent& event);
  bool ownKey(QKeyEvent& event);
  /// Each answers whether the key is used up; `editor` is the widget that has it otherwise, if any.
  bool keyPressed(QKeyEvent& event, QWidget* editor);
  bool keyReleased(QKeyEvent& event);
  void type(QWidget& editor, const QKeyEvent& event, std::int16_t character);

  QtPlatform& platform_;
  host::UserControl* control_;
  QtPressForwarder forwarder_;
  std::unique_ptr<QtAccessibleParts> accessibleParts_;  // from the moment on when a tool asks for any
  bool quiet_ = false;                                  // the focus moves without anybody being told
  bool typing_ = false;                                 // a replaced character is on its way to the editor
  bool resizing_ = false;                               // the widget's size is on its way to the control
};

}  // namespace qrn::qt
