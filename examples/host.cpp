#include <QApplication>
#include <QWidget>
#include <iostream>

#include "display/QRNDisplay.h"
#include "library/library.h"
#include "platform/qt/qt_site.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  qrn::registerControls();
  qrn::qt::QtPlatform platform;
  qrn::qt::QtSite site(platform);

  const auto panel = qrn::host::create<qrn::QRNDisplay>(site);
  panel->SetTitle("Basic setup");
  const auto damping = panel->Items().AddParameter("damping", qrn::qrnTypeDouble);
  damping->Control().SetLabelText("Damping");
  damping->Control().SetUnitText("s");
  damping->Control().SetValueFormat("0.00");
  damping->Control().SetValueRule("0..60");
  damping->SetParamValue(1.5);
  const auto listening = panel->ParameterEndEdit.connect([&](std::int32_t&, bool& changed) {
    if (changed) std::cout << "damping is now " << damping->Control().ValueText() << std::endl;
  });
  panel->LayoutControls(false);
  platform.widget(*panel)->show();
  return QApplication::exec();
}
