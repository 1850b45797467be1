#include "qt/pictures.h"

#include <QPixmap>
#include <QWidget>
#include <algorithm>
#include <ostream>

namespace qrn::eddpanel {
namespace {

constexpr int kWidth = 640;
constexpr int kLowest = 200;
constexpr int kHighest = 1200;

std::string numbered(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

// Tall enough for all of the panel's items, within reason.
int heightOf(MenuPanel& panel) {
  double bottom = 0;
  for (std::int32_t item = 1; item <= panel.display().Items().Count(); ++item) {
    const host::Control& control = panel.control(item);
    bottom = std::max(bottom, control.Top() + control.Height());
  }
  const double around = panel.display().Height() - panel.display().ControlsContainer().Height();
  return std::clamp(static_cast<int>(bottom + around), kLowest, kHighest);
}

}  // namespace

bool writePictures(qt::QtPlatform& platform, DevicePanels& panels, const std::filesystem::path& folder,
                   std::ostream& out, std::ostream& errors) {
  std::error_code failure;
  std::filesystem::create_directories(folder, failure);
  if (failure) {
    errors << "eddpanel: " << folder.string() << ": " << failure.message() << '\n';
    return false;
  }
  int number = 0;
  for (const edd::Menu* menu : panels.menus()) {
    MenuPanel& panel = panels.open(*menu);
    QWidget* widget = platform.widget(panel.display());
    widget->resize(kWidth, kLowest);
    widget->show();
    widget->resize(kWidth, heightOf(panel));
    const std::filesystem::path file = folder / (numbered(++number) + "_" + menu->name + ".png");
    if (!widget->grab().save(QString::fromStdString(file.string()), "PNG")) {
      errors << "eddpanel: " << file.string() << ": can't be written\n";
      return false;
    }
    widget->hide();
    out << file.string() << '\n';
  }
  return true;
}

}  // namespace qrn::eddpanel
