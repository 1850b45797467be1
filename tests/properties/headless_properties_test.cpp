#include "platform/headless/headless_platform.h"
#include "properties/property_tests.h"
#include "properties/property_tests.inc"

namespace qrn::test {
namespace {

std::unique_ptr<host::Platform> makeHeadless() { return std::make_unique<headless::HeadlessPlatform>(); }

INSTANTIATE_TEST_SUITE_P(Headless, Properties, testing::ValuesIn(casesOn(&makeHeadless)), caseName);

}  // namespace
}  // namespace qrn::test
