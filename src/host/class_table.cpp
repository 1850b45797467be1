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

// Says which key a value was for that is refused.
template <class Action>
void forKey(const ClassTable& table, std::string_view key, Action&& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    raiseRunTimeError(kInvalidFileFormat, table.name,
                      "Property \"" + std::string(key) + "\": " + error.description());
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

Property Property::stored(std::string_view storedKey, const Default& both) const {
  return stored(storedKey, both, both);
}

Property Property::stored(std::string_view storedKey, Default onRead, Default onWrite) const {
  Property result = *this;
  result.key = storedKey;
  result.readDefault = onRead;
  result.writeDefault = std::move(onWrite);
  result.fresh = std::move(onRead);
  return result;
}

Property Property::startsAs(Default value) const {
  Property result = *this;
  result.fresh = std::move(value);
  return result;
}

Property Property::notifies(Notify when) const {
  Property result = *this;
  result.notify = when;
  return result;
}

const Property* ClassTable::find(std::string_view wanted) const {
  for (const Property& one : properties) {
    if (text::sameName(one.name, wanted)) return &one;
  }
  return nullptr;
}

void restoreProperties(UserControl& control, const PropertyBag& bag) {
  struct Step {
    const Property* property;
    Variant value;
  };
  std::vector<Step> steps;
  const ClassTable& table = control.classTable();
  for (const Property* property : inOrder(table, table.readingOrder)) {
    const Variant* kept = bag.find(property->key);
    forKey(table, property->key, [&] {
      steps.push_back({property, kept ? checked(property->type, *kept) : property->readDefault.of(control)});
    });
  }
  for (const Step& step : steps) {
    const Property::Write apply = step.property->restore ? step.property->restore : step.property->write;
    forKey(table, step.property->key, [&] { apply(control, step.value); });
  }
}

void saveProperties(const UserControl& control, PropertyBag& bag) {
  const ClassTable& table = control.classTable();
  for (const Property* property : inOrder(table, table.writingOrder)) {
    // Reading changes nothing that counts; members that read through a child are not const.
    const Variant value = property->read(const_cast<UserControl&>(control));
    bag.writeProperty(property->key, value, property->writeDefault.of(control));
  }
}

}  // namespace qrn::host
