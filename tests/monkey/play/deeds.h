#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "actions.h"
#include "stage.h"

namespace qrn::monkey {

/// What a deed finds in front of it.
struct Scene {
  Stage& stage;
  QRNDisplay* its;     // the event's panel
  std::int32_t index;  // the event's
  std::uint32_t number;

  QRNDisplay& panel() const { return *its; }
  clsQRNCollection& items() const { return its->Items(); }
  PanelItemPtr itsItem() const {
    return index >= 1 && index <= items().Count() ? items().Item(Variant(index)) : nullptr;
  }
  std::shared_ptr<clsQRNParam> itsParameter() const {
    return std::dynamic_pointer_cast<clsQRNParam>(itsItem());
  }
  std::int32_t anyPosition() const {
    return static_cast<std::int32_t>(number % static_cast<std::uint32_t>(items().Count())) + 1;
  }
  qrnValueType anyType() const { return static_cast<qrnValueType>(number % 13); }
};

struct NamedDeed {
  std::string_view name;
  void (*act)(const Scene&);
  Needs needs = Needs::Panel;
};

/// Those that are only possible with a stack.
std::span<const NamedDeed> stackDeeds();

}  // namespace qrn::monkey
