#include "golden/palettes.h"

namespace qrn::golden {
namespace {

struct Colours {
  QRgb window, windowText, base, alternateBase, text, grayText, button, buttonText;
  QRgb light, midlight, mid, dark, shadow, highlight, highlightedText, link, toolTipBase;
};

QPalette paletteOf(const Colours& colours) {
  QPalette palette;
  const auto set = [&](QPalette::ColorRole role, QRgb color) { palette.setColor(role, QColor(color)); };
  set(QPalette::Window, colours.window);
  set(QPalette::WindowText, colours.windowText);
  set(QPalette::Base, colours.base);
  set(QPalette::AlternateBase, colours.alternateBase);
  set(QPalette::ToolTipBase, colours.toolTipBase);
  set(QPalette::ToolTipText, colours.text);
  set(QPalette::Text, colours.text);
  set(QPalette::PlaceholderText, colours.grayText);
  set(QPalette::Button, colours.button);
  set(QPalette::ButtonText, colours.buttonText);
  set(QPalette::BrightText, colours.highlightedText);
  set(QPalette::Light, colours.light);
  set(QPalette::Midlight, colours.midlight);
  set(QPalette::Mid, colours.mid);
  set(QPalette::Dark, colours.dark);
  set(QPalette::Shadow, colours.shadow);
  set(QPalette::Highlight, colours.highlight);
  set(QPalette::HighlightedText, colours.highlightedText);
  set(QPalette::Link, colours.link);
  set(QPalette::LinkVisited, colours.link);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(colours.grayText));
  return palette;
}

}  // namespace

QPalette lightPalette() {
  return paletteOf({.window = 0xefefef,
                    .windowText = 0x000000,
                    .base = 0xffffff,
                    .alternateBase = 0xf7f7f7,
                    .text = 0x000000,
                    .grayText = 0x8c8c8c,
                    .button = 0xefefef,
                    .buttonText = 0x000000,
                    .light = 0xffffff,
                    .midlight = 0xcacaca,
                    .mid = 0xb8b8b8,
                    .dark = 0x9f9f9f,
                    .shadow = 0x767676,
                    .highlight = 0x308cc6,
                    .highlightedText = 0xffffff,
                    .link = 0x0000ff,
                    .toolTipBase = 0xd5dde8});
}

QPalette darkPalette() {
  return paletteOf({.window = 0x353535,
                    .windowText = 0xffffff,
                    .base = 0x232323,
                    .alternateBase = 0x2a2a2a,
                    .text = 0xffffff,
                    .grayText = 0x8c8c8c,
                    .button = 0x353535,
                    .buttonText = 0xffffff,
                    .light = 0x5a5a5a,
                    .midlight = 0x464646,
                    .mid = 0x2b2b2b,
                    .dark = 0x1f1f1f,
                    .shadow = 0x141414,
                    .highlight = 0x2a82da,
                    .highlightedText = 0xffffff,
                    .link = 0x2a82da,
                    .toolTipBase = 0x3c4a5c});
}

}  // namespace qrn::golden
