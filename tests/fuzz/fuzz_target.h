#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace qrn::fuzz {

/// Stops the fuzzer at an input for which a promise is broken.
template <class Promises>
int judge(const std::uint8_t* data, std::size_t size, Promises&& brokenPromise) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (const std::string broken = brokenPromise(text); !broken.empty()) {
    std::fprintf(stderr, "%s\n", broken.c_str());
    std::abort();
  }
  return 0;
}

}  // namespace qrn::fuzz
