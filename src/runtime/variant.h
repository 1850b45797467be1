#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "runtime/currency.h"
#include "runtime/date.h"
#include "runtime/decimal.h"
#include "runtime/object.h"

namespace qrn {

struct Empty {
  friend bool operator==(Empty, Empty) = default;
};
struct Null {
  friend bool operator==(Null, Null) = default;
};
/// An error number carried as a value, as a caller passes it for a missing optional argument.
struct ErrorValue {
  std::int32_t number = 0;
  friend bool operator==(ErrorValue, ErrorValue) = default;
};

/// A value of any of the automation types. Text is UTF-8.
class Variant {
 public:
  enum class Type {
    Empty,
    Null,
    Boolean,
    Integer,
    Long,
    Single,
    Double,
    Currency,
    Decimal,
    Date,
    String,
    Object,
    Error
  };

  Variant() = default;
  Variant(Empty) {}
  Variant(Null null) : value_(null) {}
  // Constrained, so that no pointer silently becomes a Boolean.
  template <std::same_as<bool> B>
  Variant(B value) : value_(value) {}
  Variant(std::int16_t value) : value_(value) {}
  Variant(std::int32_t value) : value_(value) {}
  Variant(float value) : value_(value) {}
  Variant(double value) : value_(value) {}
  Variant(Currency value) : value_(value) {}
  Variant(const Decimal& value) : value_(value) {}
  Variant(Date value) : value_(value) {}
  Variant(std::string value) : value_(std::move(value)) {}
  Variant(std::string_view value) : value_(std::string(value)) {}
  Variant(const char* value) : value_(std::string(value)) {}
  Variant(ErrorValue value) : value_(value) {}
  template <std::derived_from<Object> T>
  Variant(std::shared_ptr<T> object) : value_(ObjectPtr(std::move(object))) {}

  Type type() const { return static_cast<Type>(value_.index()); }
  bool isEmpty() const { return type() == Type::Empty; }
  bool isNull() const { return type() == Type::Null; }
  bool isString() const { return type() == Type::String; }
  bool isObject() const { return type() == Type::Object; }

  /// The held value, or null when the variant holds another type.
  template <class T>
  const T* get() const {
    return std::get_if<T>(&value_);
  }

  /// The same type and the same value; objects by identity.
  friend bool operator==(const Variant&, const Variant&) = default;

 private:
  std::variant<Empty, Null, bool, std::int16_t, std::int32_t, float, double, Currency, Decimal, Date,
               std::string, ObjectPtr, ErrorValue>
      value_;
};

/// "Empty", "Null", "Boolean", "Integer", … as callers name the types.
std::string_view typeName(Variant::Type type);

/// Numbers, Boolean, Currency, Decimal, Empty and texts that read as a number; not dates, Null, objects or
/// errors.
bool isNumeric(const Variant& value);

}  // namespace qrn
