#include "platform/qt/qt_palettes.h"

#include <QApplication>

#include "host/check_box.h"
#include "host/combo_box.h"
#include "host/command_button.h"
#include "platform/qt/qt_color.h"
#include "platform/qt/qt_platform.h"

namespace qrn::qt {
namespace {

// A drop list is a button and a check mark lies in its box: only a colour of the caller's own replaces what
// the style has there.
host::Color backgroundOf(const host::Editor& editor, QPalette::ColorRole role, const QtPlatform& platform) {
  const bool styled = dynamic_cast<const host::CheckBox*>(&editor) ||
                      (role == QPalette::Button && host::isSystemColor(editor.BackColor()));
  return styled ? fromQt(QApplication::palette().color(role)) : platform.resolve(editor.BackColor());
}

// Where the text will lie: styles draw a dark button lighter than its colour.
host::Color behindText(host::Color back, QPalette::ColorRole role) {
  constexpr int kLighterByHalf = 150;
  return role == QPalette::Button ? fromQt(toQColor(back).lighter(kLighterByHalf)) : back;
}

// Styles take the window's colour, made darker, for the outlines of editors and of their marks. In the dark
// nothing would be left of them.
void keepOutlines(QPalette& palette) {
  constexpr int kDark = 128, kOutdoesDarker = 140;
  constexpr double kShare = 0.3;
  if (palette.color(QPalette::Window).lightness() >= kDark) return;
  const host::Color base = fromQt(palette.color(QPalette::Base)),
                    text = fromQt(palette.color(QPalette::Text));
  palette.setColor(QPalette::Window, toQColor(host::mixed(base, text, kShare)).lighter(kOutdoesDarker));
}

}  // namespace

const QPalette& QtPalettes::of(const host::Editor& editor) {
  const auto* combo = dynamic_cast<const host::ComboBox*>(&editor);
  // A locked drop list has nothing to press and looks like a text.
  const bool pressable = (combo && !combo->Locked()) || dynamic_cast<const host::CommandButton*>(&editor);
  const QPalette::ColorRole role = pressable ? QPalette::Button : QPalette::Base;
  const host::Color back = backgroundOf(editor, role, platform_);
  const host::Color wish = platform_.resolve(editor.textColor());
  const host::Color text =
      editor.enabledUpToSurface() ? host::readableOn(wish, behindText(back, role)) : wish;
  const auto [entry, fresh] = palettes_.try_emplace({role, back, text});
  if (fresh) {
    QPalette palette = QApplication::palette();
    keepOutlines(palette);
    palette.setColor(role, toQColor(back));
    for (const auto each : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
      palette.setColor(each, toQColor(text));
    entry->second = palette;
  }
  return entry->second;
}

}  // namespace qrn::qt
