#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qrn::bench {

// What every form shows, whoever shows it: rows of four kinds in turn, each with a caption, a value, a unit
// and two icons.

enum class Kind : std::uint8_t { Number, Choice, Flag, Hexadecimal };
inline Kind kindOf(int row) { return static_cast<Kind>(row % 4); }

std::string captionOf(int row);
/// Longer with each size, and longer than any usual one.
std::string longCaption(int row, int size);
const char* unitOf(int row);
inline constexpr const char* kChoices[] = {"Off", "Low", "Medium", "High", "Automatic"};
inline constexpr int kChoiceCount = 5;

// The values of a row: each generation is another one than that before.
inline double numberOf(int row, int generation) { return row * 37 % 10007 * 0.173 + generation * 1.001; }
inline int choiceOf(int row, int generation) { return (row / 4 + generation) % kChoiceCount; }
inline bool flagOf(int row, int generation) { return (row / 4 + generation) % 2 != 0; }
inline std::uint32_t hexadecimalOf(int row, int generation) {
  return (static_cast<std::uint32_t>(row) * 2654435761U + static_cast<std::uint32_t>(generation)) &
         0x7fffffffU;
}

/// The texts of a number and of a hexadecimal value, for those who format for themselves.
std::string numberText(int row, int generation);
std::string hexadecimalText(int row, int generation);

enum class Icon : std::uint8_t { Disc, Triangle, Square };
inline constexpr int kIconSize = 16;
/// Rows top down, pixels 0xAARRGGBB.
std::vector<std::uint32_t> iconPixels(Icon which);

}  // namespace qrn::bench
