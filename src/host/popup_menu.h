#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/geometry.h"
#include "runtime/object.h"

namespace qrn::host {

class Platform;

/// One entry of a pop-up menu.
class MenuEntry final : public Object {
 public:
  explicit MenuEntry(std::string_view caption) : caption_(caption) {}
  std::string_view typeName() const override { return "Menu"; }

  /// With an & before the letter that chooses it.
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption) { caption_ = caption; }
  /// Whether the menu shows it.
  bool Visible() const { return visible_; }
  void SetVisible(bool visible) { visible_ = visible; }
  /// Whether it can be chosen.
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { enabled_ = enabled; }
  /// Whether it has a mark.
  bool Checked() const { return checked_; }
  void SetChecked(bool checked) { checked_ = checked; }

 private:
  std::string caption_;
  bool visible_ = true;
  bool enabled_ = true;
  bool checked_ = false;
};

/// A menu that pops up: entries by index, of which some may have been unloaded.
class PopupMenu {
 public:
  /// Null where nothing is loaded.
  std::shared_ptr<MenuEntry> entry(int index) const;
  /// False when that index is loaded already.
  bool load(int index, std::string_view caption);
  void unload(int index);
  /// Entries that are loaded.
  int count() const;
  /// One more than the highest index that is loaded.
  int size() const { return static_cast<int>(entries_.size()); }

  /// Shows the menu until it is closed; the chosen entry.
  std::optional<int> popUp(Platform& platform, Point screen);

 private:
  std::vector<std::shared_ptr<MenuEntry>> entries_;
};

}  // namespace qrn::host
