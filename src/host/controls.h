#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/control.h"
#include "runtime/keyed_list.h"

namespace qrn::host {

/// Ends a control's life in order: terminate while its children live, then the children, then the control.
struct Destroyer {
  void operator()(Control* control) const;
};

template <class T>
using Owned = std::unique_ptr<T, Destroyer>;

/// The child controls that a user control made at run time, by name.
class Controls {
 public:
  explicit Controls(UserControl& owner) : owner_(owner) {}
  ~Controls() { clear(); }

  /// Makes a control in a container and takes it through its life cycle up to show.
  /// Errors: 429 for an unknown ProgID, 727 for a name in use.
  Control& add(std::string_view progId, std::string_view name, ContainerControl& container);
  /// The same with a control that exists already, such as one of the standard controls.
  Control& add(Owned<Control> control, std::string_view name, ContainerControl& container);
  /// Errors: 730 for an unknown name.
  void remove(std::string_view name);
  Control* find(std::string_view name) const;
  std::int32_t count() const { return list_.count(); }
  /// Last first.
  void clear();

 private:
  bool ownPart(std::string_view name) const;
  /// Answers the name that the control had.
  std::string end(std::int32_t position);

  UserControl& owner_;
  KeyedList<Owned<Control>> list_;
};

}  // namespace qrn::host
