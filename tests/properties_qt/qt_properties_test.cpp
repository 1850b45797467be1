#include "platform/qt/qt_platform.h"
#include "properties/property_tests.h"
#include "properties/property_tests.inc"

namespace qrn::test {
namespace {

std::unique_ptr<host::Platform> makeQt() { return std::make_unique<qt::QtPlatform>(); }

INSTANTIATE_TEST_SUITE_P(Qt, Properties, testing::ValuesIn(casesOn(&makeQt)), caseName);

}  // namespace
}  // namespace qrn::test
