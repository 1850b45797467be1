#pragma once

#include <string>
#include <vector>

#include "host/platform.h"
#include "host/surface.h"

namespace qrn::headless {

/// Keeps what was drawn as one line of text each, in pixels of the whole surface, for instance
/// `text 8,4 "Damping" #000000` or `line 0,0 99,0 #ffffff`.
class RecordingSurface final : public host::Surface {
 public:
  RecordingSurface(const host::Platform& platform, Size size)
      : platform_(platform), areas_{{{0, 0}, {0, 0, size.width, size.height}}} {}

  const std::vector<std::string>& operations() const { return operations_; }
  /// The operations that start with a word, such as "text".
  std::vector<std::string> operations(std::string_view kind) const;
  void record(std::string_view kind, const Rect& area, std::string_view details = {});

  void enter(const Rect& area) override;
  void leave() override;
  Rect visible() const override;
  void fill(const Rect& area, host::Color color, host::DrawMode mode) override;
  void line(Point from, Point to, host::Color color) override;
  void text(Point topLeft, std::string_view text, const host::Font& font, host::Color color) override;
  void picture(Point topLeft, const host::Picture& picture) override;
  void focusRectangle(const Rect& area) override;

 private:
  struct Area {
    Point origin;
    Rect clip;  // of the whole surface
  };
  Point place(Point at) const { return at + areas_.back().origin; }
  std::string colorText(host::Color color) const;

  const host::Platform& platform_;
  std::vector<Area> areas_;
  std::vector<std::string> operations_;
};

}  // namespace qrn::headless
