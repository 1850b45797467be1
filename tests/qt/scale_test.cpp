#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>

namespace {

// The scale factor of an application is fixed when it starts, so another one takes another process.
TEST(ScaleFactorTwo, PaintedEditorsLookLikeRealOnes) {
  QProcess again;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QRN_TEST_SCALE", "2");
  again.setProcessEnvironment(environment);
  again.setProcessChannelMode(QProcess::MergedChannels);
  again.start(QCoreApplication::applicationFilePath(),
              {"--gtest_filter=*Painted*:Surface.*", "--gtest_brief=1"});
  ASSERT_TRUE(again.waitForFinished(120000));
  EXPECT_EQ(again.exitCode(), 0) << again.readAll().toStdString();
}

}  // namespace
