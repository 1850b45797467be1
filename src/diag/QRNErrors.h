#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/errors.h"
#include "runtime/variant.h"

namespace qrn {

inline constexpr std::int32_t kObjectError = static_cast<std::int32_t>(0x80040000);
inline constexpr std::int32_t kObjectNotInitialized = kObjectError + 1;
inline constexpr std::int32_t kObjectAlreadyInitialized = kObjectError + 2;
inline constexpr std::int32_t kObjectNotInCollection = kObjectError + 3;
inline constexpr std::int32_t kSetNotAtRunTime = 382;
inline constexpr std::int32_t kSetNotAtDesignTime = 383;
inline constexpr std::int32_t kGetNotAtRunTime = 393;
inline constexpr std::int32_t kGetNotAtDesignTime = 394;

inline constexpr std::string_view kWrongKindOfObject = "The Object has the wrong kind for that action!";

/// The library's standard text of an error number; empty for any other.
std::string_view ErrorText(std::int32_t Number);

/// A source or description: an object stands for its type name, anything else for its text.
class ErrorArgument {
 public:
  ErrorArgument() = default;  // missing
  ErrorArgument(const Object& object) : text_(object.typeName()) {}
  ErrorArgument(const Variant& value);
  ErrorArgument(const char* text) : text_(text) {}
  ErrorArgument(std::string_view text) : text_(text) {}
  ErrorArgument(const std::string& text) : text_(text) {}

  const std::optional<std::string>& text() const { return text_; }

 private:
  std::optional<std::string> text_;
};

/// Raises a RunTimeError. A missing description is `ErrorText(Number)`.
[[noreturn]] void RaiseError(std::int32_t Number, const ErrorArgument& Source = {},
                             const ErrorArgument& Description = {});

}  // namespace qrn
