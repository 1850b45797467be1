#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <cstdio>

#include "play/command_line.h"
#include "qt_hands.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // What is set on the machine must not decide how large anything is.
  qputenv("QT_SCALE_FACTOR", "1");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  application.setApplicationName("monkey_qt_tests");
  QApplication::setStyle("Fusion");
  const QFont font("DejaVu Sans", 9);
  if (QFontInfo(font).family() != font.family()) {
    std::fprintf(stderr,
                 "monkey_qt_tests: the font \"DejaVu Sans\" is missing (Debian: fonts-dejavu-core)\n");
    return 2;
  }
  QApplication::setFont(font);
  if (const auto code = qrn::monkey::playFromCommandLine(argc, argv, qrn::monkey::makeQtHands)) return *code;
  return RUN_ALL_TESTS();
}
