#pragma once

namespace qrn {

class WeakLink;

/// Sits in an object that others refer to without owning it: when the object dies, they all know.
class Anchor {
 public:
  Anchor() = default;
  // A copy of an object is another object: nobody refers to it yet.
  Anchor(const Anchor&) {}
  Anchor& operator=(const Anchor&) { return *this; }  // NOLINT(bugprone-unhandled-self-assignment)
  ~Anchor();

 private:
  friend class WeakLink;
  WeakLink* first_ = nullptr;
};

/// A link of an anchor's chain: costs no allocation, and leaves the chain in constant time.
class WeakLink {
 public:
  WeakLink() = default;
  explicit WeakLink(Anchor* anchor) { attach(anchor); }
  WeakLink(const WeakLink& other) { attach(other.anchor_); }
  WeakLink& operator=(const WeakLink& other) {
    if (this != &other) {
      detach();
      attach(other.anchor_);
    }
    return *this;
  }
  ~WeakLink() { detach(); }

 protected:
  bool alive() const { return anchor_ != nullptr; }
  void attach(Anchor* anchor) {
    anchor_ = anchor;
    if (!anchor) return;
    previous_ = nullptr;
    next_ = anchor->first_;
    if (next_) next_->previous_ = this;
    anchor->first_ = this;
  }
  void detach() {
    if (!anchor_) return;
    (previous_ ? previous_->next_ : anchor_->first_) = next_;
    if (next_) next_->previous_ = previous_;
    anchor_ = nullptr;
  }

 private:
  friend class Anchor;
  Anchor* anchor_ = nullptr;
  WeakLink* previous_ = nullptr;
  WeakLink* next_ = nullptr;
};

inline Anchor::~Anchor() {
  for (WeakLink* link = first_; link; link = link->next_) link->anchor_ = nullptr;
}

/// Refers to an object that has an anchor (`Anchor& anchor()`); null once the object has gone.
template <class T>
class WeakRef : public WeakLink {
 public:
  WeakRef() = default;
  WeakRef(T* target) : WeakLink(target ? &target->anchor() : nullptr), target_(target) {}

  T* get() const { return alive() ? target_ : nullptr; }
  explicit operator bool() const { return alive(); }
  T* operator->() const { return get(); }
  T& operator*() const { return *get(); }

 private:
  T* target_ = nullptr;
};

}  // namespace qrn
