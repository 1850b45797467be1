#include "shown_on_screen.h"

#include <QApplication>
#include <QFontInfo>
#include <QPalette>
#include <QStyleFactory>
#include <iostream>
#include <optional>

#include "event_printer.h"
#include "platform/qt/qt_site.h"
#include "qt/pictures.h"
#include "qt/question_box.h"
#include "qt/stack_window.h"

namespace qrn::eddpanel {
namespace {

QPalette darkPalette() {
  QPalette palette(QColor(53, 53, 53), QColor(45, 45, 45));
  palette.setColor(QPalette::Base, QColor(35, 35, 35));
  palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
  palette.setColor(QPalette::Text, QColor(230, 230, 230));
  palette.setColor(QPalette::WindowText, QColor(230, 230, 230));
  palette.setColor(QPalette::ButtonText, QColor(230, 230, 230));
  palette.setColor(QPalette::Highlight, QColor(61, 125, 202));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
  }
  return palette;
}

// A window needs an X server; without one the pictures and tests still have something to paint on.
void chooseDisplay(const ScreenOptions& options) {
  if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) return;
  qputenv("QT_QPA_PLATFORM", options.pictures.empty() ? "xcb;offscreen" : "offscreen");
}

}  // namespace

int runOnScreen(const edd::Description& description, const ScreenOptions& options, int argc, char** argv) {
  chooseDisplay(options);
  QApplication application(argc, argv);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  if (options.dark) QApplication::setPalette(darkPalette());
  if (QFontInfo(QApplication::font()).family().isEmpty()) {
    std::cerr << "eddpanel: this machine has no font; install one, such as fonts-dejavu-core\n";
    return 1;
  }
  qt::QtPlatform platform;
  qt::QtSite site(platform);
  const auto stack = host::create<QRNDisplayStack>(site);
  std::optional<EventPrinter> printer;
  if (options.printEvents) printer.emplace(*stack, std::cout);
  QuestionBox question;
  DevicePages pages(description, *stack, question);
  if (printer) printer->watch(pages);
  if (!options.pictures.empty()) {
    return writePictures(platform, pages, options.pictures, std::cout, std::cerr) ? 0 : 1;
  }
  StackWindow window(platform, pages);
  window.show();
  return QApplication::exec();
}

}  // namespace qrn::eddpanel
