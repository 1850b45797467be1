#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "buttons/QRNMenuItem.h"
#include "display/QRNDisplay.h"
#include "host/class_table.h"
#include "images/built_in_pictures.h"
#include "library/library.h"
#include "row/QRNEdit.h"
#include "runtime/errors.h"
#include "stack/QRNDisplayStack.h"

// What holds for every property of every class, from what the class's table says of it. The tests themselves
// are in property_tests.inc; the suite of each platform includes them once.
namespace qrn::test {

using host::Notify;
using host::Property;
using host::PropertyBag;
using host::PropertyType;
using host::UserControl;

using Keys = std::vector<std::string>;

/// What a test writes down of the notifications, with the ambient properties there to be set.
struct ListeningSite final : host::Site {
  explicit ListeningSite(host::Platform& platform) : machine(platform) {}
  host::Platform& platform() const override { return machine; }
  host::Ambient ambient() const override { return ambientProperties; }
  void propertyChanged(UserControl&, std::string_view key) override {
    changedKeys.emplace_back(key);
    if (whenChanged) whenChanged();
  }

  host::Platform& machine;
  host::Ambient ambientProperties;
  Keys changedKeys;
  std::function<void()> whenChanged;
};

struct Class {
  std::string name;
  host::Owned<UserControl> (*create)(host::Site&, const PropertyBag*);
  /// Every stored key, in the order of reading and of writing.
  Keys read;
  Keys written;
  /// The keys whose values go straight into a field.
  Keys intoField;
  /// The keys that a bag keeps in 16 bits though the property has 32.
  Keys shortened;
  /// The keys of a new instance: what it has does not come from the bag's defaults.
  Keys ofNew;
  /// How many of the fields move something at least, when they are written.
  int moving = 4;
  /// Gives a new instance what its properties are about.
  void (*complete)(UserControl&) = nullptr;
};

using MakePlatform = std::unique_ptr<host::Platform> (*)();

struct Case {
  const Class* type;
  MakePlatform platform;
  bool realised;
};

class Properties : public testing::TestWithParam<Case> {
 protected:
  Properties() : platform(GetParam().platform()), site(*platform) {
    registerControls();
    site.ambientProperties.font = std::make_shared<host::Font>("Ambient", 10);
  }

  const Class& type() const { return *GetParam().type; }

  host::Owned<UserControl> create(const PropertyBag* bag = nullptr) {
    auto control = type().create(site, bag);
    realiseIfWished(*control);
    return control;
  }

  host::Owned<UserControl> createComplete() {
    auto control = create();
    if (type().complete) type().complete(*control);
    realiseIfWished(*control);
    site.changedKeys.clear();
    return control;
  }

  // With a value of its own in every property, and the wrong one in none.
  host::Owned<UserControl> createChanged() {
    auto control = createComplete();
    for (const Property* one : stored(*control)) one->write(*control, otherValue(*one, one->read(*control)));
    site.changedKeys.clear();
    return control;
  }

  // Everything in it gets its native widget as well, the editors of a row among them.
  void realiseIfWished(UserControl& control) {
    if (!GetParam().realised) return;
    control.realise();
    EXPECT_NE(control.peer(), nullptr);
    realiseInside(control);
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

  static Variant wrongValue(const Property& property) {
    return property.type == PropertyType::String ? Variant(7) : Variant("seven");
  }

  static Keys keysOf(const PropertyBag& bag) {
    Keys keys;
    for (const auto& item : bag.items()) keys.push_back(item.key);
    return keys;
  }

  static PropertyBag saved(const UserControl& control) {
    PropertyBag bag;
    control.writeProperties(bag);
    return bag;
  }

  /// What a caller hears of one write that changes something.
  static Keys notifications(const Property& property) {
    if (property.notify == Notify::Never) return {};
    // A row's value has two faces, and who watches either hears of it.
    if (property.name == "Value" || property.name == "ValueText") return {"Value", "ValueText"};
    return {std::string(property.key)};
  }

  static std::string refusal(const std::function<void()>& action, std::int32_t number) {
    try {
      action();
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), number) << error.description();
      return error.description();
    }
    return "nothing was refused";
  }

  static std::string quotedKey(const Property& property) { return '"' + std::string(property.key) + '"'; }

  static bool contains(const Keys& keys, std::string_view key) {
    return std::find(keys.begin(), keys.end(), key) != keys.end();
  }

  /// Where all the parts of a control lie, and which of them can be seen.
  static std::vector<std::pair<Rect, bool>> placesIn(const host::ContainerControl& container) {
    std::vector<std::pair<Rect, bool>> places;
    for (const host::Control* part : container.contained()) {
      places.emplace_back(part->bounds(), part->Visible());
      if (const auto* inner = dynamic_cast<const host::ContainerControl*>(part)) {
        const auto more = placesIn(*inner);
        places.insert(places.end(), more.begin(), more.end());
      }
    }
    return places;
  }

  std::unique_ptr<host::Platform> platform;
  ListeningSite site;

 private:
  // Down, as some are limited upwards; but not below nothing.
  static std::int32_t otherNumber(std::int32_t number) { return number == 0 ? 1 : number - 1; }

  static void realiseInside(host::ContainerControl& container) {
    for (host::Control* part : container.contained()) {
      if (part->peerPolicy() != host::PeerPolicy::Never) part->realise();
      if (auto* inner = dynamic_cast<host::ContainerControl*>(part)) realiseInside(*inner);
    }
  }
};

/// Every class, with and without peers.
std::vector<Case> casesOn(MakePlatform platform);
std::string caseName(const testing::TestParamInfo<Case>& test);

}  // namespace qrn::test
