#pragma once

#include "base/scoped_flag.h"
#include "host/alignment.h"
#include "host/control.h"

namespace qrn::host {

class UserControl;

/// What the standard controls that edit something have in common. All their state is here; the native widget
/// that the focused one has is only its picture and its keyboard. A setter raises nothing; the entries that
/// start with `user` are what the user did, and tell the control that holds the editor.
class Editor : public Control {
 public:
  Color BackColor() const { return backColor_; }
  void SetBackColor(Color color) { change(backColor_, color, Aspect::Look); }
  Color ForeColor() const { return foreColor_; }
  void SetForeColor(Color color) { change(foreColor_, color, Aspect::Look); }
  std::int32_t Alignment() const { return alignment_; }
  void SetAlignment(std::int32_t alignment) { change(alignment_, alignment, Aspect::Look); }
  /// The holder's font until one is set.
  const FontPtr& Font() const;
  void SetFont(FontPtr font);

  PeerPolicy peerPolicy() const override { return PeerPolicy::WhenFocused; }
  bool acceptsFocus() const override { return Enabled() && Visible() && !leaving_; }
  /// It is about to go, and takes the focus from nobody any more as long as the answer lives.
  [[nodiscard]] ScopedFlag<Editor> leave() { return {*this, &Editor::leaving_}; }

  void paint(Surface& surface, Size size) override;
  void fontChanged() override;

  /// Grey when the editor can't be used.
  Color textColor() const { return enabledUpToSurface() ? foreColor_ : kGrayText; }

 protected:
  explicit Editor(Color backColor = kWindowBackground) : backColor_(backColor) {}
  /// What was measured in the font before is worth nothing now.
  virtual void forgetMeasures();

 private:
  FontPtr font_;
  Color backColor_;
  Color foreColor_ = kWindowText;
  std::int32_t alignment_ = kAlignLeft;
  bool leaving_ = false;
};

}  // namespace qrn::host
