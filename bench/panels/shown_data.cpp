#include "panels/shown_data.h"

#include <cmath>
#include <cstdio>

namespace qrn::bench {

std::string captionOf(int row) { return "Parameter " + std::to_string(row); }

std::string longCaption(int row, int size) {
  std::string caption = captionOf(row) + " with a longer name";
  for (int i = 0; i < size; ++i) caption += " and";
  return caption;
}

const char* unitOf(int row) {
  static constexpr const char* kUnits[] = {"mbar", "V", "°C", "l/h", "%"};
  return kUnits[row % 5];
}

std::string numberText(int row, int generation) {
  char text[48];
  const int length = std::snprintf(text, sizeof text, "%.3f", numberOf(row, generation));
  return {text, static_cast<std::size_t>(length)};
}

std::string hexadecimalText(int row, int generation) {
  char text[16];
  const int length = std::snprintf(text, sizeof text, "0x%08X", hexadecimalOf(row, generation));
  return {text, static_cast<std::size_t>(length)};
}

std::vector<std::uint32_t> iconPixels(Icon which) {
  constexpr double kMiddle = (kIconSize - 1) / 2.0;
  std::vector<std::uint32_t> pixels;
  for (int y = 0; y < kIconSize; ++y) {
    for (int x = 0; x < kIconSize; ++x) {
      const double right = std::abs(x - kMiddle), down = std::abs(y - kMiddle);
      const bool inside = which == Icon::Disc       ? std::hypot(right, down) < 6.5
                          : which == Icon::Triangle ? y > 1 && y < 14 && right < (y - 1) * 0.5
                                                    : right < 6 && down < 6;
      const std::uint32_t color = which == Icon::Disc       ? 0xff2c8f4aU
                                  : which == Icon::Triangle ? 0xffd99a10U
                                                            : 0xff3465a4U;
      pixels.push_back(inside ? color : 0);
    }
  }
  return pixels;
}

}  // namespace qrn::bench
