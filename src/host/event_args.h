#pragma once

#include <cstdint>
#include <span>
#include <variant>

namespace qrn::host {

/// One argument of an event, by reference: what a listener writes, the next one and the raiser see.
class EventArg {
 public:
  EventArg(bool& value) : value_(&value) {}
  EventArg(std::int16_t& value) : value_(&value) {}
  EventArg(std::int32_t& value) : value_(&value) {}

  /// Calls with a reference to the argument, of whatever type that is.
  template <class Call>
  decltype(auto) visit(Call&& call) const {
    return std::visit([&](auto* value) -> decltype(auto) { return call(*value); }, value_);
  }
  std::int32_t asLong() const {
    return visit([](auto value) { return static_cast<std::int32_t>(value); });
  }
  /// The argument itself; an argument of another type is a mistake of the caller and throws
  /// bad_variant_access.
  template <class T>
  T& as() const {
    return *std::get<T*>(value_);
  }

 private:
  std::variant<bool*, std::int16_t*, std::int32_t*> value_;
};

using EventArgs = std::span<const EventArg>;

}  // namespace qrn::host
