#pragma once

#include <cstdint>
#include <span>

namespace qrn {

/// The pictures that stand for the public controls in the toolbox of a designer, by their resource
/// identifiers: 30000 QRNDisplay, 30001 QRNEdit, 30002 QRNMenuItem, 30003 QRNDisplayStack, 30004 QRNToolTip,
/// 30005 QRNImageList, 30006 QRNArray.
inline constexpr std::int32_t kFirstToolboxBitmap = 30000;
inline constexpr std::int32_t kLastToolboxBitmap = 30006;

/// A device-independent bitmap as a resource holds it, without a file header: 16 x 15 pixels in 16 colors,
/// uncompressed, 224 bytes. Nothing for another identifier. No control uses it at run time.
std::span<const std::uint8_t> toolboxBitmap(std::int32_t id);

}  // namespace qrn
