#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/clsHiddenRef.h"
#include "buttons/clsQRNButton.h"
#include "host/timer.h"

namespace qrn {

/// The buttons in the footer of a panel, in their order. A selector is a button object, a key, whose case
/// does not count, or a 1-based position. A range-based for goes over all of them.
class clsQRNButtons final : public Object {
 public:
  /// Bound to its panel, with the timer that lets its buttons click themselves.
  explicit clsQRNButtons(ButtonsPanel& panel);
  clsQRNButtons(const clsQRNButtons&) = delete;
  clsQRNButtons& operator=(const clsQRNButtons&) = delete;
  ~clsQRNButtons() override;
  std::string_view typeName() const override { return "clsQRNButtons"; }

  /// Makes a button under a name, or under a made one if that is empty, in front of the button that
  /// AtPosition selects, or else at the end. Null when that fails, as with a name in use.
  ButtonPtr AddButton(std::string_view CtlName, const std::string& Caption,
                      const std::optional<Variant>& AtPosition = {});
  /// Removes a button and its control. Errors: 5 for an unknown key, 9 for a position outside; an object that
  /// is not here is left alone.
  void Remove(const Variant& aSelector);
  /// Removes all buttons, last first.
  void RemoveAll();
  /// The number of buttons.
  std::int32_t Count() const { return buttons_.count(); }
  /// The position of a button. Errors: 0x80040003 when nothing is selected.
  std::int32_t GetIndexOf(const Variant& aSelector) const;
  /// The button that is selected. Errors: 5, 9, and 0x80040003 for an object that is not here.
  ButtonPtr Item(const Variant& aSelector) const;

  /// Over the buttons in their order.
  using Iterator = SelectableList<clsQRNButton>::Iterator;
  Iterator begin() const { return buttons_.begin(); }
  std::default_sentinel_t end() const { return {}; }

 private:
  ButtonsPanel& panel() const;
  host::Controls& controls() const { return panel().control().controls(); }
  ButtonPtr makeButton(const std::string& key, const std::optional<Variant>& atPosition);
  void removeAt(std::int32_t position);
  void startTimer();
  void stopTimer();
  void tick(std::int32_t passed);

  clsHiddenRef<ButtonsPanel> panel_;
  SelectableList<clsQRNButton> buttons_;
  WeakRef<host::Timer> timer_;
  Connection ticks_;
};

}  // namespace qrn
