#pragma once

#include <cstdint>
#include <memory>

#include "host/container_control.h"
#include "host/controls.h"
#include "host/site.h"

namespace qrn::host {

class PropertyBag;
struct ClassTable;

/// The base of our own controls.
///
/// Life: constructed, `initialize`, name and parent, `initProperties` or `readProperties`, first `resize`,
/// `show`; on the way out `terminate`, while the children still live. `show` and `hide` follow the control's
/// own `Visible` and never a peer, a viewport or an ancestor.
class UserControl : public ContainerControl, public Site {
 public:
  UserControl();
  ~UserControl() override;

  /// The class's own description of itself.
  virtual const ClassTable& classTable() const = 0;

  Site& site() const { return *site_; }
  virtual Controls& controls();
  Input& input();

  double ScaleWidth() const { return pixelSize().width / pixelsPerUnit().x; }
  double ScaleHeight() const { return pixelSize().height / pixelsPerUnit().y; }
  /// In the control's own font and scale units.
  double TextWidth(std::string_view text) const;
  double TextHeight(std::string_view text) const;
  FontMetrics& fontMetrics() const;
  const FontPtr& font() const { return font_; }
  Color backColor() const { return backColor_; }
  Color foreColor() const { return foreColor_; }
  std::int16_t scaleMode() const { return scaleMode_; }
  Point pixelsPerUnit() const final;

  /// Saves the properties that differ from their defaults.
  virtual void writeProperties(PropertyBag& bag) const;

  // A child's site is its user control, which has nothing to do with its properties.
  Platform& platform() const override { return site_->platform(); }
  Ambient ambient() const final;
  bool userMode() const final { return site_->userMode(); }
  void propertyChanged(UserControl& /*child*/, std::string_view /*key*/) final {}

  UserControl* asUserControl() override { return this; }
  PeerPolicy peerPolicy() const override { return Container() ? PeerPolicy::Never : PeerPolicy::Surface; }

  /// Keys go to our own controls rather than to a dialog around them.
  std::intptr_t windowMessage(const Message& message) override;

  // ---- input, in pixels of this control ----
  virtual void mouseDown(MouseButton, std::int16_t /*shift*/, Point) {}
  virtual void mouseMove(std::int16_t /*buttons*/, std::int16_t /*shift*/, Point) {}
  virtual void mouseUp(MouseButton, std::int16_t /*shift*/, Point) {}
  /// The mouse is neither over this control any more nor over a child that is no user control.
  virtual void mouseLeft() {}
  /// The second press of a quick double click; the release follows. A press like any other unless told
  /// otherwise.
  virtual void doubleClick(Point at) { mouseDown(MouseButton::Left, 0, at); }
  virtual void keyDown(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
  virtual void keyPress(std::int16_t& /*keyAscii*/) {}
  virtual void keyUp(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}

  // ---- what the user does with a child that is no user control; a point is in pixels of the child ----
  virtual void childChanged(Control&) {}
  virtual void childClicked(Control&) {}
  virtual void childItemChecked(Control&, std::int16_t /*item*/) {}
  /// A part, or something inside it, may need another size from now on than it did when it was measured.
  virtual void childMeasureChanged(Control& /*part*/) { tellMeasureChanged(); }
  void tellMeasureChanged() {
    if (Parent()) Parent()->childMeasureChanged(*this);
  }
  /// The child's window has been made, and can be hooked.
  virtual void childWindowMade(Control&) {}
  virtual void childGotFocus(Control&) {}
  virtual void childLostFocus(Control&) {}
  virtual void childMouseDown(Control&, MouseButton, std::int16_t /*shift*/, Point) {}
  virtual void childMouseMove(Control&, std::int16_t /*buttons*/, std::int16_t /*shift*/, Point) {}
  virtual void childMouseUp(Control&, MouseButton, std::int16_t /*shift*/, Point) {}
  virtual void childDoubleClick(Control& child, Point at) { childMouseDown(child, MouseButton::Left, 0, at); }
  virtual void childKeyDown(Control&, std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
  virtual void childKeyPress(Control&, std::int16_t& /*keyAscii*/) {}
  virtual void childKeyUp(Control&, std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
  /// A tool presses a picture that this control has made a button of.
  virtual void childPressed(Control&) {}
  /// What this control adds to the facts of one inside it, at any depth.
  virtual void tellFactsOf(const Control& /*inside*/, AccessibleFacts&) const {}

  /// The control that Tab (or Shift+Tab) goes to from one inside this control, or null at the end. `from` is
  /// null when the focus comes from outside.
  virtual Control* nextTabStop(Control* /*from*/, bool /*forward*/) { return nullptr; }

 protected:
  friend class Controls;
  friend struct LifeCycle;

  virtual void initialize() {}
  /// A new instance; the base takes font and colours from the container.
  virtual void initProperties();
  virtual void readProperties(const PropertyBag& bag);
  virtual void resize() {}
  virtual void show() {}
  virtual void hide() {}
  virtual void terminate() {}
  /// A control of the collection has been removed by its name, whoever did it.
  virtual void controlRemoved(std::string_view /*name*/) {}

  /// Tells the site, which may do anything: answers whether the control is still there.
  bool propertyChanged(std::string_view key) { return Parent() || tellSite(key); }

  void setFont(FontPtr font);
  void setBackColor(Color color);
  void setForeColor(Color color);
  void setScaleMode(std::int16_t mode) { scaleMode_ = mode; }

  void moved(const Rect& before, const Rect& now) override;
  void visibilityChanged() override;
  void gotFocus() override;
  void lostFocus() override;

 private:
  bool tellSite(std::string_view key);

  Site* site_ = nullptr;
  std::unique_ptr<Controls> controls_;
  std::unique_ptr<Input> input_;
  FontPtr font_;
  mutable FontMetrics* metrics_ = nullptr;
  Color backColor_ = kButtonFace;
  Color foreColor_ = kButtonText;
  std::int16_t scaleMode_ = 3;
  bool alive_ = false;    // between initialize and terminate
  bool running_ = false;  // from the first resize on
};

/// The steps of a control's life, in their fixed order.
struct LifeCycle {
  static void start(UserControl& control, Site& site, const PropertyBag* bag);
  /// The name lives as long as the control.
  static void startChild(Control& control, UserControl& parent, const std::string& name,
                         ContainerControl& container);
  static void end(Control& control);

 private:
  static void enter(UserControl& control);
};

/// Makes a control on a site, from a property bag or as a new instance.
template <class T>
Owned<T> create(Site& site, const PropertyBag* bag = nullptr) {
  Owned<T> control(new T);
  LifeCycle::start(*control, site, bag);
  return control;
}

}  // namespace qrn::host
