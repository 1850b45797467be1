#include "qt/pictures.h"

#include <QPixmap>
#include <QWidget>
#include <algorithm>
#include <functional>
#include <ostream>

namespace qrn::eddpanel {
namespace {

constexpr int kWidth = 640;
constexpr int kLowest = 200;
constexpr int kHighest = 1200;

using Path = std::vector<const edd::Menu*>;

std::string numbered(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

/// Takes pictures of what lies on the stack.
class Camera {
 public:
  Camera(qt::QtPlatform& platform, DevicePages& pages, std::filesystem::path folder, std::ostream& out,
         std::ostream& errors)
      : pages_(pages),
        stack_(*platform.widget(pages.stack())),
        folder_(std::move(folder)),
        out_(out),
        errors_(errors) {}

  /// Opens menus on each other, as large as the one on top needs to be, and the one below a dialog.
  void show(const Path& path) {
    pages_.closeAll();
    stack_.resize(kWidth, kHighest);
    stack_.show();
    for (const edd::Menu* menu : path) pages_.open(*menu);
    const std::int32_t top = pages_.stack().Count();
    const int below = path.back()->isDialog && top > 1 ? heightFor(top - 1) : kLowest;
    stack_.resize(kWidth, std::clamp(heightFor(top), below, kHighest));
  }

  bool take(const std::string& name) {
    const std::filesystem::path file = folder_ / (numbered(++taken_) + "_" + name + ".png");
    if (!stack_.grab().save(QString::fromStdString(file.string()), "PNG")) {
      errors_ << "eddpanel: " << file.string() << ": can't be written\n";
      return false;
    }
    out_ << file.string() << '\n';
    return true;
  }

 private:
  // Of the stack, for all items of a page to be seen.
  int heightFor(std::int32_t index) {
    MenuPage& page = pages_.page(index);
    double bottom = 0;
    for (std::int32_t item = 1; item <= page.panel().Items().Count(); ++item) {
      const host::Control& control = page.control(item);
      bottom = std::max(bottom, control.Top() + control.Height());
    }
    const double around = pages_.stack().Height() - page.panel().ControlsContainer().Height();
    return std::clamp(static_cast<int>(bottom + around), kLowest, kHighest);
  }

  DevicePages& pages_;
  QWidget& stack_;
  std::filesystem::path folder_;
  std::ostream& out_;
  std::ostream& errors_;
  int taken_ = 0;
};

// The longest way down from a menu to one that is wanted; empty without any.
Path longestPath(const edd::Description& description, const edd::Menu& from,
                 const std::function<bool(const edd::Menu&)>& wanted) {
  Path longest;
  for (const edd::MenuItem& item : from.items) {
    if (item.kind != edd::ItemKind::Menu) continue;
    Path path = longestPath(description, description.menus()[item.index], wanted);
    if (path.size() > longest.size()) longest = std::move(path);
  }
  if (!longest.empty() || wanted(from)) longest.insert(longest.begin(), &from);
  return longest;
}

// Of a row in the middle, so that there is something around it.
void showHelp(DevicePages& pages) {
  const std::int32_t count = pages.top()->panel().Items().Count();
  bool shown = false;
  const Connection hears = pages.HelpShown.connect([&](QRNToolTip&) { shown = true; });
  for (std::int32_t item = std::max(count / 2, 1); item <= count && !shown; ++item)
    pages.help(pages.stack().Count(), item);
}

}  // namespace

bool writePictures(qt::QtPlatform& platform, DevicePages& pages, const std::filesystem::path& folder,
                   std::ostream& out, std::ostream& errors) {
  std::error_code failure;
  std::filesystem::create_directories(folder, failure);
  if (failure) {
    errors << "eddpanel: " << folder.string() << ": " << failure.message() << '\n';
    return false;
  }
  Camera camera(platform, pages, folder, out, errors);
  for (const edd::Menu* menu : pages.menus()) {
    camera.show({menu});
    if (!camera.take(menu->name)) return false;
  }
  const edd::Menu& root = *pages.roots().front();
  const auto plain = [](const edd::Menu& menu) { return !menu.isDialog; };
  camera.show(longestPath(pages.description(), root, plain));
  if (!camera.take("cascade")) return false;
  showHelp(pages);
  if (!camera.take("help")) return false;
  const Path dialog =
      longestPath(pages.description(), root, [](const edd::Menu& menu) { return menu.isDialog; });
  if (dialog.empty()) return true;
  camera.show(dialog);
  return camera.take("dialog");
}

}  // namespace qrn::eddpanel
