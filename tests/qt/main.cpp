#include <gtest/gtest.h>

#include <QApplication>
#include <QFontDatabase>
#include <cstdio>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // What is set on the machine must not decide how large anything is.
  const QByteArray scale = qgetenv("QRN_TEST_SCALE");
  qputenv("QT_SCALE_FACTOR", scale.isEmpty() ? "1" : scale);
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  application.setApplicationName("qt_tests");
  QApplication::setStyle("Fusion");
  const char* const family = "DejaVu Sans";
  if (!QFontDatabase::families().contains(family)) {
    std::fprintf(stderr, "qt_tests: the font \"%s\" is missing (Debian: fonts-dejavu-core)\n", family);
    return 2;
  }
  QFont font(family);
  font.setPointSizeF(9);
  QApplication::setFont(font);
  return RUN_ALL_TESTS();
}
