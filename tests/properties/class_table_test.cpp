#include "host/class_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "buttons/QRNMenuItem.h"
#include "display/QRNDisplay.h"
#include "display/library.h"
#include "images/built_in_pictures.h"
#include "platform/headless/headless_platform.h"
#include "row/QRNEdit.h"
#include "runtime/errors.h"

namespace qrn::test {
namespace {

using host::ClassTable;
using host::Notify;
using host::Property;
using host::PropertyBag;
using host::PropertyType;
using host::UserControl;

using Keys = std::vector<std::string>;

struct Class {
  std::string name;
  host::Owned<UserControl> (*create)(host::Site&, const PropertyBag*);
};

template <class T>
host::Owned<UserControl> make(host::Site& site, const PropertyBag* bag) {
  return host::create<T>(site, bag);
}

struct Case {
  Class type;
  bool realised = false;
};

/// What holds for every property of every class, from what the class's table says of it.
class Properties : public ::testing::TestWithParam<Case> {
 protected:
  Properties() {
    registerControls();
    site.ambientProperties.font = std::make_shared<host::Font>("Ambient", 10);
  }

  host::Owned<UserControl> create(const PropertyBag* bag = nullptr) {
    auto control = GetParam().type.create(site, bag);
    if (GetParam().realised) {
      control->realise();
      EXPECT_NE(control->peer(), nullptr);
    }
    return control;
  }

  // A new instance that has everything its properties are about: a row has no editor before it has a type.
  host::Owned<UserControl> createComplete() {
    auto control = create();
    if (const Property* type = control->classTable().find("ValueType"))
      type->write(*control, type->readDefault.of(*control));
    site.changedKeys.clear();
    return control;
  }

  static std::vector<const Property*> writable(const UserControl& control) {
    std::vector<const Property*> result;
    for (const Property& one : control.classTable().properties) {
      if (one.write) result.push_back(&one);
    }
    return result;
  }

  static std::vector<const Property*> stored(const UserControl& control) {
    std::vector<const Property*> result;
    for (const Property* one : writable(control)) {
      if (!one->key.empty()) result.push_back(one);
    }
    return result;
  }

  // Another value of the property's type, which every setter takes as it is.
  static Variant otherValue(const Property& property, const Variant& value) {
    switch (property.type) {
      case PropertyType::Boolean: return !host::booleanFrom(value);
      case PropertyType::Integer: return static_cast<std::int16_t>(otherNumber(host::integerFrom(value)));
      case PropertyType::Long: return otherNumber(host::longFrom(value));
      case PropertyType::Color: return host::longFrom(value) == 255 ? 65280 : 255;
      case PropertyType::Single: return static_cast<float>(host::doubleFrom(value) + 1);
      case PropertyType::Double: return host::doubleFrom(value) + 1;
      case PropertyType::String: return host::stringFrom(value) + "x";
      case PropertyType::Font: return std::make_shared<host::Font>("Other", 20, true);
      case PropertyType::Picture: return host::toVariant(builtInPicture(qrnImageQuestion));
      default: return Variant("other");
    }
  }
  // Down, as some are limited upwards; but not below nothing.
  static std::int32_t otherNumber(std::int32_t number) { return number == 0 ? 1 : number - 1; }

  static Keys keysOf(const PropertyBag& bag) {
    Keys keys;
    for (const auto& item : bag.items()) keys.push_back(item.key);
    return keys;
  }

  bool notified(const Property& property) const {
    const std::string_view key = property.key.empty() ? property.name : property.key;
    return std::find(site.changedKeys.begin(), site.changedKeys.end(), key) != site.changedKeys.end();
  }

  static PropertyBag saved(const UserControl& control) {
    PropertyBag bag;
    control.writeProperties(bag);
    return bag;
  }

  headless::HeadlessPlatform platform;
  headless::HeadlessSite site{platform};
};

TEST_P(Properties, ANewInstanceHasTheValuesOfTheTable) {
  site.ambientProperties.backColor = host::rgb(1, 2, 3);
  site.ambientProperties.foreColor = host::rgb(4, 5, 6);
  const auto control = create();
  for (const Property* one : writable(*control)) {
    if (one->notify == Notify::Never && one->key.empty() && one->fresh.of(*control).isEmpty()) continue;
    EXPECT_TRUE(host::sameValue(one->read(*control), one->fresh.of(*control))) << one->name;
  }
}

TEST_P(Properties, AnEqualWriteNotifiesOnlyWhereEveryWriteDoes) {
  const auto control = createComplete();
  for (const Property* one : writable(*control)) {
    site.changedKeys.clear();
    one->write(*control, one->read(*control));
    EXPECT_EQ(notified(*one), one->notify == Notify::Always) << one->name;
    if (one->notify != Notify::Always) {
      EXPECT_EQ(site.changedKeys, Keys{}) << one->name;
    }
  }
}

TEST_P(Properties, AChangedWriteNotifiesWithItsKeyAndIsReadBack) {
  for (const Property* one : writable(*createComplete())) {
    const auto control = createComplete();
    const Variant value = otherValue(*one, one->read(*control));
    one->write(*control, value);
    EXPECT_TRUE(host::sameValue(one->read(*control), value)) << one->name;
    EXPECT_EQ(notified(*one), one->notify != Notify::Never) << one->name;
  }
}

TEST_P(Properties, AChangeThatIsTakenBackIsNotStored) {
  for (const Property* one : stored(*createComplete())) {
    const auto control = createComplete();
    const Keys before = keysOf(saved(*control));
    const Variant value = one->read(*control);
    one->write(*control, otherValue(*one, value));
    one->write(*control, value);
    EXPECT_EQ(keysOf(saved(*control)), before) << one->name;
  }
}

TEST_P(Properties, AChangedValueComesBackFromABag) {
  for (const Property* one : stored(*createComplete())) {
    const auto control = createComplete();
    const Variant value = otherValue(*one, one->read(*control));
    one->write(*control, value);
    const PropertyBag bag = saved(*control);
    ASSERT_NE(bag.find(one->key), nullptr) << one->name;
    const auto fromMemory = create(&bag);
    EXPECT_TRUE(host::sameValue(one->read(*fromMemory), value)) << one->name;
    const PropertyBag text = PropertyBag::fromText(bag.toText());
    const auto fromText = create(&text);
    EXPECT_TRUE(host::sameValue(one->read(*fromText), value)) << one->name;
  }
}

TEST_P(Properties, AllChangedValuesComeBackTogetherAndAreSavedTheSameWay) {
  const auto control = createComplete();
  for (const Property* one : stored(*control)) one->write(*control, otherValue(*one, one->read(*control)));
  const PropertyBag bag = saved(*control);
  const auto restored = create(&bag);
  for (const Property* one : stored(*control)) {
    EXPECT_TRUE(host::sameValue(one->read(*restored), one->read(*control))) << one->name;
  }
  EXPECT_EQ(saved(*restored).toText(), bag.toText());
}

TEST_P(Properties, RestoringFromAnEmptyBagGivesTheReadDefaults) {
  const PropertyBag empty;
  const auto control = create(&empty);
  for (const Property* one : stored(*control)) {
    EXPECT_TRUE(host::sameValue(one->read(*control), one->readDefault.of(*control))) << one->name;
  }
}

// A property whose two defaults differ on purpose is always written when it has the one that it is read with.
TEST_P(Properties, ABagOfDefaultsHasNoKeysButThoseOfUnequalDefaults) {
  const PropertyBag empty;
  const auto control = create(&empty);
  Keys expected;
  for (const Property* one : stored(*control)) {
    if (!host::sameValue(one->readDefault.of(*control), one->writeDefault.of(*control)))
      expected.emplace_back(one->key);
  }
  EXPECT_EQ(keysOf(saved(*control)), expected);
  EXPECT_EQ(expected, GetParam().type.name == "QRNMenuItem" ? Keys{"BackColor"} : Keys{});
}

TEST_P(Properties, ABagWithAValueOfTheWrongTypeIsRefusedByItsKey) {
  for (const Property* one : stored(*createComplete())) {
    PropertyBag bag;
    bag.writeProperty(one->key, one->type == PropertyType::String ? Variant(7) : Variant("seven"));
    try {
      create(&bag);
      ADD_FAILURE() << one->name;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), kInvalidFileFormat) << one->name;
      EXPECT_NE(error.description().find('"' + std::string(one->key) + '"'), std::string::npos)
          << error.description();
    }
  }
}

TEST_P(Properties, AnUnknownKeyInABagIsIgnored) {
  PropertyBag bag;
  bag.writeProperty("NobodyKnowsThis", Variant(7));
  const auto control = create(&bag);
  EXPECT_EQ(saved(*control).find("NobodyKnowsThis"), nullptr);
}

TEST_P(Properties, TheOrdersOfReadingAndWritingNameEveryStoredKeyOnce) {
  const auto control = create();
  const ClassTable& table = control->classTable();
  Keys keys;
  for (const Property* one : stored(*control)) keys.emplace_back(one->key);
  std::sort(keys.begin(), keys.end());
  for (const auto& order : {table.readingOrder, table.writingOrder}) {
    if (order.empty()) continue;
    Keys named(order.begin(), order.end());
    std::sort(named.begin(), named.end());
    EXPECT_EQ(named, keys);
  }
}

TEST_P(Properties, NamesAndIdentifiersAreUnique) {
  const auto control = create();
  Keys names;
  std::vector<std::int32_t> ids;
  for (const Property& one : control->classTable().properties) {
    names.emplace_back(one.name);
    ids.push_back(one.id);
  }
  std::sort(names.begin(), names.end());
  std::sort(ids.begin(), ids.end());
  EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
  EXPECT_EQ(std::adjacent_find(ids.begin(), ids.end()), ids.end());
}

const Class kClasses[] = {
    {"QRNDisplay", make<QRNDisplay>}, {"QRNEdit", make<QRNEdit>}, {"QRNMenuItem", make<QRNMenuItem>}};

std::vector<Case> allCases() {
  std::vector<Case> cases;
  for (const Class& one : kClasses) {
    cases.push_back({one, false});
    cases.push_back({one, true});
  }
  return cases;
}

INSTANTIATE_TEST_SUITE_P(EveryClass, Properties, ::testing::ValuesIn(allCases()), [](const auto& test) {
  return test.param.type.name + (test.param.realised ? "Realised" : "WithoutPeer");
});

}  // namespace
}  // namespace qrn::test
