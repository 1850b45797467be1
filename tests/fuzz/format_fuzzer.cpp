#include "fuzz/format_promises.h"
#include "fuzz/fuzz_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return qrn::fuzz::judge(data, size, qrn::fuzz::brokenFormatPromise);
}
