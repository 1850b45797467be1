#include "fuzz/fuzz_target.h"
#include "fuzz/rich_text_promises.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return qrn::fuzz::judge(data, size, qrn::fuzz::brokenRichTextPromise);
}
