#include "row_fixture.h"

namespace qrn::test {
namespace {

constexpr std::int16_t kTwips = 1;
constexpr std::int16_t kMillimetres = 6;

/// Characters 6 wide and 13 high, so that the text height is 13 and the band of the row 20 high. The icons
/// have no pictures, so the caption starts behind the spacing of the first one.
class ARowLaidOut : public RowTest {
 protected:
  ARowLaidOut() {
    useType(qrnTypeString);
    row().SetWidth(400);
  }

  host::Control& editor() { return *row().CurrentEditor(); }
  double leftOf(const host::Control& part) { return part.onSurface().left; }
  void useIcons(int width = 16, int height = 15) {
    row().SetIcon1Picture(picture(width, height));
    row().SetIcon2Picture(picture(width, height));
  }
  void showOnly(bool label, bool value, bool unit) {
    row().SetIcon1Visible(false);
    row().SetIcon2Visible(false);
    row().SetLabelVisible(label);
    row().SetValueVisible(value);
    row().SetUnitVisible(unit);
  }
  headless::FixedMetrics& metrics(const host::FontPtr& font) {
    return static_cast<headless::FixedMetrics&>(platform.metrics(*font));
  }
};

// ---- metrics ----

TEST_F(ARowLaidOut, IsAtLeastATextAndEightHigh) { EXPECT_EQ(row().GetMinHeight(), 13 + 8); }

TEST_F(ARowLaidOut, IsAsHighAsTheEntriesOfABitField) {
  useType(qrnTypeBitfield);
  EXPECT_EQ(row().GetMinHeight(), 21);
  row().SetValueCount(1);
  EXPECT_EQ(row().GetMinHeight(), 21);
  row().SetValueCount(4);
  EXPECT_EQ(row().GetMinHeight(), 4 * (13 + 2) + 5);
}

TEST_F(ARowLaidOut, CountsNoEntriesOfADropListInItsHeight) {
  useType(qrnTypeList);
  row().SetValueCount(9);
  EXPECT_EQ(row().GetMinHeight(), 21);
}

TEST_F(ARowLaidOut, AddsTwoToAnIconInButtonMode) {
  useIcons();
  EXPECT_EQ(row().GetIcon1Width(), 16);
  row().SetIcon1ButtonMode(qrnButtonFlat);
  EXPECT_EQ(row().GetIcon1Width(), 18);
  row().SetIcon2ButtonMode(qrnButtonEmbossed);
  EXPECT_EQ(row().GetIcon2Width(), 18);
}

TEST_F(ARowLaidOut, MeasuresItsTexts) {
  row().SetLabelText("Damping");
  row().SetUnitText("mbar");
  EXPECT_EQ(row().GetMinLabelWidth(), 42);
  EXPECT_EQ(row().GetMinUnitWidth(), 24);
}

TEST_F(ARowLaidOut, RoundsAMeasuredWidthUp) {
  platform.setTextSize(6.25, 13);
  row().SetLabelText("abc");
  EXPECT_EQ(row().GetMinLabelWidth(), 19);
  row().SetLabelText("abcd");
  EXPECT_EQ(row().GetMinLabelWidth(), 25);
}

TEST_F(ARowLaidOut, LeavesATextHeightBesideTheTextOfATextBox) {
  row().SetValueText("12.5");
  EXPECT_EQ(row().GetMinValueWidth(), 24 + 13);
  row().SetPassword(true);
  EXPECT_EQ(row().GetMinValueWidth(), 24 + 13);
}

TEST_F(ARowLaidOut, LeavesTwoTextHeightsBesideTheWidestEntry) {
  for (const qrnValueType type : {qrnTypeList, qrnTypeBitfield}) {
    useType(type);
    EXPECT_EQ(row().GetMinValueWidth(), 26);
    addEntries({"on", "standby", "off"});
    EXPECT_EQ(row().GetMinValueWidth(), 26 + 42);
    row().SetValueNames(1, "by");
    EXPECT_EQ(row().GetMinValueWidth(), 26 + 18);
  }
}

TEST_F(ARowLaidOut, NeedsTwoTextHeightsForACheckBox) {
  useType(qrnTypeBoolean);
  EXPECT_EQ(row().GetMinValueWidth(), 26);
}

TEST_F(ARowLaidOut, NeedsNothingForAnArray) {
  useType(qrnTypeArray);
  EXPECT_EQ(row().GetMinValueWidth(), 0);
}

TEST_F(ARowLaidOut, AddsUpItsPartsWithASpacingBetweenThem) {
  useIcons();
  row().SetIcon1ButtonMode(qrnButtonFlat);
  row().SetValueText("7");
  // Icons of 18 and 16, "Label", a text box, "Unit", and four spacings.
  EXPECT_EQ(row().GetMinWidth(), 18 + 16 + 30 + (6 + 13) + 24 + 4 * 4);
  EXPECT_EQ(row().GetMinBruttoWidth(), 18 + 16 + 4 * 4);
}

TEST_F(ARowLaidOut, CountsNoIconWithoutAColumn) {
  useIcons();
  row().SetIcon1Column(0);
  row().SetIcon2Column(-1);
  EXPECT_EQ(row().GetMinBruttoWidth(), 2 * 4);
}

TEST_F(ARowLaidOut, WithOnlyTheEditorNeedsWhatTheEditorNeeds) {
  showOnly(false, true, false);
  row().SetValueText("123");
  EXPECT_EQ(row().GetMinWidth(), row().GetMinValueWidth());
  EXPECT_EQ(row().GetMinBruttoWidth(), 0);
}

TEST_F(ARowLaidOut, WithNothingVisibleNeedsASpacingLessThanNothing) {
  showOnly(false, false, false);
  EXPECT_EQ(row().GetMinWidth(), -4);
  EXPECT_EQ(row().GetMinBruttoWidth(), -4);
  row().SetHorizontalSpacing(11);
  EXPECT_EQ(row().GetMinWidth(), -11);
}

TEST_F(ARowLaidOut, CountsAHiddenIconAndMovesNothingForIt) {
  useIcons();
  const auto width = row().GetMinWidth();
  const auto left = leftOf(row().lblLabel());
  EXPECT_FALSE(laysOut([&] { row().SetIcon1Hidden(true); }));
  row().SetWidth(401);
  EXPECT_EQ(row().GetMinWidth(), width);
  EXPECT_EQ(leftOf(row().lblLabel()), left);
}

TEST_F(ARowLaidOut, GivesUpTheRoomOfAnIconThatIsNotVisible) {
  useIcons();
  const auto width = row().GetMinWidth();
  row().SetIcon1Visible(false);
  EXPECT_EQ(row().GetMinWidth(), width - 16 - 4);
  EXPECT_EQ(leftOf(row().lblLabel()), 0);
}

TEST_F(ARowLaidOut, MeasuresItsIconsAgainWhenAnythingOfThemChanges) {
  useIcons();
  const auto beside = [&] { return row().GetMinBruttoWidth(); };
  ASSERT_EQ(beside(), 16 + 16 + 4 * 4);
  row().SetIcon2Picture(picture(30, 10));
  EXPECT_EQ(beside(), 16 + 30 + 4 * 4);
  row().SetIcon1ButtonMode(qrnButtonFlat);
  EXPECT_EQ(beside(), 18 + 30 + 4 * 4);
  row().SetIcon1Column(0);
  EXPECT_EQ(beside(), 30 + 3 * 4);
  row().SetIcon1Column(2);
  EXPECT_EQ(beside(), 18 + 30 + 4 * 4);
  row().SetIcon2Visible(false);
  EXPECT_EQ(beside(), 18 + 3 * 4);
  row().SetIcon1Picture(nullptr);
  EXPECT_EQ(beside(), 2 + 3 * 4);
  row().SetUnitVisible(false);
  EXPECT_EQ(beside(), 2 + 2 * 4);
  row().SetIcon1Picture(picture(16, 16));
  row().SetScaleMode(2);  // points: three quarters of as many
  EXPECT_EQ(beside(), 12 + 2 + 2 * 4);
}

TEST_F(ARowLaidOut, MeasuresWithItsOwnFont) {
  const auto wide = std::make_shared<host::Font>("Wide", 20);
  metrics(wide).characterWidth = 10;
  metrics(wide).textHeight = 20;
  row().SetValueText("123");
  row().SetFont(wide);
  EXPECT_EQ(row().GetMinLabelWidth(), 50);
  EXPECT_EQ(row().GetMinUnitWidth(), 40);
  EXPECT_EQ(row().GetMinValueWidth(), 30 + 20);
  EXPECT_EQ(row().GetMinHeight(), 28);
  EXPECT_EQ(row().lblLabel().Height(), 20);
}

TEST_F(ARowLaidOut, MeasuresTheEntriesOfItsListsWithItsOwnFont) {
  const auto wide = std::make_shared<host::Font>("Wide", 20);
  metrics(wide).characterWidth = 10;
  metrics(wide).textHeight = 20;
  for (const qrnValueType type : {qrnTypeList, qrnTypeBitfield}) {
    row().SetFont(nullptr);
    useType(type);
    addEntries({"abc"});
    ASSERT_EQ(row().GetMinValueWidth(), 26 + 18);
    row().SetFont(wide);
    EXPECT_EQ(row().GetMinValueWidth(), 40 + 30);
  }
}

TEST_F(ARowLaidOut, KeepsMeasuredWidthsUntilATextOrTheFontChanges) {
  useType(qrnTypeList);
  addEntries({"abc", "def"});
  row().GetMinWidth();
  const int before = platform.measuredTexts();
  row().SetWidth(300);
  row().GetMinWidth();
  row().GetMinBruttoWidth();
  EXPECT_EQ(platform.measuredTexts(), before);
  row().SetLabelText("new");
  row().GetMinWidth();
  EXPECT_EQ(platform.measuredTexts(), before + 1);
}

// ---- placing ----

TEST_F(ARowLaidOut, PlacesIconsCaptionEditorAndUnitFromTheLeft) {
  useIcons();
  EXPECT_EQ(leftOf(row().imgIcon1()), 0);
  EXPECT_EQ(leftOf(row().lblLabel()), 16 + 4);
  EXPECT_EQ(leftOf(editor()), 20 + 100 + 4);
  EXPECT_EQ(leftOf(row().lblUnit()), 124 + 100 + 4);
  EXPECT_EQ(leftOf(row().imgIcon2()), 228 + 100 + 4);
}

TEST_F(ARowLaidOut, CentresItsPartsInTheBandAtTheTop) {
  useIcons(16, 14);
  for (const double height : {21.0, 80.0}) {
    row().SetHeight(height);
    EXPECT_EQ(row().lblLabel().Top(), 4);  // 3.5, to the nearest
    EXPECT_EQ(row().lblLabel().Height(), 13);
    EXPECT_EQ(row().lblUnit().Top(), 4);
    EXPECT_EQ(row().lblUnit().Height(), 13);
    EXPECT_EQ(row().imgIcon1().Top(), 3);
  }
}

TEST_F(ARowLaidOut, PlacesAnIconTallerThanTheBandAboveIt) {
  useIcons(16, 32);
  EXPECT_EQ(row().imgIcon1().Top(), -6);
}

TEST_F(ARowLaidOut, PlacesAnIconInEachOfItsColumns) {
  useIcons();
  row().SetIcon2Column(0);
  const double expected[] = {0, 104, 208, 312};
  for (int column = 1; column <= 4; ++column) {
    row().SetIcon1Column(column);
    EXPECT_EQ(leftOf(row().imgIcon1()), expected[column - 1]) << column;
  }
}

TEST_F(ARowLaidOut, PutsTwoIconsOfOneColumnSideBySide) {
  useIcons();
  for (int column = 1; column <= 4; ++column) {
    row().SetIcon1Column(column);
    row().SetIcon2Column(column);
    EXPECT_EQ(leftOf(row().imgIcon2()), leftOf(row().imgIcon1()) + 16 + 4) << column;
  }
  EXPECT_EQ(leftOf(row().imgIcon1()), 312);
}

TEST_F(ARowLaidOut, MovesAnIconInButtonModeOneToTheRightAndGivesItTwoMore) {
  useIcons();
  row().SetIcon1ButtonMode(qrnButtonFlat);
  EXPECT_EQ(leftOf(row().imgIcon1()), 1);
  EXPECT_EQ(leftOf(row().lblLabel()), 16 + 2 + 4);
}

TEST_F(ARowLaidOut, ClosesTheGapOfAPartThatIsNotVisible) {
  showOnly(false, true, true);
  EXPECT_EQ(leftOf(editor()), 0);
  EXPECT_EQ(leftOf(row().lblUnit()), 104);
  showOnly(true, false, true);
  EXPECT_EQ(leftOf(row().lblUnit()), 104);
  EXPECT_FALSE(editor().shown());
  showOnly(true, true, false);
  EXPECT_TRUE(editor().shown());
  EXPECT_FALSE(row().lblUnit().Visible());
}

TEST_F(ARowLaidOut, StartsAtTheLeftEvenIfItIsWiderThanItsRoom) {
  row().SetWidth(50);
  const int before = platform.measuredTexts();
  row().SetWidth(60);
  EXPECT_EQ(platform.measuredTexts(), before);
  EXPECT_EQ(leftOf(row().imgIcon1()), 0);
  EXPECT_EQ(leftOf(row().lblLabel()), 4);
}

TEST_F(ARowLaidOut, EndsAtTheRightWhenItIsRightAligned) {
  useIcons();
  row().SetAlignment(1);
  const double total = 16 + 4 + 100 + 4 + 100 + 4 + 100 + 4 + 16;
  EXPECT_EQ(leftOf(row().imgIcon1()), 400 - total);
  EXPECT_EQ(row().imgIcon2().bounds().right(), 400);
}

TEST_F(ARowLaidOut, StartsOutsideOnTheLeftWhenItIsRightAlignedAndTooWide) {
  useIcons();
  row().SetAlignment(1);
  row().SetWidth(200);
  EXPECT_EQ(leftOf(row().imgIcon1()), 200 - 348);
}

TEST_F(ARowLaidOut, IsCentredByEveryOtherAlignment) {
  useIcons();
  for (const int alignment : {2, 3, -1}) {
    row().SetAlignment(alignment);
    EXPECT_EQ(leftOf(row().imgIcon1()), (400 - 348) / 2) << alignment;
  }
}

TEST_F(ARowLaidOut, RoundsAPositionBetweenTwoUnitsToTheNearest) {
  useIcons();
  row().SetAlignment(2);
  row().SetWidth(401);
  // Starts at 26.5: every part is rounded by itself, a half to the even neighbour.
  EXPECT_EQ(leftOf(row().imgIcon1()), 26);
  EXPECT_EQ(leftOf(row().lblLabel()), 46);
  row().SetWidth(403);
  EXPECT_EQ(leftOf(row().imgIcon1()), 28);
}

TEST_F(ARowLaidOut, FillsItsHeightWithATextBox) {
  row().SetHeight(33);
  EXPECT_EQ(editor().bounds(), (Rect{108, 0, 100, 33}));
}

TEST_F(ARowLaidOut, GivesACheckBoxTheBand) {
  useType(qrnTypeBoolean);
  row().SetHeight(50);
  EXPECT_EQ(editor().onSurface(), (Rect{108, 0, 100, 20}));
}

TEST_F(ARowLaidOut, LeavesADropListItsOwnHeight) {
  useType(qrnTypeList);
  row().SetHeight(50);
  EXPECT_EQ(editor().onSurface(), (Rect{108, 0, 100, 21}));
}

TEST_F(ARowLaidOut, GivesADropListTheHeightOfANewFont) {
  useType(qrnTypeList);
  const auto tall = std::make_shared<host::Font>("Tall", 20);
  metrics(tall).textHeight = 30;
  row().SetHeight(80);
  row().SetFont(tall);
  EXPECT_EQ(editor().onSurface().height, 38);
}

TEST_F(ARowLaidOut, GivesABitListWhatItNeedsButNotMoreThanThereIs) {
  useType(qrnTypeBitfield);
  row().SetValueCount(3);
  row().SetHeight(100);
  EXPECT_EQ(editor().onSurface(), (Rect{108, 0, 100, 50}));
  row().SetHeight(30);
  EXPECT_EQ(editor().onSurface().height, 30);
}

TEST_F(ARowLaidOut, KeepsTheWidthOfItsEditor) {
  for (const qrnValueType type : {qrnTypeString, qrnTypeBoolean, qrnTypeList, qrnTypeBitfield}) {
    useType(type);
    row().SetValueWidth(77);
    EXPECT_EQ(editor().onSurface().width, 77) << type;
    EXPECT_EQ(leftOf(row().lblUnit()), 108 + 77 + 4) << type;
  }
}

TEST_F(ARowLaidOut, KeepsTheSpacingOfAValueWithoutAnEditor) {
  const double withEditor = leftOf(row().lblUnit());
  row().SetValueWidth(0);
  EXPECT_EQ(leftOf(row().lblUnit()), withEditor - 100);
  useType(qrnTypeArray);
  EXPECT_EQ(leftOf(row().lblUnit()), withEditor - 100) << "as wide as GetMinWidth says";
}

TEST_F(ARowLaidOut, NeedsNoMoreThanALongHowEverWideItsSpacingIs) {
  row().SetHorizontalSpacing(std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(row().GetMinWidth(), std::numeric_limits<std::int32_t>::max());
  row().SetHorizontalSpacing(std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(row().GetMinBruttoWidth(), std::numeric_limits<std::int32_t>::min());
}

TEST_F(ARowLaidOut, IsPaintedAgainAfterEveryLayout) {
  row().realise();
  auto& peer = static_cast<headless::HeadlessPeer&>(*row().peer());
  peer.invalidated.clear();
  row().SetFont(row().Font());
  ASSERT_FALSE(peer.invalidated.empty());
  EXPECT_EQ(peer.invalidated.back(), (Rect{0, 0, 400, 21}));
}

// ---- other scales ----

TEST_F(ARowLaidOut, MeasuresInTwips) {
  row().SetScaleMode(kTwips);
  row().SetValueText("12");
  EXPECT_EQ(row().GetMinLabelWidth(), 5 * 6 * 15);
  EXPECT_EQ(row().GetMinValueWidth(), 12 * 15 + 13 * 15);
  EXPECT_EQ(row().GetMinHeight(), 13 * 15 + 8);
}

TEST_F(ARowLaidOut, ForgetsWidthsMeasuredInAnotherScale) {
  useType(qrnTypeList);
  addEntries({"abc"});
  ASSERT_EQ(row().GetMinLabelWidth(), 30);
  ASSERT_EQ(row().GetMinValueWidth(), 44);
  row().SetScaleMode(kTwips);
  EXPECT_EQ(row().GetMinLabelWidth(), 450);
  EXPECT_EQ(row().GetMinUnitWidth(), 360);
  EXPECT_EQ(row().GetMinValueWidth(), 2 * 195 + 270);
}

TEST_F(ARowLaidOut, MeasuresEveryNumberOfCharactersInTwipsExactly) {
  row().SetScaleMode(kTwips);
  std::string caption;
  for (int length = 0; length < 200; ++length, caption += 'x') {
    row().SetLabelText(caption);
    ASSERT_EQ(row().GetMinLabelWidth(), length * 90);
  }
}

TEST_F(ARowLaidOut, KeepsItsPartsTheirSizeOnTheScreenInANewScale) {
  useIcons();
  row().SetScaleMode(kTwips);
  EXPECT_EQ(row().LabelWidth(), 1500);
  EXPECT_EQ(row().ValueWidth(), 1500);
  EXPECT_EQ(row().GetIcon1Width(), 240);
  EXPECT_EQ(row().imgIcon1().pixelSize().width, 16);
  EXPECT_DOUBLE_EQ(editor().pixelSize().width, 100);
  row().SetScaleMode(3);
  EXPECT_EQ(row().LabelWidth(), 100);
  EXPECT_EQ(row().GetIcon1Width(), 16);
}

TEST_F(ARowLaidOut, CentresInABandOfSevenPixelsAndATextInTwips) {
  row().SetScaleMode(kTwips);
  row().SetHorizontalSpacing(60);
  EXPECT_EQ(row().lblLabel().Height(), 195);
  EXPECT_EQ(row().lblLabel().Top(), 52);  // (105 + 195 - 195) / 2 is 52.5
  EXPECT_EQ(row().lblLabel().Left(), 60);
}

TEST_F(ARowLaidOut, RoundsTheTextHeightBeforeItAddsTheBand) {
  platform.setTextSize(6, 13.5);
  row().SetFont(row().Font());
  // A text of 14 in a band of 21.
  EXPECT_EQ(row().lblLabel().Height(), 14);
  EXPECT_EQ(row().lblLabel().Top(), 4);
  useType(qrnTypeBoolean);
  EXPECT_EQ(editor().onSurface().height, 21);
}

TEST_F(ARowLaidOut, RoundsPositionsToWholeUnitsOfItsScale) {
  row().SetScaleMode(kMillimetres);
  // A text of 3.44 mm is 3 high in a band of 5.
  EXPECT_EQ(row().lblLabel().Height(), 3);
  EXPECT_EQ(row().lblLabel().Top(), 1);
  EXPECT_EQ(row().lblLabel().Left(), 4);
}

TEST_F(ARowLaidOut, PutsItsEditorIntoTheSameScale) {
  row().SetScaleMode(kTwips);
  for (const qrnValueType type : {qrnTypeBoolean, qrnTypeList, qrnTypeBitfield}) {
    useType(type);
    row().SetValueWidth(900);
    EXPECT_DOUBLE_EQ(editor().pixelSize().width, 60) << type;
    EXPECT_EQ(dynamic_cast<CompositeEditor&>(*editor().Parent()).ScaleMode(), kTwips) << type;
  }
}

}  // namespace
}  // namespace qrn::test
