#include "qt_hands.h"

#include <QApplication>
#include <QScrollBar>
#include <QTimer>
#include <utility>

#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_site.h"
#include "play/meddling.h"
#include "support/qt_user.h"

namespace qrn::monkey {
namespace {

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
    user_.sitsDown(machine_.widget(surface));
    window()->resize(static_cast<int>(surface.Width()), static_cast<int>(surface.Height()));
    window()->show();
    window()->activateWindow();
    settle();
  }
  // An event of the window may be on its way through it.
  void close() override {
    if (!window()) return;
    window()->hide();
    window()->deleteLater();
    user_.sitsDown(nullptr);
  }
  void resize(Size size) override {
    if (window())
      window()->resize(static_cast<int>(size.width), static_cast<int>(size.height));
    else if (surface_)
      surface_->Move(0, 0, size.width, size.height);
    settle();
  }
  void paint() override {
    if (window()) window()->grab();
  }

  void press(Point at, host::MouseButton button) override { user_.presses(at, button), settle(); }
  void release(Point at, host::MouseButton button) override { user_.releases(at, button), settle(); }
  void move(Point at) override { user_.movesTo(at), settle(); }
  void doubleClick(Point at) override { user_.doubleClicks(at), settle(); }
  void turnWheel(Point at, double notches) override { user_.turnsWheel(at, notches), settle(); }
  // A bar that lies under something else has no widget.
  void scroll(host::VScrollBar& bar, std::int32_t value) override {
    const Rect seen = bar.visibleOnSurface();
    if (!window() || seen.empty()) return;
    const Point middle{seen.left + seen.width / 2, seen.top + seen.height / 2};
    if (auto* widget = qobject_cast<QScrollBar*>(user_.widgetAt(middle))) widget->setValue(value);
    settle();
  }
  void pressKey(std::int16_t key, std::int16_t shift) override { user_.pressesKey(key, shift), settle(); }
  void type(std::string_view text) override {
    for (const QChar c : QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))) {
      user_.types(c);
      settle();
    }
  }
  void willChoose(std::optional<int> entry) override { wish_ = entry; }

  void surfaceGetsFocus() override {
    if (window()) window()->setFocus(Qt::ActiveWindowFocusReason);
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
  static void settle() { test::QtUser::waits(); }
  QWidget* window() const { return user_.window(); }

  void choose() {
    if (QApplication::activePopupWidget()) test::QtUser::chooses(std::exchange(wish_, std::nullopt));
  }

  qt::QtPlatform machine_;
  ListeningSite site_{machine_, *this};
  WeakRef<host::Control> surface_;
  test::QtUser user_;
  QTimer chooser_;
  std::optional<int> wish_;
  QtMessageHandler before_ = nullptr;
};

}  // namespace

std::unique_ptr<Hands> makeQtHands() { return std::make_unique<QtHands>(); }

}  // namespace qrn::monkey
