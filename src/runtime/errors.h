#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace qrn {

/// Numbers of the run-time errors that the conversions, collections and hosting raise.
enum ErrorNumber : std::int32_t {
  kInvalidProcedureCall = 5,
  kOverflow = 6,
  kSubscriptOutOfRange = 9,
  kTypeMismatch = 13,
  kFileNotFound = 53,
  kInvalidPatternString = 93,
  kInvalidUseOfNull = 94,
  kInvalidFileFormat = 321,
  kControlArrayElementMissing = 340,
  kInvalidPropertyValue = 380,
  kObjectRequired = 424,
  kCannotCreateObject = 429,
  kKeyAlreadyUsed = 457,
  kControlNameUsed = 727,
  kControlNotFound = 730,
};

/// A failure that a caller can see: what() is the description.
class RunTimeError : public std::runtime_error {
 public:
  RunTimeError(std::int32_t number, std::string source, const std::string& description)
      : std::runtime_error(description), number_(number), source_(std::move(source)) {}

  std::int32_t number() const { return number_; }
  const std::string& source() const { return source_; }
  std::string description() const { return what(); }

 private:
  std::int32_t number_;
  std::string source_;
};

/// The run-time's own text of an error number; empty for a number it does not know.
std::string_view runTimeErrorText(std::int32_t number);

/// The one place that throws. A missing description is the run-time's own text of the number.
[[noreturn]] void raiseRunTimeError(std::int32_t number, std::string_view source = {},
                                    std::optional<std::string_view> description = {});

/// Marks a place where run-time errors are swallowed on purpose; says whether the action went through.
template <class Action>
bool ignoringErrors(Action&& action) {
  try {
    action();
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

}  // namespace qrn
