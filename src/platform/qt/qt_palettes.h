#pragma once

#include <QPalette>
#include <map>
#include <tuple>
#include <vector>

#include "host/color.h"

namespace qrn::host {
class Editor;
}

namespace qrn::qt {

class QtPlatform;

/// The palettes of editors, one for each pair of colours: the real editor and the painted one share it, and
/// the style's own caches go by it.
class QtPalettes {
 public:
  explicit QtPalettes(QtPlatform& platform) : platform_(platform) {}

  /// Valid until the next call.
  const QPalette& of(const host::Editor& editor);
  void forget();

 private:
  /// What a palette follows from, as the editor has it, and the one that was found.
  struct Wish {
    QPalette::ColorRole role;
    bool styled;
    bool enabled;
    host::Color back, text;  // may be system colours
    const QPalette* palette;
  };
  // The role that is the editor's background, that background and the text.
  using Key = std::tuple<QPalette::ColorRole, host::Color, host::Color>;

  const QPalette& found(const Wish& wish);

  QtPlatform& platform_;
  qint64 application_ = 0;  // the application's palette that all of this was made from
  std::vector<Wish> wishes_;
  std::map<Key, QPalette> palettes_;
};

}  // namespace qrn::qt
