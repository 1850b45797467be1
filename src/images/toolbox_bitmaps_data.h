// Made by tools/make_toolbox_bitmaps from assets/toolbox; change those and run it again.
// sources da2bcf657403405d322fbf54f0566d6724e030e13c43acaca3d87a6aac9b6a07
// table 65057a13ca8444220592731ae23f4f219f859920ca9bd28bd5cd6149be243930
#pragma once

#include <cstdint>
#include <string_view>

// A bitmap is a hexadecimal digit for each pixel, rows top down: its color's place in kColors (0xRRGGBB).
namespace qrn::toolbox_bitmaps {

// clang-format off
inline constexpr std::uint32_t kColors[] = {
    0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
    0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF,
};

// A panel: title, rows with their values, a footer.
inline constexpr std::string_view kDisplay =
    "0000000000000000"
    "0444444444444440"
    "04FFFFFF44444F40"
    "0444444444444440"
    "0FFFFFFFFFFFFFF0"
    "0FFFFFF6EEEEE6F0"
    "0F0000F6666666F0"
    "0FFFFFFFFFFFFFF0"
    "0FFFFFF6EEEEE6F0"
    "0F000FF6666666F0"
    "0FFFFFFFFFFFFFF0"
    "0777777777777770"
    "0777777770000070"
    "0777777777777770"
    "0000000000000000";

// A parameter row: caption, value and status icon.
inline constexpr std::string_view kEdit =
    "7777777777777777"
    "7777777777777777"
    "7777777777777777"
    "7777000000000711"
    "70770FFFFFFF0711"
    "07070FCCCFFF0711"
    "07070FFCFFFF0711"
    "00070FFCFFFF0711"
    "07070FFCFFFF0711"
    "07070FCCCFFF0777"
    "77770FFFFFFF0711"
    "7777000000000711"
    "7777777777777777"
    "7777777777777777"
    "7777777777777777";

// An action button and the menu that pops up from it.
inline constexpr std::string_view kMenuItem =
    "FFFFFFFFFFFFFF07"
    "F777777777777807"
    "F777777700000807"
    "F700000770007807"
    "F777777777077807"
    "F888888888888807"
    "0000000000000000"
    "777770FFFFFFFFF0"
    "777770F00000FFF0"
    "7777704444444440"
    "7777704FFFFFF440"
    "7777704444444440"
    "777770F000000FF0"
    "777770FFFFFFFFF0"
    "7777700000000000";

// Panels one behind the other.
inline constexpr std::string_view kDisplayStack =
    "0000000000077777"
    "0888888888077777"
    "0888888888077777"
    "0F00000000000777"
    "0F08888888880777"
    "0F08888888880777"
    "0F0F000000000000"
    "0F0F044444444440"
    "000F044444444440"
    "770F0FFFFFFFFFF0"
    "770F0F000FEEEEF0"
    "77000FFFFFFFFFF0"
    "77770F00FFEEEEF0"
    "77770FFFFFFFFFF0"
    "7777000000000000";

// A tip beside the mouse pointer.
inline constexpr std::string_view kToolTip =
    "7077777777777777"
    "7007777777777777"
    "70F0777777777777"
    "70FF077777777777"
    "70FFF07777777777"
    "70FFFF0777777777"
    "70FFFFF077777777"
    "70FFF00077777777"
    "70F0F07000000000"
    "70070F00BBBBBBB0"
    "70770F00B33333B0"
    "77777070BBBBBBB0"
    "77777770B3333BB0"
    "77777770BBBBBBB0"
    "7777777000000000";

// A box of pictures.
inline constexpr std::string_view kImageList =
    "7777777777777777"
    "0000000000000000"
    "0FFFFFFFFFFFFFF0"
    "0FFFFFFFFFFFFFF0"
    "0FFFFFFFFFFFFFF0"
    "0FFFFFFFFFFFFFF0"
    "0F999F3333F222F0"
    "0F999F3BB3F222F0"
    "0F999F3333F222F0"
    "0FFFFFFFFFFFFFF0"
    "0F888F8888F888F0"
    "0FFFFFFFFFFFFFF0"
    "0FFFFFFFFFFFFFF0"
    "0000000000000000"
    "7777777777777777";

// A table of numbered values.
inline constexpr std::string_view kArray =
    "7777777777777777"
    "0000000000000000"
    "066660FFFFFFFFF0"
    "06FF60FCCCCCCFF0"
    "0000000000000000"
    "066660FFFFFFFFF0"
    "06FF60FCCCCFFFF0"
    "0000000000000000"
    "066660FFFFFFFFF0"
    "06FF60FCCCCCCCF0"
    "0000000000000000"
    "066660FFFFFFFFF0"
    "06FF60FCCCCCFFF0"
    "0000000000000000"
    "7777777777777777";

// In the order of the resource identifiers.
inline constexpr std::string_view kBitmaps[] = {kDisplay, kEdit, kMenuItem, kDisplayStack, kToolTip, kImageList, kArray};
// clang-format on

}  // namespace qrn::toolbox_bitmaps
