#include "platform/common/window_table.h"

#include <algorithm>

namespace qrn {
namespace {

// Index in the low bits, generation above; a handle stays a positive 32-bit number.
constexpr int kIndexBits = 20;
constexpr std::uint32_t kIndexMask = (1u << kIndexBits) - 1;
constexpr std::uint32_t kGenerationMask = 0x7FF;

thread_local std::vector<WindowTable*> tables;

}  // namespace

WindowTable::WindowTable() { tables.push_back(this); }

WindowTable::~WindowTable() { std::erase(tables, this); }

WindowTable::Slot* WindowTable::find(host::WindowHandle window) {
  const auto bits = static_cast<std::uint32_t>(window);
  const std::uint32_t index = (bits & kIndexMask) - 1;
  if (window <= 0 || static_cast<host::WindowHandle>(bits) != window || index >= slots_.size())
    return nullptr;
  Slot& slot = slots_[index];
  return slot.owner && slot.generation == bits >> kIndexBits ? &slot : nullptr;
}

host::WindowHandle WindowTable::create(host::WindowOwner& owner) {
  std::uint32_t index = static_cast<std::uint32_t>(slots_.size());
  if (free_.empty()) {
    slots_.emplace_back();
  } else {
    index = free_.back();
    free_.pop_back();
  }
  Slot& slot = slots_[index];
  slot.owner = &owner;
  slot.procedure = reinterpret_cast<std::intptr_t>(&ownProcedure);
  return handleOf(index);
}

host::WindowHandle WindowTable::handleOf(std::uint32_t index) const {
  return static_cast<host::WindowHandle>(slots_[index].generation << kIndexBits | (index + 1));
}

void WindowTable::destroy(host::WindowHandle window) {
  Slot* slot = find(window);
  if (!slot) return;
  const std::uint32_t next = (slot->generation + 1) & kGenerationMask;
  *slot = Slot{};
  slot->generation = next;
  free_.push_back(static_cast<std::uint32_t>(slot - slots_.data()));
}

std::intptr_t* WindowTable::longOf(Slot& slot, int index) {
  switch (index) {
    case host::kGwlWndProc: return &slot.procedure;
    case host::kGwlStyle: return &slot.style;
    case host::kGwlUserData: return &slot.userData;
    default: return nullptr;
  }
}

std::intptr_t WindowTable::getLong(host::WindowHandle window, int index) {
  Slot* slot = find(window);
  const std::intptr_t* value = slot ? longOf(*slot, index) : nullptr;
  if (!value) return 0;
  return index == host::kGwlStyle ? slot->owner->windowStyle(*value) : *value;
}

std::intptr_t WindowTable::setLong(host::WindowHandle window, int index, std::intptr_t value) {
  Slot* slot = find(window);
  std::intptr_t* target = slot ? longOf(*slot, index) : nullptr;
  if (!target) return 0;
  const std::intptr_t before = getLong(window, index);
  *target = value;
  if (index == host::kGwlStyle) slot->owner->windowStyleChanged(value);
  return before;
}

std::intptr_t WindowTable::callProcedure(std::intptr_t procedure, host::WindowHandle window,
                                         const host::Message& message) {
  if (procedure == 0) return 0;
  if (procedure == reinterpret_cast<std::intptr_t>(&ownProcedure)) {
    const Slot* slot = find(window);
    return slot ? slot->owner->windowMessage(message) : 0;
  }
  return reinterpret_cast<Procedure>(procedure)(window, message.number, message.wParam, message.lParam);
}

// For whoever calls the bare function: it can't know its table, so the last one of the thread answers.
std::intptr_t WindowTable::ownProcedure(host::WindowHandle window, std::uint32_t number, std::intptr_t wParam,
                                        std::intptr_t lParam) {
  Slot* slot = tables.empty() ? nullptr : tables.back()->find(window);
  return slot ? slot->owner->windowMessage({number, wParam, lParam}) : 0;
}

std::intptr_t WindowTable::property(host::WindowHandle window, std::string_view name) {
  const Slot* slot = find(window);
  if (!slot) return 0;
  for (const auto& [known, value] : slot->properties) {
    if (known == name) return value;
  }
  return 0;
}

void WindowTable::setProperty(host::WindowHandle window, std::string_view name, std::intptr_t value) {
  Slot* slot = find(window);
  if (!slot) return;
  removeProperty(window, name);
  slot->properties.emplace_back(name, value);
}

std::intptr_t WindowTable::removeProperty(host::WindowHandle window, std::string_view name) {
  const std::intptr_t value = property(window, name);
  if (Slot* slot = find(window))
    std::erase_if(slot->properties, [&](const auto& p) { return p.first == name; });
  return value;
}

host::WindowHandle WindowTable::parent(host::WindowHandle window) {
  const Slot* slot = find(window);
  return slot ? slot->owner->parentWindow() : 0;
}

host::WindowHandle WindowTable::findByTitle(std::string_view title) {
  // By index: an owner that is asked for its parent may make windows.
  for (std::uint32_t i = 0; i < slots_.size(); ++i) {
    const host::WindowOwner* owner = slots_[i].owner;
    if (owner && owner->windowTitle() == title && owner->parentWindow() == 0) return handleOf(i);
  }
  return 0;
}

bool WindowTable::isEnabled(host::WindowHandle window) {
  const Slot* slot = find(window);
  return slot && slot->owner->windowEnabled();
}

void WindowTable::invalidate(host::WindowHandle window) {
  if (Slot* slot = find(window)) slot->owner->windowInvalidated();
}

void WindowTable::sendToAll(const host::Message& message) {
  // By index and with the handle of the moment: an owner may make windows, or end them.
  for (std::uint32_t i = 0; i < slots_.size(); ++i) {
    if (slots_[i].owner && slots_[i].owner->parentWindow() == 0) send(handleOf(i), message);
  }
}

std::intptr_t WindowTable::send(host::WindowHandle window, const host::Message& message) {
  const Slot* slot = find(window);
  return slot ? callProcedure(slot->procedure, window, message) : 0;
}

void WindowTable::post(host::WindowHandle window, const host::Message& message) {
  posted_.emplace_back(window, message);
  if (posted_.size() == 1) wake();
}

void WindowTable::deliverPosted() {
  for (std::size_t left = posted_.size(); left > 0 && !posted_.empty(); --left) {
    const auto [window, message] = posted_.front();
    posted_.pop_front();
    // More is waiting: the loop has to come back even if a procedure throws or runs a loop of its own.
    if (!posted_.empty()) wake();
    send(window, message);
  }
}

}  // namespace qrn
