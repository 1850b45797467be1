#include "golden/golden_sheet.h"

#include <QProcess>
#include <QTest>

#include "golden/comparison.h"
#include "golden/palettes.h"

namespace qrn::golden {

GoldenSheet::GoldenSheet() {
  QApplication::setPalette(std::get<Look>(GetParam()) == Look::Dark ? darkPalette() : lightPalette());
}

GoldenSheet::~GoldenSheet() { QApplication::setPalette(usual_); }

void GoldenSheet::compareSheet(const char* name, Sheet (*draw)()) {
  if (qApp->devicePixelRatio() != scale()) return runAtOwnScale();
  const char* const look = std::get<Look>(GetParam()) == Look::Dark ? "dark" : "light";
  const QString file = QString("%1_%2_%3").arg(name, look).arg(scale());
  EXPECT_EQ(compareWithKept(draw().picture(), file), "");
}

void GoldenSheet::runAtOwnScale() {
  ASSERT_FALSE(qEnvironmentVariableIsSet("QRN_TEST_SCALE")) << "the scale factor was not taken";
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QRN_TEST_SCALE", QString::number(scale()));
  QProcess again;
  again.setProcessEnvironment(environment);
  again.setProcessChannelMode(QProcess::MergedChannels);
  again.start(QCoreApplication::applicationFilePath(),
              {QString("--gtest_filter=%1.%2").arg(test.test_suite_name(), test.name()), "--gtest_brief=1"});
  ASSERT_TRUE(again.waitForFinished(120000));
  const QByteArray output = again.readAll();
  EXPECT_TRUE(again.exitStatus() == QProcess::NormalExit && again.exitCode() == 0) << output.toStdString();
  EXPECT_TRUE(output.contains("[  PASSED  ] 1 test") || again.exitCode() != 0) << output.toStdString();
}

std::string nameOfLook(const testing::TestParamInfo<std::tuple<Look, double>>& test) {
  const int percent = static_cast<int>(std::get<double>(test.param) * 100);
  return (std::get<Look>(test.param) == Look::Dark ? "Dark" : "Light") + std::to_string(percent);
}

namespace {

Point middleOf(const host::Control& control) {
  const Rect at = control.onSurface();
  return {at.left + at.width / 2, at.top + at.height / 2};
}

}  // namespace

void hover(host::Control& control) { control.input().mouseMove(0, 0, middleOf(control)); }

void press(host::Control& control) {
  hover(control);
  control.input().mouseDown(host::MouseButton::Left, 0, middleOf(control));
}

void release(host::Control& control) {
  control.input().mouseUp(host::MouseButton::Left, 0, middleOf(control));
}

ShownControl::~ShownControl() {
  canvas_.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void ShownControl::putOnWindow(host::UserControl& control, int width, int height) {
  canvas_.reset(platform_.widget(control));
  canvas_->resize(width, height);
}

QImage ShownControl::picture() {
  canvas_->show();
  return canvas_->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

void ShownControl::focusByKeyboard() {
  canvas_->show();
  canvas_->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(canvas_.get()));
  QTest::keyClick(canvas_.get(), Qt::Key_Tab);
}

}  // namespace qrn::golden
