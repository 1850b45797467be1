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
int heightOf(QRNDisplay& panel) {
  double bottom = 0;
  for (const auto& item : panel.Items()) {
    const host::Control* control = nullptr;
    if (auto parameter = std::dynamic_pointer_cast<clsQRNParam>(item))
      control = &parameter->Control();
    else
      control = &static_cast<clsQRNAction&>(*item).Control();
    bottom = std::max(bottom, control->Top() + control->Height());
  }
  const double around = panel.Height() - panel.ControlsContainer().Height();
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
    QRNDisplay& panel = panels.open(*menu).display();
    QWidget* widget = platform.widget(panel);
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
