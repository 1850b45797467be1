#include "display/column_layout.h"

#include <gtest/gtest.h>

namespace qrn::test {
namespace {

ColumnWeights automatic(float tolerance) { return ColumnWeights::of(0, 0, 0, tolerance); }

// ---- weights ----

TEST(ColumnWeights, PositiveOnesBecomeFractionsOfTheirSum) {
  const auto weights = ColumnWeights::of(0, 2, 1, 10.2f);
  EXPECT_TRUE(weights.isAutomatic(0));
  EXPECT_FLOAT_EQ(weights.weight[1], 2.0f / 3);
  EXPECT_FLOAT_EQ(weights.weight[2], 1.0f / 3);
  EXPECT_FLOAT_EQ(weights.tolerance, 10.2f);
}

TEST(ColumnWeights, ZeroAndNegativeOnesAreAutomaticAndKeptAsGiven) {
  const auto weights = ColumnWeights::of(-4, 0, 3, 0);
  EXPECT_EQ(weights.weight, (std::array<float, 3>{-4, 0, 1}));
  EXPECT_TRUE(weights.isAutomatic(0));
  EXPECT_TRUE(weights.isAutomatic(1));
  EXPECT_FALSE(weights.isAutomatic(2));
}

TEST(ColumnWeights, ANegativeToleranceIsNone) { EXPECT_EQ(automatic(-1).tolerance, 0); }

TEST(ColumnWeights, AnyAutomaticColumnCounts) {
  EXPECT_TRUE(ColumnWeights().anyAutomatic());
  EXPECT_TRUE(ColumnWeights::of(1, 1, 0, 0).anyAutomatic());
  EXPECT_FALSE(ColumnWeights::of(1, 1, 1, 0).anyAutomatic());
}

TEST(ColumnWeights, TheLargestOnesAreAddedWithoutOverflow) {
  const auto weights = ColumnWeights::of(2147483647, 2147483647, 2147483647, 0);
  for (const float weight : weights.weight) EXPECT_FLOAT_EQ(weight, 1.0f / 3);
}

// ---- widths ----

TEST(ColumnFit, TakesTheWidestMinimumOfEachColumn) {
  ColumnFit fit(automatic(0));
  fit.add({30, 10, 20});
  fit.add({10, 40, 5});
  EXPECT_EQ(fit.widths(), (ColumnWidths{30, 40, 20}));
}

TEST(ColumnFit, WithoutRowsEachColumnIsOneWide) {
  EXPECT_EQ(ColumnFit(automatic(0)).widths(), (ColumnWidths{1, 1, 1}));
}

TEST(ColumnFit, AddsTheRelativeAndTheAbsoluteSlack) {
  ColumnFit fit(automatic(10.5f));
  fit.add({100, 1, 0});
  EXPECT_EQ(fit.widths(), (ColumnWidths{160, 12, 12}));  // 11.5 goes to the even neighbour
}

TEST(ColumnFit, TiesOfTheSlackGoToTheEvenNeighbour) {
  ColumnFit fit(automatic(0.5f));
  fit.add({1, 3, 5});
  EXPECT_EQ(fit.widths(), (ColumnWidths{2, 4, 8}));  // 1.5, 4.5, 7.5
}

// ---- whether the present widths may stay ----

TEST(ColumnFit, WidthsThatJustFitStay) {
  ColumnFit fit(automatic(0));
  fit.add({30, 20, 10}, {30, 20, 10});
  EXPECT_FALSE(fit.mustRefit());
}

TEST(ColumnFit, OneRowTooNarrowIsEnough) {
  ColumnFit fit(automatic(0));
  fit.add({30, 20, 10}, {30, 20, 10});
  fit.add({30, 21, 10}, {30, 20, 10});
  EXPECT_TRUE(fit.mustRefit());
}

TEST(ColumnFit, AllRowsOfAColumnHaveToBeTooWide) {
  const auto fitOf = [](std::int32_t secondMinimum) {
    ColumnFit fit(automatic(0));
    fit.add({10, 20, 10}, {30, 20, 10});
    fit.add({secondMinimum, 20, 10}, {30, 20, 10});
    return fit.mustRefit();
  };
  EXPECT_FALSE(fitOf(30));
  EXPECT_TRUE(fitOf(29));
}

TEST(ColumnFit, RowsOnlyALittleTooWideAreTolerated) {
  const auto fitOf = [](std::int32_t minimum) {
    ColumnFit fit(automatic(10.5f));
    fit.add({minimum, 1, 1}, {100, 12, 12});
    return fit.mustRefit();
  };
  // (100 - 10) / 3 - 10 is 20: only a narrower row gives the width up.
  EXPECT_FALSE(fitOf(20));
  EXPECT_TRUE(fitOf(19));
}

TEST(ColumnFit, ColumnsWithAShareAreNotLookedAt) {
  ColumnFit fit(ColumnWeights::of(0, 1, 1, 0));
  fit.add({10, 500, 500}, {10, 1, 1});
  EXPECT_FALSE(fit.mustRefit());
}

TEST(ColumnFit, WithoutRowsEverythingStays) { EXPECT_FALSE(ColumnFit(automatic(0)).mustRefit()); }

}  // namespace
}  // namespace qrn::test
