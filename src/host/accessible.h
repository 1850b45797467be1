#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qrn::host {

class Control;

/// What a control is to an assistive tool, such as a screen reader.
enum class AccessibleRole : std::uint8_t {
  None,  // nothing by itself: tools are not told of it
  Panel,
  Group,
  Label,
  Picture,
  Text,
  CheckBox,
  DropList,
  List,
  Entry,  // of a list of either kind
  Button,
  ScrollBar,
};

/// What a tool can have a control do.
enum class AccessibleAction : std::uint8_t { None, Press, Toggle, Choose };

struct AccessibleStates {
  bool unavailable = false;  // the control or something around it is disabled
  bool invisible = false;    // the control or something around it is hidden
  bool offscreen = false;    // not hidden, but scrolled out of view
  bool focusable = false;
  bool focused = false;
  bool readOnly = false;
  bool secret = false;  // a password
  bool checkable = false;
  bool checked = false;
  bool selectable = false;
  bool selected = false;
  bool modal = false;  // nothing beside it can be used

  friend bool operator==(const AccessibleStates&, const AccessibleStates&) = default;
};

/// All that tools are told of a control, worked out from its state when one asks. It is the same whether the
/// control has a native widget or not; a platform only translates it.
struct AccessibleFacts {
  AccessibleRole role = AccessibleRole::None;
  std::string name;
  std::string description;
  /// What is wrong with the value, in words; empty when nothing is.
  std::string error;
  /// What a person sees of the value.
  std::string value;
  /// Such as "Alt+A"; empty for none.
  std::string shortcut;
  AccessibleStates states;
  AccessibleAction action = AccessibleAction::None;

  /// The description and what is wrong.
  std::string wholeDescription() const {
    if (description.empty() || error.empty()) return description + error;
    return description + "\n" + error;
  }
};

/// One thing that tools see: a control, or an entry of a list, counted from 0.
struct AccessibleNode {
  static constexpr std::int32_t kWhole = -1;

  Control* control = nullptr;
  std::int32_t entry = kWhole;

  explicit operator bool() const { return control != nullptr; }
  friend bool operator==(const AccessibleNode&, const AccessibleNode&) = default;

  /// Each of these needs a control.
  AccessibleFacts facts() const;
  /// The control that has this one among its children; none for the surface, and for what no tool sees.
  AccessibleNode parent() const;
  std::int32_t childCount() const;
  /// None outside the children.
  AccessibleNode child(std::int32_t index) const;
  /// -1 for what is no child.
  std::int32_t indexOf(const AccessibleNode& child) const;

  /// As if the user had done it, the focus included where it takes one; answers whether it was possible.
  bool focus() const;
  bool act() const;
  /// Replaces a text, or chooses the entry with that text.
  bool enter(std::string_view text) const;
};

}  // namespace qrn::host
