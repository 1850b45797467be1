#pragma once

#include "host/editor.h"
#include "host/user_control.h"

namespace qrn {

/// A small user control that fills its area with one standard control and passes what happens to that one on
/// to the row, which talks to the inner control directly.
class CompositeEditor : public host::UserControl {
 public:
  /// The unit of its own lengths, as numbered for a row, which sets it to its own.
  std::int16_t ScaleMode() const { return scaleMode(); }
  void SetScaleMode(std::int16_t mode);
  /// For the inner control, and for measuring its texts.
  void SetFont(host::FontPtr font);

  virtual host::Editor& inner() = 0;

  host::Control* focusTarget() override { return inner().focusTarget(); }

  void childChanged(host::Control& child) override { Parent()->childChanged(child); }
  void childClicked(host::Control& child) override { Parent()->childClicked(child); }
  void childItemChecked(host::Control& child, std::int16_t item) override {
    Parent()->childItemChecked(child, item);
  }
  void childWindowMade(host::Control& child) override { Parent()->childWindowMade(child); }
  void childKeyDown(host::Control& child, std::int16_t& keyCode, std::int16_t& shift) override {
    Parent()->childKeyDown(child, keyCode, shift);
  }
  void childKeyPress(host::Control& child, std::int16_t& keyAscii) override {
    Parent()->childKeyPress(child, keyAscii);
  }
  void childKeyUp(host::Control& child, std::int16_t& keyCode, std::int16_t& shift) override {
    Parent()->childKeyUp(child, keyCode, shift);
  }
  void childMouseDown(host::Control& child, host::MouseButton button, std::int16_t shift, Point at) override {
    Parent()->childMouseDown(child, button, shift, at);
  }
  void childMouseUp(host::Control& child, host::MouseButton button, std::int16_t shift, Point at) override {
    Parent()->childMouseUp(child, button, shift, at);
  }

 protected:
  void resize() override { arrangeLater(); }
  void arrangeInside() override { inner().Move(0, 0, ScaleWidth(), ScaleHeight()); }
};

}  // namespace qrn
