#pragma once

#include <cstdint>

namespace qrn::host {

/// An OLE colour: 0x00BBGGRR, or with the high bit set the number of a system colour.
using Color = std::uint32_t;

constexpr Color rgb(int red, int green, int blue) {
  return static_cast<Color>(red) | static_cast<Color>(green) << 8 | static_cast<Color>(blue) << 16;
}

constexpr int redOf(Color color) { return static_cast<int>(color & 0xFF); }
constexpr int greenOf(Color color) { return static_cast<int>(color >> 8 & 0xFF); }
constexpr int blueOf(Color color) { return static_cast<int>(color >> 16 & 0xFF); }

/// The system colours by their numbers.
enum class SystemColor : std::uint32_t {
  ActiveCaption = 2,
  InactiveCaption = 3,
  WindowBackground = 5,
  WindowFrame = 6,
  WindowText = 8,
  ActiveCaptionText = 9,
  Highlight = 13,
  HighlightText = 14,
  ButtonFace = 15,
  ButtonShadow = 16,
  GrayText = 17,
  ButtonText = 18,
  InactiveCaptionText = 19,
  ButtonHighlight = 20,
  ButtonDarkShadow = 21,
};

constexpr Color systemColor(SystemColor which) { return 0x80000000u | static_cast<Color>(which); }
constexpr bool isSystemColor(Color color) { return (color & 0x80000000u) != 0; }
constexpr SystemColor systemColorOf(Color color) { return static_cast<SystemColor>(color & 0xFFu); }

inline constexpr Color kButtonFace = systemColor(SystemColor::ButtonFace);
inline constexpr Color kButtonText = systemColor(SystemColor::ButtonText);
inline constexpr Color kWindowText = systemColor(SystemColor::WindowText);
inline constexpr Color kWindowBackground = systemColor(SystemColor::WindowBackground);
inline constexpr Color kGrayText = systemColor(SystemColor::GrayText);
inline constexpr Color kButtonShadow = systemColor(SystemColor::ButtonShadow);
inline constexpr Color kButtonHighlight = systemColor(SystemColor::ButtonHighlight);

/// A share of the way from a plain colour to another one, 0 to 1.
Color mixed(Color from, Color to, double share);

/// The contrast of two plain colours, 1 to 21, as WCAG 2.1 computes it.
double contrast(Color a, Color b);

/// The text colour itself where it can be read on the background, otherwise its hue, made lighter or darker
/// until its contrast is 4.5. It counts as readable from 4.5 on a dark ground, and from 3 on a light one, for
/// which most colours are chosen. Both are plain colours.
Color readableOn(Color text, Color background);

}  // namespace qrn::host
