#pragma once

#include "host/class_table.h"

// The words in which a class writes its table.

namespace qrn::host {

namespace detail {

template <class T>
struct MemberOf;
template <class R, class C>
struct MemberOf<R (C::*)() const> {
  using Class = C;
  using Value = std::remove_cvref_t<R>;
};
template <class R, class C>
struct MemberOf<R (C::*)()> : MemberOf<R (C::*)() const> {};
template <class C, class A>
struct MemberOf<void (C::*)(A)> {
  using Class = C;
  using Value = std::remove_cvref_t<A>;
};
template <class C, class V>
struct MemberOf<V C::*> {
  using Class = C;
  using Value = V;
};

template <auto Get>
Variant read(UserControl& control) {
  using Member = MemberOf<decltype(Get)>;
  return toVariant<typename Member::Value>((static_cast<typename Member::Class&>(control).*Get)());
}

template <auto First, auto... Rest>
auto& memberOf(auto& owner) {
  if constexpr (sizeof...(Rest) == 0)
    return owner.*First;
  else
    return memberOf<Rest...>(owner.*First);
}

template <auto First, auto... Rest>
void storeInField(UserControl& control, const Variant& value) {
  using Owner = typename MemberOf<decltype(First)>::Class;
  auto& field = memberOf<First, Rest...>(static_cast<Owner&>(control));
  field = fromVariant<decltype(field)>(value);
}

}  // namespace detail

template <auto Get>
Property readOnly(std::string_view name, std::int32_t id) {
  Property result;
  result.name = name;
  result.id = id;
  result.type = result.storedType = propertyTypeOf<typename detail::MemberOf<decltype(Get)>::Value>();
  result.read = detail::read<Get>;
  return result;
}

/// A property from its two members, which no bag keeps; the type follows from what the first one answers.
template <auto Get, auto Set>
Property property(std::string_view name, std::int32_t id) {
  Property result = readOnly<Get>(name, id);
  result.notify = Notify::OnChange;
  result.write = [](UserControl& control, const Variant& value) {
    using Owner = typename detail::MemberOf<decltype(Set)>::Class;
    using Value = typename detail::MemberOf<decltype(Get)>::Value;
    (static_cast<Owner&>(control).*Set)(fromVariant<Value>(value));
  };
  return result;
}

/// Kept under its own name; a bag's value goes through the setter.
template <auto Get, auto Set>
Property setter(std::string_view name, std::int32_t id, const Default& both) {
  return property<Get, Set>(name, id).stored(name, both);
}

/// Kept under its own name; a bag's value goes straight into the field, which may be a member of a member.
template <auto Get, auto Set, auto... Field>
Property field(std::string_view name, std::int32_t id, const Default& both) {
  return setter<Get, Set>(name, id, both).restoredIntoField(detail::storeInField<Field...>);
}

/// A picture that looks like none when it has no pixels, and then is kept no more than none is.
template <auto Get, auto Set>
Property picture(std::string_view name, std::int32_t id) {
  Property result = setter<Get, Set>(name, id, Variant());
  result.save = [](UserControl& control) {
    Variant value = detail::read<Get>(control);
    const PicturePtr shown = pictureFrom(value);
    return shown && !shown->empty() ? value : Variant();
  };
  return result;
}

}  // namespace qrn::host
