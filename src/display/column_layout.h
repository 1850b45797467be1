#pragma once

#include <array>
#include <cstdint>

namespace qrn {

/// The three parts of a row that line up: label, value, unit.
inline constexpr int kColumns = 3;
using ColumnWidths = std::array<std::int32_t, kColumns>;

/// How the columns share the room: a column of weight 0 or less is as wide as its widest row needs, plus the
/// slack of the tolerance; one above 0 gets that share of what is left.
struct ColumnWeights {
  std::array<float, kColumns> weight{};
  /// The integer part is the absolute slack, the fraction the relative one.
  float tolerance = 0;

  bool isAutomatic(int column) const { return !(weight[static_cast<std::size_t>(column)] > 0); }
  bool anyAutomatic() const { return isAutomatic(0) || isAutomatic(1) || isAutomatic(2); }

  /// Positive weights of 1 or more become fractions of their sum; the others stay as given.
  static ColumnWeights of(std::int32_t label, std::int32_t value, std::int32_t unit, float tolerance);
};

/// Works out the automatic columns from the rows, one after the other.
class ColumnFit {
 public:
  explicit ColumnFit(const ColumnWeights& weights);

  /// A row that is to be laid out whatever its widths are now.
  void add(const ColumnWidths& minimum);
  /// A row whose present widths may stay: counts it as too narrow, or as wider than the slack allows.
  void add(const ColumnWidths& minimum, const ColumnWidths& current);

  /// Some row is too narrow, or all rows of an automatic column are too wide.
  bool mustRefit() const;
  /// The widest minimum of each automatic column, plus the slack. Errors: 6 for a slack beyond all widths.
  ColumnWidths widths() const;

 private:
  ColumnWeights weights_;
  double slack_;
  double grow_;
  double shrink_;
  ColumnWidths widest_{1, 1, 1};
  std::array<std::int32_t, kColumns> counted_{};
  std::array<std::int32_t, kColumns> oversized_{};
  bool tooSmall_ = false;
};

}  // namespace qrn
