#pragma once

#include <memory>
#include <vector>

#include "host/control.h"
#include "host/strip_index.h"

namespace qrn::host {

/// A control that others lie in: it gives them its coordinates and clips them.
class ContainerControl : public Control {
 public:
  ~ContainerControl() override;

  /// In painting order, the last one on top.
  const std::vector<Control*>& contained() const {
    const_cast<ContainerControl*>(this)->settle();
    return inside();
  }
  /// Where the keyboard is, be it by letters of buttons or by the walk; what shows one of its children at a
  /// time answers that one.
  virtual const ContainerControl& keyboardArea() const { return *this; }
  ContainerControl* asContainer() override { return this; }
  /// Somebody has asked where things are since they were last to be arranged.
  bool seen() const { return !unarranged_; }
  /// What has been made of it so far, arranged or not.
  const std::vector<Control*>& inside() const { return contents_ ? contents_->controls : kNothing; }
  void contain(Control& control, UserControl& parent, std::string_view name) {
    put(control, parent, partName(name));
  }
  /// Keeps the names that parts are built in with, of which there are a handful.
  static const std::string& partName(std::string_view name);
  void release(Control& control);
  void bringToFront(Control& control);

  /// Logical pixels of one scale unit of what lies inside.
  virtual Point pixelsPerUnit() const { return {1, 1}; }
  /// How far the inside is scrolled, in pixels.
  virtual Point scrollOffset() const { return {}; }

  /// The place of a contained control in pixels of this one.
  Rect pixelBounds(const Control& child) const { return toPixels(child.bounds()); }
  /// The uppermost visible and enabled one; the mouse goes through a disabled control to what lies behind it.
  Control* childAt(Point pixels) const;
  /// Draws this control and everything in it that has no native widget.
  void paintTree(Surface& surface);

  /// Many controls are about to be moved: while one of these lives, nothing is painted and no native widget
  /// inside is told; at its end all are, at once. The container may go meanwhile.
  class Rearrangement {
   public:
    explicit Rearrangement(ContainerControl& container);
    Rearrangement(const Rearrangement&) = delete;
    Rearrangement& operator=(const Rearrangement&) = delete;
    ~Rearrangement();

   private:
    WeakRef<Control> container_;
  };

 protected:
  // What lies inside has come along.
  void placed() override {
    for (Control* control : inside()) control->placed();
  }

  /// Has what lies inside arranged when somebody asks where it is, be that the painter, the mouse or a native
  /// widget.
  void arrangeLater();
  /// Does now what is still to be done, the outermost first.
  void settle() {
    if (Container()) Container()->settle();
    if (unarranged_) arrange();
  }
  virtual void arrangeInside() {}
  /// Nothing has been arranged yet.
  void startUnarranged() { unarranged_ = true; }

 private:
  friend class Control;
  friend class Controls;
  friend struct LifeCycle;

  /// What lies inside, from scale units to pixels of this one.
  Rect toPixels(const Rect& inside) const;

  void arrange();
  void tellArranged();
  void put(Control& control, UserControl& parent, const std::string& name);

  /// Calls for each child that may reach into what lies between two heights in pixels, in painting order or
  /// the other way round, until it is answered with true.
  template <class Visit>
  void visit(double top, double bottom, bool topmostFirst, Visit&& visit) const;

  /// Where the controls inside lie, and which, is not what it was.
  void forgetStrips() {
    if (contents_) contents_->strips.reset();
  }

  struct Contents {
    std::vector<Control*> controls;
    std::unique_ptr<StripIndex> strips;  // of many, and as long as none has moved, come or gone
  };

  static const std::vector<Control*> kNothing;

  std::int8_t rearranging_ = 0;
  bool unarranged_ = false;
  std::unique_ptr<Contents> contents_;  // none before the first control
};

}  // namespace qrn::host
