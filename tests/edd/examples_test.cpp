#include <filesystem>
#include <set>

#include "reading.h"

namespace qrn::edd {
namespace {

const std::filesystem::path examples = std::filesystem::path(QRN_SOURCE_DIR) / "examples";

class Example : public testing::TestWithParam<std::string> {
 protected:
  Description in(const std::string& language) const {
    return readDescription(examples / GetParam(), inLanguage(language));
  }
};

INSTANTIATE_TEST_SUITE_P(Examples, Example,
                         testing::Values("pressure_transmitter.ddl", "valve_positioner.ddl"));

TEST_P(Example, IsReadWithoutWarnings) { EXPECT_EQ(warningsOf(in("en")), Texts{}); }

TEST_P(Example, HasADefaultALabelAndAHelpForEveryVariable) {
  for (const std::string language : {"en", "de"}) {
    const Description d = in(language);
    for (const Variable& v : d.variables()) {
      EXPECT_TRUE(v.defaultValue.has_value()) << v.name;
      EXPECT_NE(v.label, v.name);
      EXPECT_GT(v.help.size(), v.label.size()) << v.name;
    }
  }
}

TEST_P(Example, HelpsInBothLanguages) {
  const Description english = in("en");
  const Description german = in("de");
  for (const Variable& v : english.variables()) EXPECT_NE(v.help, german.variable(v.name)->help) << v.name;
  for (const Method& m : english.methods()) EXPECT_NE(m.help, german.method(m.name)->help) << m.name;
}

TEST_P(Example, ShowsEveryVariableAndMethodInAMenuBelowTheFirst) {
  const Description d = in("en");
  std::set<std::string> shown;
  for (const Menu& menu : d.menus())
    for (const MenuItem& item : menu.items) shown.insert(item.name);
  for (const Variable& v : d.variables()) EXPECT_TRUE(shown.contains(v.name)) << v.name;
  for (const Method& m : d.methods()) EXPECT_TRUE(shown.contains(m.name)) << m.name;
  ASSERT_EQ(d.rootMenus().size(), 1u);
  EXPECT_EQ(d.rootMenus()[0], &d.menus()[0]);
}

TEST(PressureTransmitter, HasAtLeastEightyVariablesInEightMenusAndFiveMethods) {
  const Description d = readDescription(examples / "pressure_transmitter.ddl");
  EXPECT_GE(d.variables().size(), 80u);
  EXPECT_GE(d.menus().size(), 8u);
  EXPECT_GE(d.methods().size(), 5u);
}

TEST(PressureTransmitter, HasAVariableOfEveryTypeThatAUserInterfaceShows) {
  const Description d = readDescription(examples / "pressure_transmitter.ddl");
  std::set<ValueKind> kinds;
  for (const Variable& v : d.variables()) kinds.insert(v.type.kind);
  for (const ValueKind kind :
       {ValueKind::Integer, ValueKind::UnsignedInteger, ValueKind::Float, ValueKind::Double,
        ValueKind::Enumerated, ValueKind::BitEnumerated, ValueKind::Ascii, ValueKind::Password,
        ValueKind::Date, ValueKind::Time, ValueKind::DateAndTime})
    EXPECT_TRUE(kinds.contains(kind)) << keywordOf(kind);
}

TEST(PressureTransmitter, TakesItsTagAndLimitsFromMacros) {
  const Description d = readDescription(examples / "pressure_transmitter.ddl");
  EXPECT_EQ(d.variable("tag_description")->defaultValue, "PT-1107");
  EXPECT_EQ(d.variable("upper_range_value")->ranges.at(0).maximum->value, 16.0);
  EXPECT_EQ(d.variable("sensor_temperature")->unit, "°C");
}

TEST(PressureTransmitter, HasDynamicLockedWriteOnlyAndManyRangedVariables) {
  const Description d = readDescription(examples / "pressure_transmitter.ddl");
  EXPECT_TRUE(d.variable("pressure_value")->isDynamic());
  EXPECT_FALSE(d.variable("pressure_value")->writable);
  EXPECT_FALSE(d.variable("unlock_code")->readable);
  EXPECT_EQ(d.variable("display_cycle_time")->ranges.size(), 2u);
}

TEST(ValvePositioner, IsSmall) {
  const Description d = readDescription(examples / "valve_positioner.ddl");
  EXPECT_NEAR(static_cast<double>(d.variables().size()), 20, 5);
  EXPECT_EQ(d.menus().size(), 3u);
}

}  // namespace
}  // namespace qrn::edd
