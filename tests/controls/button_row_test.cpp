#include "display/button_row.h"

#include <gtest/gtest.h>

#include <vector>

namespace qrn::test {
namespace {

using Widths = std::vector<ButtonWidths>;
using Numbers = std::vector<double>;

constexpr std::int32_t kLeft = 0, kRight = 1, kCentre = 2;

struct Row {
  Numbers lefts;
  Numbers widths;
};

Row rowOf(const Widths& buttons, double height, double room, std::int32_t alignment = kLeft) {
  Row row;
  for (const ButtonPlace& place : placeButtons(buttons, height, room, alignment)) {
    row.lefts.push_back(place.left);
    row.widths.push_back(place.width);
  }
  return row;
}

const Widths kThree(3, ButtonWidths{60, 100});

TEST(ButtonRow, WithRoomAllHaveTheirStandardWidthAndHalfAHeightBetweenThem) {
  const Row row = rowOf(kThree, 30, 330);
  EXPECT_EQ(row.widths, (Numbers{100, 100, 100}));
  EXPECT_EQ(row.lefts, (Numbers{0, 115, 230}));
}

// 280 are 50 short of the 330 that three standard widths and two gaps of 15 need.
TEST(ButtonRow, TooShortTheFirstOnesGiveUpTheirWidthFirst) {
  const Row row = rowOf(kThree, 30, 280, kRight);
  EXPECT_EQ(row.widths, (Numbers{60, 90, 100}));
  EXPECT_EQ(row.lefts, (Numbers{0, 75, 180}));
  EXPECT_EQ(row.lefts.back() + row.widths.back(), 280);
}

TEST(ButtonRow, WithJustTheRoomForTheMinimumAllAreAtTheirMinimum) {
  EXPECT_EQ(rowOf(kThree, 30, 210, kRight).widths, (Numbers{60, 60, 60}));
  EXPECT_EQ(rowOf(kThree, 30, 210, kRight).lefts, (Numbers{0, 75, 150}));
}

TEST(ButtonRow, NarrowerThanAllMinimaTheRowSticksOutOnTheSideThatItIsNotAlignedTo) {
  EXPECT_EQ(rowOf(kThree, 30, 100, kLeft).lefts, (Numbers{0, 75, 150}));
  EXPECT_EQ(rowOf(kThree, 30, 100, kRight).lefts, (Numbers{-110, -35, 40}));
  EXPECT_EQ(rowOf(kThree, 30, 100, kCentre).lefts, (Numbers{-55, 20, 95}));
  EXPECT_EQ(rowOf(kThree, 30, 100, kCentre).widths, (Numbers{60, 60, 60}));
}

TEST(ButtonRow, IsAlignedLeftRightAndCentred) {
  EXPECT_EQ(rowOf(kThree, 30, 400, kLeft).lefts.front(), 0);
  EXPECT_EQ(rowOf(kThree, 30, 400, kRight).lefts.front(), 70);
  EXPECT_EQ(rowOf(kThree, 30, 400, kCentre).lefts.front(), 35);
}

TEST(ButtonRow, AnyOtherAlignmentIsLeft) {
  for (const std::int32_t odd : {-1, 3, 100}) EXPECT_EQ(rowOf(kThree, 30, 400, odd).lefts.front(), 0);
}

TEST(ButtonRow, TiesOfItsStartGoToTheEvenNeighbour) {
  EXPECT_EQ(rowOf(kThree, 30, 331, kCentre).lefts.front(), 0);    // 0.5
  EXPECT_EQ(rowOf(kThree, 30, 333, kCentre).lefts.front(), 2);    // 1.5
  EXPECT_EQ(rowOf(kThree, 30, 332.5, kRight).lefts.front(), 2);   // 2.5
  EXPECT_EQ(rowOf(kThree, 30, 333.75, kRight).lefts.front(), 4);  // 3.75
}

TEST(ButtonRow, WhatIsMissingIsRoundedToAWholeNumber) {
  EXPECT_EQ(rowOf(kThree, 30, 329.5).widths, (Numbers{100, 100, 100}));  // 0.5 is none
  EXPECT_EQ(rowOf(kThree, 30, 328.5).widths, (Numbers{98, 100, 100}));   // 1.5 is two
}

TEST(ButtonRow, AButtonWithoutSpareWidthGivesNothingUp) {
  const Row row = rowOf({{80, 80}, {60, 100}}, 30, 155);
  EXPECT_EQ(row.widths, (Numbers{80, 60}));
}

TEST(ButtonRow, AStandardWidthBelowTheMinimumDoesNotCount) {
  const Row row = rowOf({{120, 100}, {60, 100}}, 30, 1000);
  EXPECT_EQ(row.widths, (Numbers{120, 100}));
  EXPECT_EQ(row.lefts, (Numbers{0, 135}));
}

TEST(ButtonRow, TheGapIsHalfOfTheWholeHeightCutOff) {
  EXPECT_EQ(rowOf(kThree, 23, 1000).lefts, (Numbers{0, 111, 222}));
  EXPECT_EQ(rowOf(kThree, 22.5, 1000).lefts, (Numbers{0, 111, 222}));  // a tie: 22
  EXPECT_EQ(rowOf(kThree, 23.5, 1000).lefts, (Numbers{0, 112, 224}));  // a tie: 24
  EXPECT_EQ(rowOf(kThree, 0, 1000).lefts, (Numbers{0, 100, 200}));
}

TEST(ButtonRow, OneButtonHasNoGap) { EXPECT_EQ(rowOf({{60, 100}}, 30, 300, kRight).lefts, (Numbers{200})); }

TEST(ButtonRow, OfNoButtonsIsEmpty) { EXPECT_TRUE(rowOf({}, 30, 300).lefts.empty()); }

TEST(ButtonRow, HugeWidthsAddUpWithoutOverflow) {
  const Widths huge(3, ButtonWidths{2'000'000'000, 2'000'000'000});
  EXPECT_EQ(rowOf(huge, 30, 300).lefts.back(), 4'000'000'030.0);
}

}  // namespace
}  // namespace qrn::test
