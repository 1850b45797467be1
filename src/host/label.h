#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/alignment.h"
#include "host/control.h"

namespace qrn::host {

/// A line of text. It has no window: the user control that holds it paints it, in its own font and colour.
class Label final : public Control {
 public:
  std::string_view typeName() const override { return "Label"; }

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  std::int32_t Alignment() const { return alignment_; }
  void SetAlignment(std::int32_t alignment) { change(alignment_, alignment, Aspect::Look); }
  /// Takes the place of the colour of the control that holds the label; none gives that back.
  void SetForeColor(std::optional<Color> color) { change(foreColor_, color, Aspect::Look); }

  /// The width of the caption in the holder's scale units. Measured once for each text and font.
  double textWidth() const;
  void fontChanged() override { forgetMeasure(); }

  void paint(Surface& surface, Size size) override;

 private:
  static constexpr double kUnknown = -1;

  void forgetMeasure();

  std::string caption_;
  mutable double textWidth_ = kUnknown;
  std::optional<Color> foreColor_;
  std::int32_t alignment_ = kAlignLeft;
};

}  // namespace qrn::host
