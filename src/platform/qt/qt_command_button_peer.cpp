#include "platform/qt/qt_command_button_peer.h"

#include <QKeyEvent>

#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_text.h"

namespace qrn::qt {
namespace {

// Enter clicks wherever the button is, not in dialogs only, and the arrows leave the focus where it is.
class KeyedPushButton final : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
        if (!event->isAutoRepeat()) click();
        break;
      case Qt::Key_Left:
      case Qt::Key_Right:
      case Qt::Key_Up:
      case Qt::Key_Down: event->ignore(); break;
      default: QPushButton::keyPressEvent(event);
    }
  }
};

}  // namespace

QtCommandButtonPeer::QtCommandButtonPeer(QtCanvas& canvas, host::CommandButton& button)
    : QtEditorPeer(canvas, button, new KeyedPushButton(&canvas)),
      button_(button),
      widget_(static_cast<QPushButton&>(*widget())) {
  // Painted without the focus it must not look like a dialog's default button with it.
  widget_.setAutoDefault(false);
  bringUpToDate();
  QObject::connect(&widget_, &QPushButton::clicked, context(),
                   [this] { report([this] { button_.userClicked(); }); });
}

void QtCommandButtonPeer::applyContent() {
  widget_.setText(toQString(button_.Caption()));
  // The letter of the caption works with and without a widget, so the widget's own shortcut would be a
  // second.
  widget_.setShortcut(QKeySequence());
}

}  // namespace qrn::qt
