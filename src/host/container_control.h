#pragma once

#include <vector>

#include "host/control.h"

namespace qrn::host {

/// A control that others lie in: it gives them its coordinates and clips them.
class ContainerControl : public Control {
 public:
  ~ContainerControl() override;

  /// In painting order, the last one on top.
  const std::vector<Control*>& contained() const { return contained_; }
  /// Where the keyboard is, be it by letters of buttons or by the walk; what shows one of its children at a
  /// time answers that one.
  virtual const ContainerControl& keyboardArea() const { return *this; }
  void contain(Control& control, UserControl& parent, std::string_view name);
  void release(Control& control);
  void bringToFront(Control& control);

  /// Logical pixels of one scale unit of what lies inside.
  virtual Point pixelsPerUnit() const { return {1, 1}; }
  /// How far the inside is scrolled, in pixels.
  virtual Point scrollOffset() const { return {}; }

  /// The place of a contained control in pixels of this one.
  Rect pixelBounds(const Control& child) const;
  /// The uppermost visible and enabled one; the mouse goes through a disabled control to what lies behind it.
  Control* childAt(Point pixels) const;
  /// Draws this control and everything in it that has no native widget.
  void paintTree(Surface& surface);

 protected:
  // What lies inside has come along.
  void placed() override {
    for (Control* control : contained_) control->placed();
  }

 private:
  std::vector<Control*> contained_;
};

}  // namespace qrn::host
