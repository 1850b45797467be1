#pragma once

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace qrn {

namespace detail {

class EventBase;

/// One listener. Its event, its connection and every raise under way keep it; the last one to let go deletes
/// it.
struct EventSlot {
  virtual ~EventSlot() = default;

  EventSlot* next = nullptr;
  EventBase* event = nullptr;  // null once disconnected
  int keepers = 0;

  void keep() { ++keepers; }
  void letGo();
};

class EventBase {
 public:
  EventBase() = default;
  EventBase(const EventBase&) = delete;
  EventBase& operator=(const EventBase&) = delete;
  ~EventBase() {
    while (first_) drop(*first_);
  }

  bool hasListeners() const { return first_ != nullptr; }

  void drop(EventSlot& slot);

 protected:
  void append(EventSlot& slot);

  /// A listener while it is being called.
  struct Kept {
    explicit Kept(EventSlot& one) : slot(one) { slot.keep(); }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;
    ~Kept() { slot.letGo(); }
    EventSlot& slot;
  };

  /// The listeners of one raise, kept until it is over.
  class Snapshot {
   public:
    explicit Snapshot(EventSlot* first) {
      for (EventSlot* slot = first; slot; slot = slot->next) push(slot);
    }
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;
    ~Snapshot() {
      for (std::size_t i = 0; i < count_; ++i) at(i)->letGo();
    }
    std::size_t count() const { return count_; }
    EventSlot* at(std::size_t i) const { return i < kFew ? few_[i] : more_[i - kFew]; }

   private:
    void push(EventSlot* slot) {
      slot->keep();
      if (count_ < kFew)
        few_[count_] = slot;
      else
        more_.push_back(slot);
      ++count_;
    }

    static constexpr std::size_t kFew = 4;
    EventSlot* few_[kFew];
    std::vector<EventSlot*> more_;
    std::size_t count_ = 0;
  };

  EventSlot* first_ = nullptr;
};

}  // namespace detail

/// Disconnects its listener when it dies. Movable; an empty one does nothing.
class [[nodiscard]] Connection {
 public:
  Connection() = default;
  explicit Connection(detail::EventSlot& slot) : slot_(&slot) { slot.keep(); }
  Connection(Connection&& other) noexcept : slot_(std::exchange(other.slot_, nullptr)) {}
  Connection& operator=(Connection&& other) noexcept {
    if (this != &other) {
      disconnect();
      slot_ = std::exchange(other.slot_, nullptr);
    }
    return *this;
  }
  ~Connection() { disconnect(); }

  void disconnect() {
    detail::EventSlot* slot = std::exchange(slot_, nullptr);
    if (!slot) return;
    if (slot->event) slot->event->drop(*slot);
    slot->letGo();
  }

  bool connected() const { return slot_ && slot_->event; }

 private:
  detail::EventSlot* slot_ = nullptr;
};

/// A typed signal of one thread. It weighs one pointer until somebody listens.
///
/// While it is being raised:
/// - listeners run in the order in which they connected;
/// - one that disconnects, itself or another, is not called any more; the function that is running stays
/// alive
///   until it returns;
/// - one that connects is first called by the next raise;
/// - raising again from a listener runs a whole raise inside;
/// - destroying the event ends the raise after the listener that did it;
/// - an exception of a listener ends the raise and reaches whoever raised.
template <class... Args>
class Event : public detail::EventBase {
 public:
  using Listener = std::function<void(Args...)>;

  Connection connect(Listener listener) {
    auto* slot = new Slot;  // owned by its keepers
    slot->listener = std::move(listener);
    append(*slot);
    return Connection(*slot);
  }

  void raise(Args... args) const {
    if (!first_) return;
    if (!first_->next) {
      const Kept only(*first_);
      static_cast<Slot&>(only.slot).listener(args...);
      return;
    }
    const Snapshot listeners(first_);
    for (std::size_t i = 0; i < listeners.count(); ++i) {
      if (listeners.at(i)->event) static_cast<Slot*>(listeners.at(i))->listener(args...);
    }
  }

 private:
  struct Slot : detail::EventSlot {
    Listener listener;
  };
};

}  // namespace qrn
