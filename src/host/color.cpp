#include "host/color.h"

#include <algorithm>
#include <cmath>

namespace qrn::host {
namespace {

constexpr double kReadable = 4.5;  // WCAG 2.1, level AA
// Colours are chosen on light grounds, and stay there unless they can hardly be seen.
constexpr double kBearableOnLight = 3.0;
constexpr double kDark = 0.18;

double linear(int channel) {
  const double c = channel / 255.0;
  return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double luminance(Color c) {
  return 0.2126 * linear(redOf(c)) + 0.7152 * linear(greenOf(c)) + 0.0722 * linear(blueOf(c));
}

}  // namespace

Color mixed(Color from, Color to, double share) {
  const auto channel = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
  return rgb(channel(redOf(from), redOf(to)), channel(greenOf(from), greenOf(to)),
             channel(blueOf(from), blueOf(to)));
}

double contrast(Color a, Color b) {
  const double la = luminance(a), lb = luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

Color readableOn(Color text, Color background) {
  const bool onDark = luminance(background) < kDark;
  if (contrast(text, background) >= (onDark ? kReadable : kBearableOnLight)) return text;
  const Color goal = onDark ? rgb(255, 255, 255) : rgb(0, 0, 0);
  // Pure black says "ordinary text", so it goes all the way.
  if (text == rgb(0, 0, 0)) return goal;
  for (double share = 0.1; share < 1; share += 0.1) {
    const Color candidate = mixed(text, goal, share);
    if (contrast(candidate, background) >= kReadable) return candidate;
  }
  return goal;
}

}  // namespace qrn::host
