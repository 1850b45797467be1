#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "runtime/variant.h"

namespace qrn {

/// A format pattern, read once and applied often. The first part of a pattern that only a number, only a date
/// or only a text can fill in decides what it formats; a text that cannot be made one of those comes back as
/// it is. Null and Empty give "", unless a section of the pattern is for them. Copies share the pattern.
class CompiledFormat {
 public:
  /// Reads the pattern; costs time and memory linear in its length. The empty pattern formats like CStr.
  explicit CompiledFormat(std::string_view pattern);

  /// In the way of the current locale. Error 6 for a date outside the calendar, 13 for objects and errors.
  std::string apply(const Variant& value) const;

  class Formatter;

 private:
  std::shared_ptr<const Formatter> formatter_;
};

/// Formats once. Whoever formats often with one pattern keeps a CompiledFormat.
std::string Format(const Variant& value, std::string_view pattern = {});

}  // namespace qrn
