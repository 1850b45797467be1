#include "host/class_table.h"

#include "base/text.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"

namespace qrn::host {

bool booleanFrom(const Variant& value) { return CBool(value); }
std::int32_t longFrom(const Variant& value) { return CLng(value); }
std::int16_t integerFrom(const Variant& value) { return CInt(value); }
float singleFrom(const Variant& value) { return CSng(value); }
double doubleFrom(const Variant& value) { return CDbl(value); }
std::string stringFrom(const Variant& value) { return CStr(value); }

namespace {

// Nothing, or an object of the wanted class.
template <class T>
std::shared_ptr<const T> objectFrom(const Variant& value) {
  if (value.isEmpty()) return nullptr;
  const ObjectPtr* object = value.get<ObjectPtr>();
  if (!object) raiseRunTimeError(kTypeMismatch);
  auto wanted = std::dynamic_pointer_cast<const T>(*object);
  if (*object && !wanted) raiseRunTimeError(kTypeMismatch);
  return wanted;
}

bool isText(PropertyType type) { return type == PropertyType::String; }

// The value in the form in which the property takes it.
Variant checked(PropertyType type, const Variant& value) {
  // A number for a text, or the other way round, is a mistake in the bag and no conversion.
  if (type != PropertyType::Variant && isText(type) != value.isString()) raiseRunTimeError(kTypeMismatch);
  switch (type) {
    case PropertyType::Boolean: return booleanFrom(value);
    case PropertyType::Integer: return integerFrom(value);
    case PropertyType::Long:
    case PropertyType::Color: return longFrom(value);
    case PropertyType::Single: return singleFrom(value);
    case PropertyType::Double: return doubleFrom(value);
    case PropertyType::Font: return toVariant(fontFrom(value));
    case PropertyType::Picture: return toVariant(pictureFrom(value));
    default: return value;
  }
}

std::string forKey(std::string_view key, const RunTimeError& error) {
  return "Property \"" + std::string(key) + "\": " + error.description();
}

// Says which key a value was for that is refused.
template <class Action>
void readingKey(const ClassTable& table, std::string_view key, Action&& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    raiseRunTimeError(kInvalidFileFormat, table.name, forKey(key, error));
  }
}

std::vector<const Property*> inOrder(const ClassTable& table, const std::vector<std::string_view>& keys) {
  std::vector<const Property*> result;
  const auto add = [&](auto&& fits) {
    for (const Property& one : table.properties) {
      if (!one.key.empty() && fits(one)) result.push_back(&one);
    }
  };
  if (keys.empty()) add([](const Property&) { return true; });
  for (const std::string_view key : keys) add([key](const Property& one) { return one.key == key; });
  return result;
}

}  // namespace

FontPtr fontFrom(const Variant& value) { return objectFrom<Font>(value); }
PicturePtr pictureFrom(const Variant& value) { return objectFrom<Picture>(value); }

Variant Default::of(const UserControl& control) const {
  switch (from_) {
    case From::Font: {
      const FontPtr font = control.site().ambient().font;
      return toVariant(font ? font : control.platform().defaultFont());
    }
    case From::BackColor: return toVariant(control.site().ambient().backColor);
    case From::ForeColor: return toVariant(control.site().ambient().foreColor);
    default: return value_;
  }
}

Default Default::as(PropertyType type) const {
  Default result = *this;
  if (from_ == From::Constant) result.value_ = checked(type, value_);
  return result;
}

Property Property::stored(std::string_view storedKey, const Default& both) const {
  return stored(storedKey, both, both);
}

Property Property::stored(std::string_view storedKey, const Default& onRead, const Default& onWrite) const {
  Property result = *this;
  result.key = storedKey;
  result.readDefault = result.fresh = onRead.as(type);
  result.writeDefault = onWrite.as(type);
  return result;
}

Property Property::storedAs(PropertyType kept) const {
  Property result = *this;
  result.storedType = kept;
  return result;
}

Property Property::startsAs(const Default& value) const {
  Property result = *this;
  result.fresh = value.as(type);
  return result;
}

Property Property::notifies(Notify when) const {
  Property result = *this;
  result.notify = when;
  return result;
}

Property Property::restoredBy(Write arrives) const {
  Property result = *this;
  result.restore = arrives;
  return result;
}

Property Property::restoredIntoField(Write arrives) const {
  Property result = restoredBy(arrives);
  result.intoField = true;
  return result;
}

const Property* ClassTable::find(std::string_view wanted) const {
  for (const Property& one : properties) {
    if (text::sameName(one.name, wanted)) return &one;
  }
  return nullptr;
}

namespace {

struct Step {
  const Property* property;
  Variant value;
};

std::vector<Step> stepsFrom(const UserControl& control, const PropertyBag& bag) {
  std::vector<Step> steps;
  const ClassTable& table = control.classTable();
  for (const Property* property : inOrder(table, table.readingOrder)) {
    const Variant* kept = bag.find(property->key);
    readingKey(table, property->key, [&] {
      steps.push_back(
          {property, kept ? checked(property->storedType, *kept) : property->readDefault.of(control)});
    });
  }
  return steps;
}

std::vector<Step> currentValues(UserControl& control, const std::vector<Step>& steps) {
  std::vector<Step> result;
  result.reserve(steps.size());
  for (const Step& step : steps) result.push_back({step.property, step.property->read(control)});
  return result;
}

void apply(UserControl& control, const Step& step) {
  const Property::Write arrives = step.property->restore ? step.property->restore : step.property->write;
  arrives(control, step.value);
}

// What a bag keeps of a value or of its default.
Variant asStored(const Property& property, const Variant& value) {
  return property.storedType == property.type ? value : checked(property.storedType, value);
}

}  // namespace

void restoreProperties(UserControl& control, const PropertyBag& bag) {
  const std::vector<Step> steps = stepsFrom(control, bag);
  const std::vector<Step> before = currentValues(control, steps);
  try {
    for (const Step& step : steps)
      readingKey(control.classTable(), step.property->key, [&] { apply(control, step); });
  } catch (...) {
    // All of them, as one setter may well have changed what another property reads.
    for (const Step& step : before) ignoringErrors([&] { apply(control, step); });
    throw;
  }
}

void saveProperties(const UserControl& control, PropertyBag& bag) {
  struct Entry {
    std::string_view key;
    Variant value;
    Variant whenMissing;
  };
  std::vector<Entry> entries;
  const ClassTable& table = control.classTable();
  // Reading changes nothing that counts; members that read through a child are not const.
  auto& source = const_cast<UserControl&>(control);
  for (const Property* property : inOrder(table, table.writingOrder)) {
    try {
      const Variant value = (property->save ? property->save : property->read)(source);
      entries.push_back({property->key, asStored(*property, value),
                         asStored(*property, property->writeDefault.of(control))});
    } catch (const RunTimeError& error) {
      raiseRunTimeError(error.number(), table.name, forKey(property->key, error));
    }
  }
  for (const Entry& entry : entries) bag.writeProperty(entry.key, entry.value, entry.whenMissing);
}

}  // namespace qrn::host
