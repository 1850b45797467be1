#pragma once

#include <memory>
#include <string>

#include "runtime/object.h"

namespace qrn::host {

/// A font as callers ask for it. An empty family is the platform's own.
struct Font final : Object {
  Font() = default;
  explicit Font(std::string name, double points = 9, bool isBold = false, bool isItalic = false)
      : family(std::move(name)), size(points), bold(isBold), italic(isItalic) {}

  std::string_view typeName() const override { return "Font"; }

  std::string family;
  double size = 9;  // points
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;

  friend bool operator==(const Font& a, const Font& b) {
    return a.family == b.family && a.size == b.size && a.bold == b.bold && a.italic == b.italic &&
           a.underline == b.underline && a.strikethrough == b.strikethrough;
  }
};

using FontPtr = std::shared_ptr<const Font>;

/// Measures text in logical pixels. One per font; the platform keeps it for good.
class FontMetrics {
 public:
  virtual ~FontMetrics() = default;
  virtual double advance(std::string_view text) = 0;
  virtual double height() const = 0;
  virtual double ascent() const = 0;
};

}  // namespace qrn::host
