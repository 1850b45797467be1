#pragma once

#include <QAccessible>
#include <cstddef>
#include <map>

#include "host/accessible.h"
#include "host/platform.h"

namespace qrn::qt {

class QtCanvas;

/// The interfaces of what a canvas paints, each made when a tool first asks for it. They go with the canvas;
/// those of controls that have gone are put away when their number has doubled.
class QtAccessibleParts {
 public:
  explicit QtAccessibleParts(QtCanvas& canvas) : canvas_(canvas) {}
  QtAccessibleParts(const QtAccessibleParts&) = delete;
  QtAccessibleParts& operator=(const QtAccessibleParts&) = delete;
  ~QtAccessibleParts();

  QAccessibleInterface* of(const host::AccessibleNode& node);
  std::size_t count() const { return parts_.size(); }
  /// Tells the tools, of what they have asked for before, that a control changed.
  void tellChange(host::Control& control, host::Aspect aspect);

 private:
  using Key = std::pair<const host::Control*, std::int32_t>;

  QAccessibleInterface* known(const Key& key) const;
  void putAwayDead();

  QtCanvas& canvas_;
  std::map<Key, QAccessible::Id> parts_;
  std::size_t roomyUpTo_ = 64;
};

}  // namespace qrn::qt
