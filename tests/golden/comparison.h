#pragma once

#include <QImage>
#include <QString>
#include <string>

namespace qrn::golden {

/// Channels of a pixel this close are the same: another release of the font rasteriser may shade the edges of
/// letters a little differently.
inline constexpr int kSlight = 24;
/// And this share of the pixels may differ more, a handful on any sheet; the shortest line that may get lost,
/// the side of a title button's frame, has more.
inline constexpr double kShare = 1e-5;

struct Comparison {
  /// Why the pictures are not the same; empty when they are.
  std::string complaint;
  /// Where they differ, in red on what was expected; null when the sizes do.
  QImage difference;
};

Comparison compare(const QImage& actual, const QImage& expected);

/// Compares a picture with the one that is kept under this name, and complains with where both and their
/// difference were written. With QRN_REFRESH_GOLDEN set it is kept instead, which is a complaint as well:
/// nobody has looked at it yet.
std::string compareWithKept(const QImage& actual, const QString& name,
                            const QString& folder = "tests/golden/pictures");

}  // namespace qrn::golden
