#include <algorithm>
#include <vector>

#include "base/text.h"
#include "buttons/QRNMenuItem.h"
#include "host/alignment.h"
#include "runtime/rounding.h"

namespace qrn {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (true) {
    const auto end = text.find(kLineEnd);
    lines.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return lines;
    text.remove_prefix(end + kLineEnd.size());
  }
}

// How much of a paragraph goes into one line, in code points: a proportional estimate first, then back to the
// last blank.
template <class TextWidth>
std::size_t lineLength(std::string_view paragraph, double width, const TextWidth& textWidth) {
  std::size_t n = text::length(paragraph);
  double w = textWidth(paragraph);
  while (w > width && n > 0) {
    n = static_cast<std::size_t>(static_cast<double>(n) * width / w);
    w = textWidth(text::slice(paragraph, 0, n));
  }
  n = std::max<std::size_t>(n, 1);
  const std::string_view reach = text::slice(paragraph, 0, n + 1);
  const auto blank = reach.rfind(' ');
  // The 1-based position of the blank has to be above 1.
  if (blank != std::string_view::npos && blank > 0) n = text::length(reach.substr(0, blank));
  return n;
}

}  // namespace

std::string QRNMenuItem::WrapCaption(std::string caption, double width) const {
  if (width <= 0) return caption;
  const auto textWidth = [this](std::string_view text) { return TextWidth(text); };
  std::string result;
  for (std::string_view paragraph : linesOf(caption)) {
    paragraph = text::trimmed(paragraph, " ");
    while (!paragraph.empty()) {
      result += kLineEnd;
      if (textWidth(paragraph) <= width) {
        result += paragraph;
        break;
      }
      const std::string_view line = text::slice(paragraph, 0, lineLength(paragraph, width, textWidth));
      result += line;
      paragraph.remove_prefix(line.size());
      paragraph.remove_prefix(std::min(paragraph.find_first_not_of(' '), paragraph.size()));
    }
  }
  return result.empty() ? result : result.substr(kLineEnd.size());
}

const host::PicturePtr& QRNMenuItem::shownIcon() const {
  return Enabled() || !iconDisabled_ ? icon_ : iconDisabled_;
}

void QRNMenuItem::paint(host::Surface& surface, Size size) {
  const Rect whole{0, 0, size.width, size.height};
  surface.fill(whole, BackColor());
  if (borderStyle_ != 1) return paintInside(surface, size);
  // The border belongs to the window; everything else lies within.
  surface.frame(whole, host::systemColor(host::SystemColor::WindowFrame));
  surface.enter({1, 1, size.width - 2, size.height - 2});
  paintInside(surface, {size.width - 2, size.height - 2});
  surface.leave();
}

void QRNMenuItem::paintInside(host::Surface& surface, Size size) {
  const double lineHeight = TextHeight("|");
  const double iconSlotWidth = paintIcon(surface, size, lineHeight);
  paintCaption(surface, size, iconSlotWidth, lineHeight);
  paintFrame(surface, size);
  paintFocus(surface, size);
}

double QRNMenuItem::paintIcon(host::Surface& surface, Size size, double lineHeight) {
  const host::PicturePtr& icon = shownIcon();
  if (!icon || icon->width() <= 0 || icon->height() <= 0) return 0;
  const double width = icon->width(), height = icon->height();
  double x = (size.width - width) / 2;
  if (iconAlignment_ == host::kAlignLeft)
    x = margin_;
  else if (iconAlignment_ == host::kAlignRight)
    x = size.width - margin_ - width;
  const double y = (size.height - height) / 2;
  surface.picture({x, y}, *icon);
  if (!Enabled() && autoShadeIcon_) {
    // Lifts every channel to between 128 and 224: a light grey shadow of the icon.
    surface.fill({x, y, width, height}, host::rgb(128, 128, 128), host::DrawMode::MergePen);
    surface.fill({x, y, width, height}, host::rgb(224, 224, 224), host::DrawMode::MaskPen);
  }
  return width + std::max((lineHeight + 2) / 3, width / 4);
}

void QRNMenuItem::paintCaption(host::Surface& surface, Size size, double iconSlotWidth, double lineHeight) {
  if (caption_.empty()) return;
  const std::string wrapped = WrapCaption(caption_, size.width - iconSlotWidth - 2.0 * margin_);
  const auto lines = linesOf(wrapped);
  double y = (size.height - lineHeight * static_cast<double>(lines.size())) / 2;

  const double besideIcon =
      iconAlignment_ == host::kAlignLeft || iconAlignment_ == host::kAlignRight ? iconSlotWidth : 0;
  const bool iconLeft = iconAlignment_ == host::kAlignLeft;
  double start = margin_ + (iconLeft ? besideIcon : 0);
  double factor = 0;
  if (alignment_ == host::kAlignRight) {
    start = size.width - margin_ - (iconLeft ? 0 : besideIcon);
    factor = 1;
  } else if (alignment_ == host::kAlignCentre) {
    start = (size.width - besideIcon) / 2 + (iconLeft ? besideIcon : 0);
    factor = 0.5;
  }
  start = roundHalfEven(start);
  const host::Color color = Enabled() ? ForeColor() : host::kGrayText;
  for (const std::string_view line : lines) {
    const double x = factor <= 0 ? start : start - factor * TextWidth(line);
    surface.text({x, y}, line, *Font(), color);
    y += lineHeight;
  }
}

void QRNMenuItem::paintFrame(host::Surface& surface, Size size) {
  if (!takesClicks()) return;
  if (!mouseOver_ && !(hasFocus_ && keyboardFocus_) && buttonMode_ != qrnButtonEmbossed) return;
  const bool pressed = (leftButtonDown_ && mouseOver_) || spacePressed_;
  const Rect edge{0, 0, size.width, size.height};
  if (pressed)
    surface.frame(edge, host::kButtonShadow, host::kButtonHighlight);
  else
    surface.frame(edge, host::kButtonHighlight, host::kButtonShadow);
}

void QRNMenuItem::paintFocus(host::Surface& surface, Size size) {
  if (!hasFocus_ || !(showFocusRect_ || (keyboardFocus_ && buttonMode_ == qrnButtonEmbossed))) return;
  const double inset = margin_ / 2 + 1;
  surface.focusRectangle({inset, inset, size.width - 1 - 2 * inset, size.height - 1 - 2 * inset});
}

}  // namespace qrn
