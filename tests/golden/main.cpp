#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <cstdio>

#include "library/library.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // What is set on the machine must not decide how anything looks.
  const QByteArray scale = qgetenv("QRN_TEST_SCALE");
  qputenv("QT_SCALE_FACTOR", scale.isEmpty() ? "1" : scale);
  qputenv("QT_FONT_DPI", "96");
  for (const char* each : {"QT_SCREEN_SCALE_FACTORS", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME"})
    qunsetenv(each);
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  application.setApplicationName("golden_tests");
  QApplication::setStyle("Fusion");
  QApplication::setCursorFlashTime(0);  // a caret is always to be seen
  const char* const family = "DejaVu Sans";
  QFont font(family);
  font.setPointSizeF(9);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(
      static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  if (QFontInfo(font).family() != family) {
    std::fprintf(stderr, "golden_tests: the font \"%s\" is missing (Debian: fonts-dejavu-core)\n", family);
    return 2;
  }
  QApplication::setFont(font);
  qrn::registerControls();
  return RUN_ALL_TESTS();
}
