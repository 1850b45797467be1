#pragma once

#include <QPalette>
#include <map>
#include <tuple>

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

  const QPalette& of(const host::Editor& editor);
  void forget() { palettes_.clear(); }

 private:
  // The role that is the editor's background, that background and the text.
  using Key = std::tuple<QPalette::ColorRole, host::Color, host::Color>;

  QtPlatform& platform_;
  std::map<Key, QPalette> palettes_;
};

}  // namespace qrn::qt
