#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>

namespace {

// The scale factor of an application is fixed when it starts, so another one takes another process.
class ScaleFactor : public testing::TestWithParam<const char*> {};

TEST_P(ScaleFactor, PaintedEditorsLookLikeRealOnes) {
  // The other process runs these tests too and must not start a third one, whatever its filter lets through.
  if (qEnvironmentVariableIsSet("QRN_TEST_SCALE"))
    GTEST_SKIP() << "runs at a scale factor of its own already";
  QProcess again;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QRN_TEST_SCALE", GetParam());
  again.setProcessEnvironment(environment);
  again.setProcessChannelMode(QProcess::MergedChannels);
  again.start(QCoreApplication::applicationFilePath(),
              {"--gtest_filter=*Painted*:Surface.*-*ScaleFactor*", "--gtest_brief=1"});
  ASSERT_TRUE(again.waitForFinished(120000));
  EXPECT_EQ(again.exitCode(), 0) << again.readAll().toStdString();
}

INSTANTIATE_TEST_SUITE_P(All, ScaleFactor, testing::Values("1.5", "2"), [](const auto& test) {
  return std::string(test.param) == "2" ? "Two" : "OneAndAHalf";
});

}  // namespace
