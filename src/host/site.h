#pragma once

#include <string_view>

#include "host/color.h"
#include "host/font.h"

namespace qrn::host {

class Platform;
class UserControl;

/// What the container wishes its controls to look like.
struct Ambient {
  bool userMode = true;  // false in a designer
  FontPtr font;          // null: the platform's own
  Color backColor = kButtonFace;
  Color foreColor = kButtonText;
};

/// What a host gives a control that it makes. It must outlive the control.
class Site {
 public:
  virtual ~Site() = default;
  virtual Platform& platform() const = 0;
  virtual Ambient ambient() const = 0;
  /// False in a designer: of the ambient properties the one that is asked for again and again.
  virtual bool userMode() const { return ambient().userMode; }
  /// A persisted property has changed.
  virtual void propertyChanged(UserControl& /*control*/, std::string_view /*key*/) {}
};

}  // namespace qrn::host
