#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QListWidget>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "contract/contract.h"
#include "contract/contract_tests.inc"
#include "platform/qt/qt_platform.h"
#include "support/qt_user.h"

namespace qrn::contract {
namespace {

class QtContract final : public ContractPlatform {
 public:
  ~QtContract() override { close(); }

  host::Platform& platform() override { return machine_; }

  void show(host::UserControl& surface) override {
    canvas_ = machine_.widget(surface);
    user_.sitsDown(canvas_);
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
    const Point middle{seen.left + seen.width / 2, seen.top + seen.height / 2};
    user_.presses(middle, host::MouseButton::Left);
    user_.releases(middle, host::MouseButton::Left);
  }

  void type(std::string_view text) override {
    for (const QChar c : QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))) user_.types(c);
  }

  void press(std::int16_t key, std::int16_t shift) override { user_.pressesKey(key, shift); }

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

  void turnWheel(Point at, double notches) override { user_.turnsWheel(at, notches); }

  void willChoose(std::optional<int> entry) override {
    chooser_.callOnTimeout(&chooser_, [this, entry] {
      if (!test::QtUser::chooses(entry)) return;
      chooser_.stop();
      chooser_.disconnect();
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
  static void turn() { test::QtUser::waits(); }

  qt::QtPlatform machine_;
  QPointer<QWidget> canvas_;
  test::QtUser user_;
  QTimer chooser_;
};

std::unique_ptr<ContractPlatform> makeQt() { return std::make_unique<QtContract>(); }

INSTANTIATE_TEST_SUITE_P(Qt, Contract, testing::Values(&makeQt));

}  // namespace
}  // namespace qrn::contract
