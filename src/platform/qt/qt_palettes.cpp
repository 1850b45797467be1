#include "platform/qt/qt_palettes.h"

#include <QApplication>
#include <typeinfo>

#include "host/check_box.h"
#include "host/combo_box.h"
#include "host/command_button.h"
#include "platform/qt/qt_color.h"
#include "platform/qt/qt_platform.h"

namespace qrn::qt {
namespace {

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

void QtPalettes::forget() {
  wishes_.clear();
  palettes_.clear();
}

// Colours have to be resolved and made readable: editors that wish for the same are told from how they say
// it.
const QPalette& QtPalettes::of(const host::Editor& editor) {
  const qint64 application = QApplication::palette().cacheKey();
  if (application != application_) forget();
  application_ = application;
  const std::type_info& type = typeid(editor);
  // A locked drop list has nothing to press and looks like a text.
  const bool pressable =
      type == typeid(host::CommandButton) ||
      (type == typeid(host::ComboBox) && !static_cast<const host::ComboBox&>(editor).Locked());
  // A drop list is a button and a check mark lies in its box: only a colour of the caller's own replaces what
  // the style has there.
  const bool styled =
      type == typeid(host::CheckBox) || (pressable && host::isSystemColor(editor.BackColor()));
  Wish wish{pressable ? QPalette::Button : QPalette::Base,
            styled,
            editor.enabledUpToSurface(),
            editor.BackColor(),
            editor.textColor(),
            nullptr};
  for (const Wish& known : wishes_) {
    if (known.role == wish.role && known.styled == wish.styled && known.enabled == wish.enabled &&
        known.back == wish.back && known.text == wish.text)
      return *known.palette;
  }
  // The palettes outlive the wishes: pictures are kept for each of them.
  constexpr std::size_t kMostWishes = 64, kMostPalettes = 256;
  if (palettes_.size() >= kMostPalettes) forget();
  if (wishes_.size() >= kMostWishes) wishes_.clear();
  wish.palette = &found(wish);
  wishes_.push_back(wish);
  return *wish.palette;
}

const QPalette& QtPalettes::found(const Wish& wish) {
  const host::Color back =
      wish.styled ? fromQt(QApplication::palette().color(wish.role)) : platform_.resolve(wish.back);
  const host::Color color = platform_.resolve(wish.text);
  const host::Color text = wish.enabled ? host::readableOn(color, behindText(back, wish.role)) : color;
  const auto [entry, fresh] = palettes_.try_emplace({wish.role, back, text});
  if (fresh) {
    QPalette palette = QApplication::palette();
    keepOutlines(palette);
    palette.setColor(wish.role, toQColor(back));
    for (const auto each : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
      palette.setColor(each, toQColor(text));
    entry->second = palette;
  }
  return entry->second;
}

}  // namespace qrn::qt
