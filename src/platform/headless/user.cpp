#include "platform/headless/user.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "host/check_box.h"
#include "host/combo_box.h"
#include "host/command_button.h"
#include "host/list_box.h"
#include "host/text_box.h"
#include "host/v_scroll_bar.h"

namespace qrn::headless {
namespace {

// Letters and digits have the code of their upper-case character; other characters have none that matters
// here.
std::int16_t keyCodeOf(char32_t character) {
  if (character >= 'a' && character <= 'z') return static_cast<std::int16_t>(character - 32);
  const bool plain = (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9') ||
                     character == ' ' || character < ' ';
  return plain ? static_cast<std::int16_t>(character) : std::int16_t{0xE7};
}

bool isUpper(char32_t character) { return character >= 'A' && character <= 'Z'; }

// The character that a key types by itself.
std::int16_t characterOf(std::int16_t keyCode, std::int16_t shift) {
  if ((shift & (host::shift::Control | host::shift::Alt)) != 0) return 0;
  switch (keyCode) {
    case host::key::Enter:
    case host::key::Escape:
    case host::key::Back:
    case host::key::Tab:
    case host::key::Space: return keyCode;
    default: return 0;
  }
}

// Replaces the selection, or removes a character before or after the caret.
void edit(host::TextBox& box, std::string_view insert, int before, int after) {
  const auto start = static_cast<std::size_t>(box.SelStart());
  const auto length = static_cast<std::size_t>(box.SelLength());
  const bool selected = length > 0;
  const std::size_t from = selected ? start : start - std::min(start, static_cast<std::size_t>(before));
  const std::size_t to = selected ? start + length : start + static_cast<std::size_t>(after);
  const std::string& text = box.Text();
  std::string result(text::slice(text, 0, from));
  result += insert;
  result += text::slice(text, to);
  // A longer text of a program's may become shorter, not longer.
  const std::size_t most = std::max(static_cast<std::size_t>(box.MaxLength()), text::length(text));
  if (box.MaxLength() > 0 && text::length(result) > most) return;
  if (box.Locked() || !box.Enabled()) return;
  box.userTyped(result, static_cast<std::int32_t>(from + text::length(insert)));
}

void keyIntoText(host::TextBox& box, std::int16_t keyCode, std::int16_t shift) {
  const auto end = static_cast<std::int32_t>(text::length(box.Text()));
  const auto caret = box.SelStart();
  if (keyCode == 'A' && shift == host::shift::Control) return box.userSelected(0, end);
  switch (keyCode) {
    case host::key::Back: return edit(box, {}, 1, 0);
    case host::key::Delete: return edit(box, {}, 0, 1);
    case host::key::Home: return box.userSelected(0, 0);
    case host::key::End: return box.userSelected(end, 0);
    case host::key::Left: return box.userSelected(std::max(0, caret - 1), 0);
    case host::key::Right: return box.userSelected(std::min(end, caret + 1), 0);
    default: break;
  }
}

std::int32_t movedIndex(const host::ListEditor& list, std::int16_t keyCode) {
  const std::int32_t last = list.ListCount() - 1;
  switch (keyCode) {
    case host::key::Up: return std::max(0, list.ListIndex() - 1);
    case host::key::Down: return std::min(last, list.ListIndex() + 1);
    case host::key::Home: return last < 0 ? -1 : 0;
    case host::key::End: return last;
    default: return list.ListIndex();
  }
}

}  // namespace

Point User::middleOf(const host::Control& control) {
  const Rect seen = control.visibleOnSurface();
  return {seen.left + seen.width / 2, seen.top + seen.height / 2};
}

void User::clicks(host::Control& control, host::MouseButton button) {
  if (control.shown() && !control.visibleOnSurface().empty()) clicksAt(middleOf(control), button);
}

void User::doubleClicks(host::Control& control) {
  const WeakRef<host::Control> target(&control);
  const WeakRef<host::Control> surface(&surface_);
  clicks(control);
  if (!target || !surface) return;
  const Point at = middleOf(control);
  press(at, host::MouseButton::Left, true);
  if (surface) releasesAt(at);
}

void User::clicksAt(Point at, host::MouseButton button) {
  const WeakRef<host::Control> surface(&surface_);
  pressesAt(at, button);
  if (surface) releasesAt(at, button);
}

void User::pressesAt(Point at, host::MouseButton button) { press(at, button, false); }

void User::press(Point at, host::MouseButton button, bool again) {
  platform_.setCursor(at);
  const WeakRef<host::Control> target(input().hit(at));
  const WeakRef<host::Control> surface(&surface_);
  host::Control* const widget =
      again ? input().doubleClick(at) : input().mouseDown(button, host::shift::None, at);
  pressedWidget_ = surface ? WeakRef<host::Control>(widget) : WeakRef<host::Control>();
  if (auto* list = dynamic_cast<host::ListBox*>(pressedWidget_.get()))
    list->userPressed(button, list->fromSurface(at));
  if (button != host::MouseButton::Left || !target) return;
  if (auto* check = dynamic_cast<host::CheckBox*>(target.get())) check->userToggled();
  if (dynamic_cast<host::CommandButton*>(target.get())) heldByMouse_ = target;
}

void User::releasesAt(Point at, host::MouseButton button) {
  platform_.setCursor(at);
  const WeakRef<host::Control> widget = std::exchange(pressedWidget_, {});
  const WeakRef<host::Control> held = std::exchange(heldByMouse_, {});
  auto* list = dynamic_cast<host::ListBox*>(widget.get());
  if (list)
    list->userReleased(button, list->fromSurface(at));
  else
    input().mouseUp(button, host::shift::None, at);
  // Let go beside it, a push button was not clicked.
  if (held && held->visibleOnSurface().contains(at)) static_cast<host::CommandButton&>(*held).userClicked();
}

void User::movesTo(Point at) {
  platform_.setCursor(at);
  std::int16_t held = 0;
  for (const auto button : {host::MouseButton::Left, host::MouseButton::Right}) {
    if (input().holds(button)) held = static_cast<std::int16_t>(held | static_cast<std::int16_t>(button));
  }
  input().mouseMove(held, host::shift::None, at);
}

void User::turnsWheel(Point at, double notches) {
  platform_.setCursor(at);
  input().wheel(at, notches);
}

void User::types(std::string_view text) {
  const WeakRef<host::Control> surface(&surface_);
  for (std::size_t at = 0; surface && at < text.size();) typeCharacter(text::next(text, at));
}

void User::typeCharacter(char32_t character) {
  const std::int16_t code = keyCodeOf(character);
  const std::int16_t shift = isUpper(character) ? host::shift::Shift : host::shift::None;
  const WeakRef<host::Control> surface(&surface_);
  if (!input().keyDown(code, shift) && surface) {
    const auto given = static_cast<std::int16_t>(character > 0xFFFF ? '?' : character);
    const std::int16_t remains = input().keyPress(given);
    if (!surface) return;
    host::Control* focus = input().focus();
    if (auto* box = dynamic_cast<host::TextBox*>(focus); box && remains != 0) {
      std::string typed;
      text::append(typed,
                   remains == given ? character : static_cast<char32_t>(static_cast<std::uint16_t>(remains)));
      edit(*box, typed, 0, 0);
    } else if (focus && remains == host::key::Space) {
      keyInto(*focus, host::key::Space, shift);
    } else if (remains != 0) {
      typeAhead(focus, remains == given ? character : static_cast<char32_t>(remains));
    }
  }
  if (surface) lets(code, shift);
}

void User::typeAhead(host::Control* list, char32_t character) {
  if (auto* combo = dynamic_cast<host::ComboBox*>(list))
    combo->userSelected(combo->indexTypedTo(character));
  else if (auto* box = dynamic_cast<host::ListBox*>(list))
    box->userMovedTo(box->indexTypedTo(character));
}

void User::presses(std::int16_t keyCode, std::int16_t shift) {
  const WeakRef<host::Control> surface(&surface_);
  holds(keyCode, shift);
  if (surface) lets(keyCode, shift);
}

void User::holds(std::int16_t keyCode, std::int16_t shift) {
  const WeakRef<host::Control> surface(&surface_);
  if (input().keyDown(keyCode, shift) || !surface) return;
  const std::int16_t character = characterOf(keyCode, shift);
  if (character != 0 && input().keyPress(character) == 0) return;
  if (surface && input().focus()) keyInto(*input().focus(), keyCode, shift);
}

void User::lets(std::int16_t keyCode, std::int16_t shift) {
  const bool used = input().keyUp(keyCode, shift);
  if (keyCode != host::key::Space) return;
  const WeakRef<host::Control> held = std::exchange(heldBySpace_, {});
  if (!used && held && held->hasFocus()) static_cast<host::CommandButton&>(*held).userClicked();
}

void User::keyInto(host::Control& editor, std::int16_t keyCode, std::int16_t shift) {
  if (auto* box = dynamic_cast<host::TextBox*>(&editor)) {
    if (keyCode == host::key::Space)
      edit(*box, " ", 0, 0);
    else
      keyIntoText(*box, keyCode, shift);
  } else if (auto* check = dynamic_cast<host::CheckBox*>(&editor)) {
    if (keyCode == host::key::Space) check->userToggled();
  } else if (auto* button = dynamic_cast<host::CommandButton*>(&editor)) {
    if (keyCode == host::key::Space) heldBySpace_ = WeakRef<host::Control>(button);
    if (keyCode == host::key::Enter) button->userClicked();
  } else if (auto* combo = dynamic_cast<host::ComboBox*>(&editor)) {
    combo->userSelected(movedIndex(*combo, keyCode));
  } else if (auto* list = dynamic_cast<host::ListBox*>(&editor)) {
    if (keyCode == host::key::Space)
      list->userChecked(static_cast<std::int16_t>(list->ListIndex()));
    else
      list->userMovedTo(movedIndex(*list, keyCode));
  }
}

void User::enters(std::string_view text) {
  const WeakRef<host::Control> surface(&surface_);
  presses('A', host::shift::Control);
  if (!surface) return;
  if (text.empty())
    presses(host::key::Delete);
  else
    types(text);
}

void User::chooses(host::Control& combo, std::int32_t entry) {
  const WeakRef<host::Control> target(&combo);
  clicks(combo);
  if (auto* list = dynamic_cast<host::ComboBox*>(target.get())) list->userSelected(entry);
}

void User::ticks(host::Control& list, std::int16_t entry) {
  const WeakRef<host::Control> target(&list);
  clicks(list);
  auto* box = dynamic_cast<host::ListBox*>(target.get());
  if (!box) return;
  box->userMovedTo(entry);
  box->userChecked(entry);
}

void User::scrollsTo(host::Control& bar, std::int32_t value) {
  if (auto* scroll = dynamic_cast<host::VScrollBar*>(&bar)) scroll->userScrolled(value);
}

}  // namespace qrn::headless
