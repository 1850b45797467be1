#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "contract/contract.h"
#include "contract/contract_tests.inc"
#include "platform/qt/qt_platform.h"

namespace qrn::contract {
namespace {

struct NativeKey {
  std::int16_t code;
  Qt::Key key;
};

constexpr NativeKey kKeys[] = {
    {host::key::Back, Qt::Key_Backspace},
    {host::key::Tab, Qt::Key_Tab},
    {host::key::Enter, Qt::Key_Return},
    {host::key::Escape, Qt::Key_Escape},
    {host::key::Space, Qt::Key_Space},
    {host::key::PageUp, Qt::Key_PageUp},
    {host::key::PageDown, Qt::Key_PageDown},
    {host::key::End, Qt::Key_End},
    {host::key::Home, Qt::Key_Home},
    {host::key::Left, Qt::Key_Left},
    {host::key::Up, Qt::Key_Up},
    {host::key::Right, Qt::Key_Right},
    {host::key::Down, Qt::Key_Down},
    {host::key::Insert, Qt::Key_Insert},
    {host::key::Delete, Qt::Key_Delete},
    {host::key::F1, Qt::Key_F1},
    {host::key::F4, Qt::Key_F4},
    {host::key::F10, Qt::Key_F10},
};

Qt::Key nativeKey(std::int16_t code) {
  for (const NativeKey& known : kKeys) {
    if (known.code == code) return known.key;
  }
  return static_cast<Qt::Key>(code);  // letters and digits have the same numbers
}

Qt::KeyboardModifiers modifiersOf(std::int16_t shift) {
  Qt::KeyboardModifiers result;
  result.setFlag(Qt::ShiftModifier, shift & host::shift::Shift);
  result.setFlag(Qt::ControlModifier, shift & host::shift::Control);
  result.setFlag(Qt::AltModifier, shift & host::shift::Alt);
  return result;
}

class QtContract final : public ContractPlatform {
 public:
  ~QtContract() override { close(); }

  host::Platform& platform() override { return machine_; }

  void show(host::UserControl& surface) override {
    canvas_ = machine_.widget(surface);
    canvas_->resize(static_cast<int>(surface.Width()), static_cast<int>(surface.Height()));
    canvas_->show();
    canvas_->activateWindow();
    canvas_->setFocus();
    runUntil([this] { return canvas_->isActiveWindow() && canvas_->hasFocus(); });
    surface.input().setFocus(nullptr);
    turn();
  }

  void close() override { delete canvas_; }
  void paintPending() override { QCoreApplication::sendPostedEvents(canvas_, QEvent::UpdateRequest); }

  void click(host::Control& control) override {
    const Rect seen = control.visibleOnSurface();
    if (!control.shown() || seen.empty()) return;
    const QPoint at(static_cast<int>(seen.left + seen.width / 2),
                    static_cast<int>(seen.top + seen.height / 2));
    QWidget* target = widgetAt(at);
    QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, target->mapFrom(canvas_, at));
  }

  void type(std::string_view text) override {
    const QString typed = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    for (const QChar c : typed) {
      if (c.unicode() < 0x80)
        QTest::keyClick(keyboard(), c.toLatin1());
      else
        QTest::sendKeyEvent(QTest::Click, keyboard(), Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
  }

  void press(std::int16_t key, std::int16_t shift) override {
    QTest::keyClick(keyboard(), nativeKey(key), modifiersOf(shift));
  }

  void choose(host::ComboBox&, std::int32_t entry) override {
    auto* box = canvas_->findChild<QComboBox*>();
    box->showPopup();
    box->view()->setCurrentIndex(box->model()->index(entry, 0));
    QTest::keyClick(box->view(), Qt::Key_Return);
    turn();
  }

  void tick(host::ListBox&, std::int16_t entry) override {
    auto* list = canvas_->findChild<QListWidget*>();
    const QRect row = list->visualItemRect(list->item(entry));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, {row.left() + 8, row.center().y()});
  }

  void scroll(host::VScrollBar&, std::int32_t value) override {
    canvas_->findChild<QScrollBar*>()->setValue(value);
  }

  void turnWheel(Point at, double notches) override {
    const QPoint place(static_cast<int>(at.x), static_cast<int>(at.y));
    QWidget* target = widgetAt(place);
    QWheelEvent event(target->mapFrom(canvas_, place), canvas_->mapToGlobal(place), {},
                      {0, static_cast<int>(notches * 120)}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(target, &event);
  }

  void willChoose(std::optional<int> entry) override {
    chooser_.callOnTimeout(&chooser_, [this, entry] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (!menu) return;
      chooser_.stop();
      chooser_.disconnect();
      for (QAction* action : menu->actions()) {
        if (!entry || action->data().toInt() != *entry) continue;
        menu->setActiveAction(action);
        QTest::keyClick(menu, Qt::Key_Return);
        return;
      }
      menu->close();
    });
    chooser_.start(0);
  }

  bool runUntil(const std::function<bool()>& condition) override {
    for (int i = 0; i < 20 && !condition(); ++i) turn();
    return condition();
  }

  bool letTimePass(std::chrono::milliseconds upTo, const std::function<bool()>& condition) override {
    // A loaded machine is late, so more than the time that is waited for may really pass.
    QElapsedTimer passed;
    for (passed.start(); passed.elapsed() < upTo.count() && !condition();) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
      QTest::qWait(1);
    }
    return condition();
  }

 private:
  static void turn() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  QWidget* widgetAt(QPoint at) const {
    QWidget* child = canvas_->childAt(at);
    return child ? child : canvas_.data();
  }
  QWidget* keyboard() const {
    QWidget* focused = QApplication::focusWidget();
    return focused ? focused : canvas_.data();
  }

  qt::QtPlatform machine_;
  QPointer<QWidget> canvas_;
  QTimer chooser_;
};

std::unique_ptr<ContractPlatform> makeQt() { return std::make_unique<QtContract>(); }

INSTANTIATE_TEST_SUITE_P(Qt, Contract, testing::Values(&makeQt));

}  // namespace
}  // namespace qrn::contract
