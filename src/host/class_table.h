#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "host/font.h"
#include "host/picture.h"
#include "host/property_bag.h"
#include "host/user_control.h"
#include "runtime/variant.h"

namespace qrn::host {

enum class PropertyType : std::uint8_t {
  Boolean,
  Integer,
  Long,
  Single,
  Double,
  String,
  Color,
  Font,
  Picture,
  Variant,
  Object
};

// ---- between members and variants ----

template <class T>
constexpr PropertyType propertyTypeOf() {
  using V = std::remove_cvref_t<T>;
  if constexpr (std::is_same_v<V, bool>)
    return PropertyType::Boolean;
  else if constexpr (std::is_same_v<V, std::int16_t>)
    return PropertyType::Integer;
  else if constexpr (std::is_same_v<V, host::Color>)
    return PropertyType::Color;
  else if constexpr (std::is_enum_v<V> || std::is_integral_v<V>)
    return PropertyType::Long;
  else if constexpr (std::is_same_v<V, float>)
    return PropertyType::Single;
  else if constexpr (std::is_same_v<V, double>)
    return PropertyType::Double;
  else if constexpr (std::is_convertible_v<V, std::string_view>)
    return PropertyType::String;
  else if constexpr (std::is_same_v<V, FontPtr>)
    return PropertyType::Font;
  else if constexpr (std::is_same_v<V, PicturePtr>)
    return PropertyType::Picture;
  else if constexpr (std::is_same_v<V, qrn::Variant>)
    return PropertyType::Variant;
  else
    return PropertyType::Object;
}

template <class T>
Variant toVariant(const T& value) {
  if constexpr (propertyTypeOf<T>() == PropertyType::Long || propertyTypeOf<T>() == PropertyType::Color) {
    return Variant(static_cast<std::int32_t>(value));
  } else if constexpr (std::is_same_v<T, FontPtr> || std::is_same_v<T, PicturePtr>) {
    using Target = std::remove_const_t<typename T::element_type>;
    return value ? Variant(std::const_pointer_cast<Target>(value)) : Variant();
  } else {
    return Variant(value);
  }
}

// The member's type from what a bag or a late-bound caller holds. Errors: 13, or 6 out of range.
bool booleanFrom(const Variant& value);
std::int32_t longFrom(const Variant& value);
std::int16_t integerFrom(const Variant& value);
float singleFrom(const Variant& value);
double doubleFrom(const Variant& value);
std::string stringFrom(const Variant& value);
FontPtr fontFrom(const Variant& value);
PicturePtr pictureFrom(const Variant& value);

template <class T>
auto fromVariant(const Variant& value) {
  using V = std::remove_cvref_t<T>;
  constexpr PropertyType type = propertyTypeOf<V>();
  if constexpr (type == PropertyType::Boolean)
    return booleanFrom(value);
  else if constexpr (type == PropertyType::Integer)
    return integerFrom(value);
  else if constexpr (type == PropertyType::Long || type == PropertyType::Color)
    return static_cast<V>(longFrom(value));
  else if constexpr (type == PropertyType::Single)
    return singleFrom(value);
  else if constexpr (type == PropertyType::Double)
    return doubleFrom(value);
  else if constexpr (type == PropertyType::String)
    return stringFrom(value);
  else if constexpr (type == PropertyType::Font)
    return fontFrom(value);
  else if constexpr (type == PropertyType::Picture)
    return pictureFrom(value);
  else
    return value;
}

// ---- the table ----

/// A default: a constant, or what the container wishes.
class Default {
 public:
  Default() = default;
  Default(Variant value) : value_(std::move(value)) {}
  template <class T>
  requires(!std::is_base_of_v<Default, T>) Default(T value) : value_(toVariant(value)) {}
  static Default ambientFont() { return Default(From::Font); }
  static Default ambientBackColor() { return Default(From::BackColor); }
  static Default ambientForeColor() { return Default(From::ForeColor); }

  bool isAmbient() const { return from_ != From::Constant; }
  Variant of(const UserControl& control) const;
  /// A constant as a property of that type has it.
  Default as(PropertyType type) const;

 private:
  enum class From : std::uint8_t { Constant, Font, BackColor, ForeColor };
  explicit Default(From from) : from_(from) {}

  Variant value_;
  From from_ = From::Constant;
};

enum class Notify : std::uint8_t { OnChange, Always, Never };

/// What there is to know of one property.
struct Property {
  using Read = Variant (*)(UserControl&);
  using Write = void (*)(UserControl&, const Variant&);

  std::string_view name;
  std::int32_t id = 0;
  PropertyType type = PropertyType::Variant;
  PropertyType storedType = PropertyType::Variant;  // as what a bag keeps it
  Read read = nullptr;
  Write write = nullptr;    // null: read-only
  Read save = nullptr;      // what a bag keeps; null: what `read` answers
  Write restore = nullptr;  // how a bag's value arrives; null: through `write`
  bool intoField = false;   // a bag's value arrives without notification and without layout
  std::string_view key;     // empty: not stored
  Default readDefault;
  Default writeDefault;
  Default fresh;  // the value of a new instance
  Notify notify = Notify::Never;

  Property stored(std::string_view storedKey, const Default& both) const;
  Property stored(std::string_view storedKey, const Default& onRead, const Default& onWrite) const;
  /// Numbers that a bag keeps in fewer bits than the property has. One that does not fit can't be saved.
  Property storedAs(PropertyType type) const;
  Property startsAs(const Default& value) const;
  Property notifies(Notify when) const;
  Property restoredBy(Write arrives) const;
  /// A bag's value goes straight into the field.
  Property restoredIntoField(Write arrives) const;
};

struct ClassTable {
  std::string_view name;
  std::string_view progId;
  std::vector<Property> properties;
  /// Keys in the order of reading and of writing; empty: the order of the properties.
  std::vector<std::string_view> readingOrder;
  std::vector<std::string_view> writingOrder;
  std::vector<std::string_view> methods;
  std::vector<std::string_view> events;

  const Property* find(std::string_view name) const;
};

/// All or nothing: every value of the bag is checked before the first is applied, and what was applied before
/// a setter refused its value is set back. Unknown keys are ignored. Errors: 321 naming the key and what was
/// wrong with its value.
void restoreProperties(UserControl& control, const PropertyBag& bag);

/// Errors: 6 naming the key, for a number that its stored type can't hold; the bag is then as it was.
void saveProperties(const UserControl& control, PropertyBag& bag);

}  // namespace qrn::host
