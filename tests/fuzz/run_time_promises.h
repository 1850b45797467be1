#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "runtime/errors.h"
#include "runtime/locale.h"

namespace qrn::fuzz {

/// More digits than a double can have, so that both lengths are read in the same way, and still quick.
inline constexpr std::size_t kGrowthLength = 512;

/// Each shipped locale for a while; the one before comes back.
template <class Check>
std::string brokenInAnyLocale(Check&& check) {
  const Locale before = currentLocale();
  std::string broken;
  for (const Locale* locale : {&enUS(), &deDE()}) {
    setCurrentLocale(*locale);
    if (broken.empty()) broken = check();
  }
  setCurrentLocale(before);
  return broken;
}

/// What an action answers; nothing if it raises one of these errors. Any other one ends the fuzzer.
template <class Action>
auto valueOrOneOf(std::initializer_list<std::int32_t> errors, Action&& action)
    -> std::optional<decltype(action())> {
  try {
    return action();
  } catch (const RunTimeError& error) {
    for (const std::int32_t allowed : errors) {
      if (error.number() == allowed) return std::nullopt;
    }
    throw;
  }
}

/// The first line, and what is behind it.
inline std::pair<std::string_view, std::string_view> splitFirstLine(std::string_view text) {
  const auto end = text.find('\n');
  if (end == std::string_view::npos) return {{}, text};
  return {text.substr(0, end), text.substr(end + 1)};
}

}  // namespace qrn::fuzz
