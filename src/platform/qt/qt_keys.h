#pragma once

#include <Qt>
#include <cstdint>
#include <optional>

#include "host/input.h"

class QKeyEvent;

namespace qrn::qt {

std::int16_t shiftState(Qt::KeyboardModifiers modifiers);
std::optional<host::MouseButton> mouseButton(Qt::MouseButton button);
/// The sum of the buttons that are down.
std::int16_t mouseButtons(Qt::MouseButtons buttons);

/// The key as controls number them; 0 for one that they don't know.
std::int16_t keyCode(const QKeyEvent& event);
/// The character that the key types, 0 for none.
std::int16_t typedCharacter(const QKeyEvent& event);

/// Tab alone or with Shift.
bool isTab(const QKeyEvent& event);
/// Neither Ctrl, Alt nor Meta is down, and it is none of the function keys, which applications use alone.
bool isPlain(const QKeyEvent& event);

}  // namespace qrn::qt
