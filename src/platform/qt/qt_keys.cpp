#include "platform/qt/qt_keys.h"

#include <QKeyEvent>
#include <algorithm>
#include <iterator>

namespace qrn::qt {
namespace {

struct Pair {
  int qt;
  std::int16_t code;
};

constexpr Pair kNamed[] = {
    {Qt::Key_Backspace, host::key::Back},
    {Qt::Key_Tab, host::key::Tab},
    {Qt::Key_Backtab, host::key::Tab},
    {Qt::Key_Return, host::key::Enter},
    {Qt::Key_Enter, host::key::Enter},
    {Qt::Key_Escape, host::key::Escape},
    {Qt::Key_Space, host::key::Space},
    {Qt::Key_PageUp, host::key::PageUp},
    {Qt::Key_PageDown, host::key::PageDown},
    {Qt::Key_End, host::key::End},
    {Qt::Key_Home, host::key::Home},
    {Qt::Key_Left, host::key::Left},
    {Qt::Key_Up, host::key::Up},
    {Qt::Key_Right, host::key::Right},
    {Qt::Key_Down, host::key::Down},
    {Qt::Key_Insert, host::key::Insert},
    {Qt::Key_Delete, host::key::Delete},
    {Qt::Key_Cancel, host::key::Cancel},
    {Qt::Key_Clear, 12},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Print, 44},
    {Qt::Key_Help, 47},
    {Qt::Key_Meta, 91},
    {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
};

constexpr Pair kKeypad[] = {
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},   {Qt::Key_Comma, 108},
    {Qt::Key_Minus, 109},    {Qt::Key_Period, 110}, {Qt::Key_Slash, 111},
};

// Punctuation by the place it has on a US keyboard, shifted or not.
constexpr Pair kPunctuation[] = {
    {Qt::Key_Semicolon, 186},    {Qt::Key_Colon, 186},      {Qt::Key_Equal, 187},
    {Qt::Key_Plus, 187},         {Qt::Key_Comma, 188},      {Qt::Key_Less, 188},
    {Qt::Key_Minus, 189},        {Qt::Key_Underscore, 189}, {Qt::Key_Period, 190},
    {Qt::Key_Greater, 190},      {Qt::Key_Slash, 191},      {Qt::Key_Question, 191},
    {Qt::Key_QuoteLeft, 192},    {Qt::Key_AsciiTilde, 192}, {Qt::Key_BracketLeft, 219},
    {Qt::Key_BraceLeft, 219},    {Qt::Key_Backslash, 220},  {Qt::Key_Bar, 220},
    {Qt::Key_BracketRight, 221}, {Qt::Key_BraceRight, 221}, {Qt::Key_Apostrophe, 222},
    {Qt::Key_QuoteDbl, 222},     {Qt::Key_Exclam, '1'},     {Qt::Key_At, '2'},
    {Qt::Key_NumberSign, '3'},   {Qt::Key_Dollar, '4'},     {Qt::Key_Percent, '5'},
    {Qt::Key_AsciiCircum, '6'},  {Qt::Key_Ampersand, '7'},  {Qt::Key_Asterisk, '8'},
    {Qt::Key_ParenLeft, '9'},    {Qt::Key_ParenRight, '0'},
};

template <std::size_t N>
std::int16_t find(const Pair (&table)[N], int key) {
  const auto found =
      std::find_if(std::begin(table), std::end(table), [key](const Pair& p) { return p.qt == key; });
  return found == std::end(table) ? 0 : found->code;
}

bool isFunctionKey(int key) { return key >= Qt::Key_F1 && key <= Qt::Key_F24; }

}  // namespace

std::int16_t shiftState(Qt::KeyboardModifiers modifiers) {
  std::int16_t state = host::shift::None;
  if (modifiers & Qt::ShiftModifier) state |= host::shift::Shift;
  if (modifiers & Qt::ControlModifier) state |= host::shift::Control;
  if (modifiers & Qt::AltModifier) state |= host::shift::Alt;
  return state;
}

std::optional<host::MouseButton> mouseButton(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton: return host::MouseButton::Left;
    case Qt::RightButton: return host::MouseButton::Right;
    case Qt::MiddleButton: return host::MouseButton::Middle;
    default: return std::nullopt;
  }
}

std::int16_t mouseButtons(Qt::MouseButtons buttons) {
  std::int16_t sum = 0;
  for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
    if (buttons & button) sum |= static_cast<std::int16_t>(*mouseButton(button));
  return sum;
}

std::int16_t keyCode(const QKeyEvent& event) {
  const int key = event.key();
  if (isFunctionKey(key)) return static_cast<std::int16_t>(host::key::F1 + key - Qt::Key_F1);
  if (event.modifiers() & Qt::KeypadModifier) {
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return static_cast<std::int16_t>(96 + key - Qt::Key_0);
    if (const std::int16_t code = find(kKeypad, key)) return code;
  }
  const bool asItself = (key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z);
  if (asItself) return static_cast<std::int16_t>(key);
  const std::int16_t named = find(kNamed, key);
  return named != 0 ? named : find(kPunctuation, key);
}

std::int16_t typedCharacter(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  // Both together are AltGr, which types characters.
  const bool command = modifiers.testFlag(Qt::ControlModifier) != modifiers.testFlag(Qt::AltModifier) ||
                       modifiers.testFlag(Qt::MetaModifier);
  if (command) return 0;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return host::key::Enter;
    case Qt::Key_Escape: return host::key::Escape;
    case Qt::Key_Backspace: return host::key::Back;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return host::key::Tab;
    default: break;
  }
  // Characters that do not fit are typed without being asked about.
  const QString text = event.text();
  const bool fits = text.size() == 1 && text.at(0).isPrint() && text.at(0).unicode() <= 0x7FFF;
  return fits ? static_cast<std::int16_t>(text.at(0).unicode()) : std::int16_t{0};
}

bool isTab(const QKeyEvent& event) {
  const bool tab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
  return tab && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

bool isPlain(const QKeyEvent& event) {
  const bool command =
      event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier) ? true : false;
  return !command && !isFunctionKey(event.key());
}

}  // namespace qrn::qt
