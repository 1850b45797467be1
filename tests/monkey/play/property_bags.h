#pragma once

#include <string>
#include <string_view>

#include "host/property_bag.h"
#include "host/user_control.h"
#include "stage.h"

namespace qrn::monkey {

/// The keys under which two bags hold different values.
inline std::string differences(const host::PropertyBag& bag, const host::PropertyBag& other) {
  std::string keys;
  const auto collect = [&](const host::PropertyBag& one, const host::PropertyBag& two) {
    for (const auto& [key, value] : one.items()) {
      const Variant* found = two.find(key);
      if (!found || !host::sameValue(value, *found)) keys += key + " ";
    }
  };
  collect(bag, other);
  if (keys.empty()) collect(other, bag);
  return keys;
}

/// A control that is made from the saved properties of another one saves the same, but for the value of a
/// row: that depends on the entries of its list, which are not saved.
template <class T>
void checkRestored(Stage& stage, const T& control) {
  host::PropertyBag bag, again;
  control.writeProperties(bag);
  const auto read = host::PropertyBag::fromText(bag.toText());
  const host::Owned<T> restored = host::create<T>(control.site(), &read);
  restored->writeProperties(again);
  const std::string keys = differences(bag, again);
  if (!keys.empty() && keys != "ValueText ") stage.complain("what is restored saves the same", keys);
}

}  // namespace qrn::monkey
