#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "buttons/buttons_panel.h"
#include "host/command_button.h"
#include "runtime/selectable_list.h"

namespace qrn {

/// A button in the footer of a panel. A click reaches the panel after the code that led to it has returned.
/// Widths are in the panel's scale units.
class clsQRNButton final : public Object,
                           public host::CallTarget,
                           public std::enable_shared_from_this<clsQRNButton> {
 public:
  std::string_view typeName() const override { return "clsQRNButton"; }
  Anchor& anchor() override { return anchor_; }

  /// The host's own.
  const Variant& Tag() const { return tag_; }
  void SetTag(const Variant& tag) { tag_ = tag; }
  /// Milliseconds until the button clicks itself, at once for 0; anything below is off, and so it is after
  /// every click.
  std::int32_t AutoFireDelay() const { return autoFireDelay_; }
  void SetAutoFireDelay(std::int32_t milliseconds);
  /// The narrowest width that shows the caption.
  std::int32_t MinWidth() const { return minWidth_; }
  void SetMinWidth(std::int32_t width) { minWidth_ = width; }
  /// The one that the button has where there is room, if it is more.
  std::int32_t StdWidth() const { return stdWidth_; }
  void SetStdWidth(std::int32_t width) { stdWidth_ = width; }

  /// The button itself. Errors: 0x80040001 once it has been removed.
  host::CommandButton& Control() const;

  /// Gives the button its caption, its height and its widths, in the panel's font.
  void SetDefaultLayout(const std::string& Caption);
  /// Where the posted call of a click arrives, with the button's position at the time of the click.
  void Callback(Variant& Code) override;

 private:
  friend class clsQRNButtons;
  friend class QRNDisplay;
  friend class SelectableList<clsQRNButton>;

  void SetControl(ButtonsPanel& panel, host::CommandButton& control);
  /// Out of the collection: a click that is still on its way is forgotten.
  void detach();
  host::CommandButton* control() const { return control_.get(); }
  void click();
  void post(std::int32_t index);

  Variant tag_;
  WeakRef<ButtonsPanel> panel_;
  WeakRef<host::CommandButton> control_;
  Connection clicked_;
  std::unique_ptr<host::CallPoster> poster_;                    // from the first click on
  const SelectableList<clsQRNButton>::Entry* entry_ = nullptr;  // the button's own place in its collection
  Anchor anchor_;
  std::int32_t autoFireDelay_ = -1;
  std::int32_t minWidth_ = 0;
  std::int32_t stdWidth_ = 0;
};

using ButtonPtr = std::shared_ptr<clsQRNButton>;

}  // namespace qrn
