#include "base/event.h"

namespace qrn::detail {

void EventSlot::letGo() {
  if (--keepers == 0) delete this;
}

void EventBase::append(EventSlot& slot) {
  EventSlot** end = &first_;
  while (*end) end = &(*end)->next;
  *end = &slot;
  slot.event = this;
  slot.keep();
}

void EventBase::drop(EventSlot& slot) {
  EventSlot** at = &first_;
  while (*at != &slot) at = &(*at)->next;
  *at = slot.next;
  slot.event = nullptr;
  slot.letGo();
}

}  // namespace qrn::detail
