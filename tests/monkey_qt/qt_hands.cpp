#include "qt_hands.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_site.h"
#include "play/meddling.h"

namespace qrn::monkey {
namespace {

struct NativeKey {
  std::int16_t code;
  Qt::Key key;
};

constexpr NativeKey kKeys[] = {
    {host::key::Back, Qt::Key_Backspace}, {host::key::Tab, Qt::Key_Tab},
    {host::key::Enter, Qt::Key_Return},   {host::key::Escape, Qt::Key_Escape},
    {host::key::Space, Qt::Key_Space},    {host::key::PageDown, Qt::Key_PageDown},
    {host::key::End, Qt::Key_End},        {host::key::Home, Qt::Key_Home},
    {host::key::Left, Qt::Key_Left},      {host::key::Up, Qt::Key_Up},
    {host::key::Right, Qt::Key_Right},    {host::key::Down, Qt::Key_Down},
    {host::key::Delete, Qt::Key_Delete},  {host::key::F1, Qt::Key_F1},
    {host::key::F4, Qt::Key_F4},          {host::key::F10, Qt::Key_F10},
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

Qt::MouseButton nativeButton(host::MouseButton button) {
  switch (button) {
    case host::MouseButton::Right: return Qt::RightButton;
    case host::MouseButton::Middle: return Qt::MiddleButton;
    default: return Qt::LeftButton;
  }
}

// What the platform's guard reports, as Qt can't carry an error through its event loop.
QString lastWarning;

void keepWarning(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (text.startsWith("Unhandled error")) lastWarning = text;
}

struct ListeningSite final : qt::QtSite {
  ListeningSite(qt::QtPlatform& platform, const Hands& hands) : QtSite(platform), hands_(hands) {}
  void propertyChanged(host::UserControl&, std::string_view key) override {
    if (hands_.siteHeard) hands_.siteHeard(key);
  }

 private:
  const Hands& hands_;
};

class QtHands final : public Hands {
 public:
  QtHands() {
    before_ = qInstallMessageHandler(keepWarning);
    // Menus are modal: whoever opens one waits until somebody has chosen.
    chooser_.callOnTimeout([this] { choose(); });
    chooser_.start(0);
  }
  ~QtHands() override {
    close();
    settle();
    qInstallMessageHandler(before_);
  }

  host::Platform& platform() override { return machine_; }
  host::Site& site() override { return site_; }

  void show(host::UserControl& surface) override {
    surface_ = WeakRef<host::Control>(&surface);
    canvas_ = machine_.widget(surface);
    canvas_->resize(static_cast<int>(surface.Width()), static_cast<int>(surface.Height()));
    canvas_->show();
    canvas_->activateWindow();
    settle();
  }
  // An event of the window may be on its way through it.
  void close() override {
    if (!canvas_) return;
    canvas_->hide();
    canvas_->deleteLater();
    canvas_ = nullptr;
  }
  void resize(Size size) override {
    if (canvas_)
      canvas_->resize(static_cast<int>(size.width), static_cast<int>(size.height));
    else if (surface_)
      surface_->Move(0, 0, size.width, size.height);
    settle();
  }
  void paint() override {
    if (canvas_) canvas_->grab();
  }

  void press(Point at, host::MouseButton button) override { mouse(QEvent::MouseButtonPress, at, button); }
  void release(Point at, host::MouseButton button) override { mouse(QEvent::MouseButtonRelease, at, button); }
  void move(Point at) override { mouse(QEvent::MouseMove, at, std::nullopt); }
  void doubleClick(Point at) override { mouse(QEvent::MouseButtonDblClick, at, host::MouseButton::Left); }

  void turnWheel(Point at, double notches) override {
    if (!canvas_) return;
    const QPoint place(static_cast<int>(at.x), static_cast<int>(at.y));
    QWidget* target = widgetAt(place);
    QWheelEvent event(target->mapFrom(canvas_, place), canvas_->mapToGlobal(place), {},
                      {0, static_cast<int>(notches * 120)}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(target, &event);
    settle();
  }
  // A bar that lies under something else has no widget.
  void scroll(host::VScrollBar& bar, std::int32_t value) override {
    const Rect seen = bar.visibleOnSurface();
    if (!canvas_ || seen.empty()) return;
    const Point middle{seen.left + seen.width / 2, seen.top + seen.height / 2};
    const QPoint place(static_cast<int>(middle.x), static_cast<int>(middle.y));
    if (auto* widget = qobject_cast<QScrollBar*>(widgetAt(place))) widget->setValue(value);
    settle();
  }
  void pressKey(std::int16_t key, std::int16_t shift) override {
    if (QWidget* target = keyboard()) QTest::keyClick(target, nativeKey(key), modifiersOf(shift));
    settle();
  }
  void type(std::string_view text) override {
    for (const QChar c : QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))) {
      QWidget* target = keyboard();
      if (!target) return;
      QTest::sendKeyEvent(QTest::Click, target, Qt::Key_unknown, QString(c), Qt::NoModifier);
      settle();
    }
  }
  void willChoose(std::optional<int> entry) override { wish_ = entry; }

  void surfaceGetsFocus() override {
    if (canvas_) canvas_->setFocus(Qt::ActiveWindowFocusReason);
    settle();
  }
  void surfaceLosesFocus() override {
    if (QWidget* focused = QApplication::focusWidget()) focused->clearFocus();
    settle();
  }
  void applicationActivated(bool active) override { machine_.windows().applicationActivated(active); }
  // A step takes no time here: the timers have what passes anyway.
  void letTimePass(std::chrono::milliseconds) override { settle(); }
  void runMessages() override { settle(); }

  std::string leftBehind() override {
    settle();
    return {};
  }
  std::string uncaughtError() override {
    const QString warning = std::exchange(lastWarning, {});
    return warning.contains(kListenersText) ? std::string() : warning.toStdString();
  }

 private:
  void settle() {
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

  void mouse(QEvent::Type type, Point at, std::optional<host::MouseButton> button) {
    if (!canvas_) return;
    const QPoint place(static_cast<int>(at.x), static_cast<int>(at.y));
    QWidget* target = widgetAt(place);
    const Qt::MouseButton native = button ? nativeButton(*button) : Qt::NoButton;
    const bool down = type != QEvent::MouseButtonRelease && type != QEvent::MouseMove;
    QMouseEvent event(type, target->mapFrom(canvas_, place), canvas_->mapToGlobal(place), native,
                      down ? native : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
    settle();
  }

  void choose() {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return;
    const auto wish = std::exchange(wish_, std::nullopt);
    for (QAction* action : menu->actions()) {
      if (!wish || action->data().toInt() != *wish) continue;
      menu->setActiveAction(action);
      QTest::keyClick(menu, Qt::Key_Return);
      return;
    }
    menu->close();
  }

  qt::QtPlatform machine_;
  ListeningSite site_{machine_, *this};
  WeakRef<host::Control> surface_;
  QPointer<QWidget> canvas_;
  QTimer chooser_;
  std::optional<int> wish_;
  QtMessageHandler before_ = nullptr;
};

}  // namespace

std::unique_ptr<Hands> makeQtHands() { return std::make_unique<QtHands>(); }

}  // namespace qrn::monkey
