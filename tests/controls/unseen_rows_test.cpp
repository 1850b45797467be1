#include "host/prog_ids.h"
#include "platform/headless/recording_surface.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

template <class Action>
std::string refusalOf(Action&& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return error.source() + ": " + std::to_string(error.number());
  }
  return "nothing";
}

/// A hundred rows, of which the panel shows the first thirteen.
class UnseenRows : public PanelTest {
 protected:
  UnseenRows() {
    for (int i = 0; i < 100; ++i) panel().Items().AddParameter("", qrnTypeLong);
    panel().LayoutControls(false);
  }
  void paint() {
    headless::RecordingSurface target(platform, {400, 300});
    panel().paintTree(target);
  }
  bool hasParts(std::int32_t position) { return !row(position).inside().empty(); }
  template <class T>
  T& editor(std::int32_t position) {
    return dynamic_cast<T&>(*row(position).CurrentEditor());
  }
};

TEST_F(UnseenRows, HaveNoLabelsIconsAndEditorsYet) {
  EXPECT_FALSE(hasParts(1));
  paint();
  EXPECT_TRUE(hasParts(1));
  EXPECT_TRUE(hasParts(10));
  EXPECT_FALSE(hasParts(50));
}

TEST_F(UnseenRows, ShowWhatTheirPropertiesSayOnceTheyAreSeen) {
  QRNEdit& unseen = row(50);
  unseen.SetLabelText("Pressure");
  unseen.SetLabelAlignment(1);
  unseen.SetLabelToolTip("at the sensor");
  unseen.SetUnitText("bar");
  unseen.SetUnitVisible(false);
  unseen.SetIcon2ToolTip("Information");
  unseen.SetEnabled(false);
  EXPECT_FALSE(hasParts(50));
  EXPECT_EQ(unseen.lblLabel().Caption(), "Pressure");
  EXPECT_EQ(unseen.lblLabel().Alignment(), 1);
  EXPECT_EQ(unseen.lblLabel().ToolTipText(), "at the sensor");
  EXPECT_FALSE(unseen.lblLabel().Enabled());
  EXPECT_EQ(unseen.lblUnit().Caption(), "bar");
  EXPECT_FALSE(unseen.lblUnit().Visible());
  EXPECT_EQ(unseen.imgIcon2().ToolTipText(), "Information");
  EXPECT_EQ(unseen.imgIcon2().Picture(), unseen.Icon2Picture());
  EXPECT_EQ(unseen.lblLabel().Width(), unseen.LabelWidth());
}

TEST_F(UnseenRows, GiveNobodyTheNameOfAPartThatIsYetToBeMade) {
  for (const char* name : {"lblLabel", "imgIcon1", "imgIcon2", "LBLUNIT", "txtValue"}) {
    QRNEdit& unseen = panel().Items().AddParameter("", qrnTypeLong)->Control();
    EXPECT_EQ(refusalOf([&] { unseen.controls().add("VB.TextBox", name, unseen); }), "QRNEdit: 727") << name;
  }
}

TEST_F(UnseenRows, AreMeasuredLikeAnyOther) {
  const auto before = row(1).LabelWidth();
  row(50).SetLabelText("a caption that is longer than all the others");
  panel().LayoutControls(true);
  EXPECT_GT(row(1).LabelWidth(), before);
  EXPECT_EQ(row(50).LabelWidth(), row(1).LabelWidth());
  EXPECT_FALSE(hasParts(50));
}

TEST_F(UnseenRows, StayAsTheyWereSeenWhileTheyAreNotToBeLaidOut) {
  paint();
  const double left = row(1).CurrentEditor()->Left();
  row(1).SetRedraw(false);
  row(1).SetLabelWidth(row(1).LabelWidth() + 50);
  EXPECT_EQ(row(1).CurrentEditor()->Left(), left);
  row(1).SetRedraw(true);
  EXPECT_EQ(row(1).CurrentEditor()->Left(), left + 50);
}

TEST_F(UnseenRows, AreArrangedFirstWhenTheyStillWereToBeAndMayNotBeAnyMore) {
  paint();
  const double left = row(1).CurrentEditor()->Left();
  row(1).SetLabelWidth(row(1).LabelWidth() + 10);
  row(1).SetRedraw(false);
  row(1).SetLabelWidth(row(1).LabelWidth() + 50);
  EXPECT_EQ(row(1).CurrentEditor()->Left(), left + 10);
}

// ---- what they have instead of an editor ----

TEST_F(UnseenRows, StayAsTheyWereToBeArrangedWhenTheyGrowWhileTheyAreNotToBeLaidOut) {
  QRNEdit& grown = row(50);
  QRNEdit& other = row(51);
  for (QRNEdit* one : {&grown, &other}) {
    one->SetAlignment(1);
    one->lblUnit();
    one->SetLabelWidth(77);
    one->SetRedraw(false);
  }
  grown.SetWidth(grown.Width() + 100);
  EXPECT_EQ(grown.lblUnit().Left(), other.lblUnit().Left());
  grown.SetRedraw(true);
  EXPECT_EQ(grown.lblUnit().Left(), other.lblUnit().Left() + 100);
}

TEST_F(UnseenRows, GiveANewEditorItsWidthWhileTheyAreNotToBeLaidOut) {
  QRNEdit& seen = row(50);
  seen.lblUnit();
  seen.SetRedraw(false);
  seen.SetValueType(qrnTypeList);
  EXPECT_EQ(seen.CurrentEditor()->Parent()->Width(), seen.ValueWidth());
}

TEST_F(UnseenRows, HaveABitListAsHighAsItWasToBeWhenTheyWereLaidOut) {
  for (const bool looked : {false, true}) {
    QRNEdit& bits = panel().Items().AddParameter("", qrnTypeBitfield)->Control();
    bits.SetValueCount(4);
    panel().LayoutControls(false);
    if (looked) bits.lblUnit();
    bits.SetValueCount(1);
    EXPECT_EQ(bits.CurrentEditor()->Parent()->Height(), 4 * (13 + 2) + 5);
  }
}

TEST_F(UnseenRows, ArrangeNoEditorThatIsHalfMade) {
  panel().realise();
  QRNEdit& unseen = row(50);
  unseen.SetScaleMode(1);
  unseen.SetValueType(qrnTypeList);
  unseen.SetValueForeColor(0xFF);
  EXPECT_EQ(unseen.CurrentEditor()->Parent()->Height(), 21 * 15);
}

TEST_F(UnseenRows, ArePaintedWhenTheyComeToAPanelThatIsShown) {
  panel().realise();
  paint();
  auto& peer = static_cast<headless::HeadlessPeer&>(*panel().peer());
  peer.invalidated.clear();
  const auto added = panel().Items().AddParameter("new", qrnTypeLong);
  ASSERT_FALSE(peer.invalidated.empty());
  EXPECT_TRUE(peer.invalidated.front().intersects(added->Control().onSurface()));
}

TEST_F(UnseenRows, TakeAnotherFontWhenTheyHaveACheckBoxThatNobodyHasLookedAt) {
  panel().realise();
  QRNEdit& unseen = row(50);
  unseen.SetValueType(qrnTypeBoolean);
  const host::Editor& box = *unseen.CurrentEditor();
  const auto large = std::make_shared<host::Font>("Serif", 20);
  unseen.SetFont(large);
  EXPECT_EQ(box.Font(), large);
}

TEST_F(UnseenRows, HoldTheirValuesAndShowThemOnceTheyAreSeen) {
  row(50).SetValue(Variant(42));
  row(51).SetValueType(qrnTypeHexadecimal);
  row(51).SetValue(Variant(255));
  row(52).SetValueType(qrnTypeBoolean);
  row(52).SetValue(Variant(true));
  row(53).SetValueType(qrnTypeList);
  for (int i = 0; i < 3; ++i) row(53).SetValueNames(i, "entry " + std::to_string(i));
  row(53).SetValueItems(2, 7);
  row(53).SetValue(Variant(2));
  for (std::int32_t position = 50; position <= 53; ++position) {
    EXPECT_FALSE(hasParts(position)) << position;
    EXPECT_FALSE(row(position).ValueChanged()) << position;
    EXPECT_EQ(row(position).ValueError(), qrnErrorNone) << position;
  }
  EXPECT_EQ(row(50).Value(), Variant(42));
  EXPECT_EQ(row(51).ValueText(), "255");
  EXPECT_EQ(row(52).Value(), Variant(true));
  EXPECT_EQ(row(53).ValueText(), "entry 2");
  EXPECT_EQ(editor<host::TextBox>(50).Text(), "42");
  EXPECT_EQ(editor<host::TextBox>(51).Text(), "FF");
  EXPECT_EQ(editor<host::CheckBox>(52).Value(), 1);
  EXPECT_EQ(editor<host::ComboBox>(53).Text(), "entry 2");
  EXPECT_EQ(editor<host::ComboBox>(53).ItemData(2), 7);
  EXPECT_EQ(editor<host::ComboBox>(53).NewIndex(), 2);
  for (std::int32_t position = 50; position <= 53; ++position)
    EXPECT_FALSE(row(position).ValueChanged()) << position;
}

TEST_F(UnseenRows, GiveTheirSettingsToTheEditorThatIsMadeForThem) {
  QRNEdit& unseen = row(50);
  unseen.SetValueAlignment(2);
  unseen.SetLocked(true);
  unseen.SetValueUpperCase(true);
  unseen.SetValueMaxLength(12);
  unseen.SetPassword(true);
  unseen.SetValueForeColor(host::rgb(1, 2, 3));
  unseen.SetValueToolTip("in bar");
  EXPECT_EQ(unseen.ValueForeColor(), host::rgb(1, 2, 3));
  EXPECT_EQ(unseen.ValueToolTip(), "in bar");
  EXPECT_FALSE(hasParts(50));
  const auto& box = editor<host::TextBox>(50);
  EXPECT_EQ(box.Alignment(), 2);
  EXPECT_TRUE(box.Locked());
  EXPECT_EQ(box.BackColor(), host::kButtonFace);
  EXPECT_TRUE(box.upperCase());
  EXPECT_EQ(box.MaxLength(), 12);
  EXPECT_EQ(box.PasswordChar(), "*");
  EXPECT_EQ(box.ForeColor(), host::rgb(1, 2, 3));
  EXPECT_EQ(box.ToolTipText(), "in bar");
  EXPECT_EQ(unseen.ValueToolTip(), "in bar");
}

TEST_F(UnseenRows, HaveAnEditorThatIsHiddenIfItWouldHaveBeen) {
  row(50).SetValueVisible(false);
  row(51).SetValueType(qrnTypeBoolean);
  row(51).SetValueVisible(false);
  row(51).SetEnabled(false);
  EXPECT_FALSE(row(50).CurrentEditor()->Visible());
  EXPECT_FALSE(row(51).CurrentEditor()->Visible());
  EXPECT_FALSE(row(51).CurrentEditor()->Enabled());
  row(50).SetValueVisible(true);
  row(51).SetValueVisible(true);
  EXPECT_TRUE(row(50).CurrentEditor()->shown());
  EXPECT_TRUE(row(51).CurrentEditor()->shown());
}

TEST_F(UnseenRows, ShowAndHideTheirEditorWhenTheyAreLaidOutWhetherItIsThereOrNot) {
  for (const std::int32_t position : {50, 51}) {
    QRNEdit& unseen = row(position);
    if (position == 51) unseen.CurrentEditor();
    unseen.SetRedraw(false);
    unseen.SetValueVisible(false);
    EXPECT_TRUE(unseen.CurrentEditor()->Visible()) << position;
    unseen.SetRedraw(true);
    EXPECT_FALSE(unseen.CurrentEditor()->Visible()) << position;
  }
  for (const std::int32_t position : {60, 61}) {
    QRNEdit& unseen = row(position);
    unseen.SetValueType(qrnTypeArray);
    unseen.SetRedraw(false);
    unseen.SetValueVisible(false);
    unseen.SetValueType(qrnTypeLong);
    if (position == 61) unseen.CurrentEditor();
    unseen.SetValueVisible(true);
    unseen.SetRedraw(true);
    EXPECT_TRUE(unseen.CurrentEditor()->Visible()) << position;
  }
}

TEST_F(UnseenRows, HideANewEditorAtOnceInsteadOfAHiddenOne) {
  paint();
  for (const std::int32_t position : {1, 50}) {
    row(position).SetValueVisible(false);
    row(position).SetRedraw(false);
    row(position).SetValueType(qrnTypeBoolean);
    EXPECT_FALSE(row(position).CurrentEditor()->Visible()) << position;
  }
}

TEST_F(UnseenRows, GoWithoutAnEditorWhoseClassIsNotKnownAnyMore) {
  row(50).SetValueType(qrnTypeBoolean);
  row(50).SetValueToolTip("on or off");
  EXPECT_TRUE(row(50).hasEditor());
  host::setControlClasses({});
  EXPECT_EQ(row(50).CurrentEditor(), nullptr);
  registerControls();
  EXPECT_FALSE(row(50).hasEditor());
  EXPECT_EQ(row(50).GetMinValueWidth(), 0);
  EXPECT_EQ(row(50).ValueToolTip(), "");
  row(50).SetValueType(qrnTypeBoolean);
  EXPECT_NE(row(50).CurrentEditor(), nullptr);
}

TEST_F(UnseenRows, AreMeasuredInTheFontThatTheirEditorHas) {
  row(50).SetValue(Variant(1234));
  const auto before = row(50).GetMinValueWidth();
  const auto large = std::make_shared<host::Font>("Sans", 20);
  static_cast<headless::FixedMetrics&>(platform.metrics(*large)).characterWidth = 11;
  row(50).CurrentEditor()->SetFont(large);
  EXPECT_EQ(row(50).GetMinValueWidth(), before + 4 * (11 - 6));
  row(50).CurrentEditor()->SetFont(row(50).Font());
  EXPECT_EQ(row(50).GetMinValueWidth(), before);
}

TEST_F(UnseenRows, KeepColourAndToolTipWhenTheyNeedAnotherEditorAndLoseThemWithoutOne) {
  for (const std::int32_t position : {50, 51}) {
    row(position).SetValueForeColor(host::rgb(1, 2, 3));
    row(position).SetValueToolTip("in bar");
  }
  row(50).SetValueType(qrnTypeBoolean);
  EXPECT_EQ(row(50).ValueForeColor(), host::rgb(1, 2, 3));
  EXPECT_EQ(row(50).ValueToolTip(), "in bar");
  row(51).SetValueType(qrnTypeArray);
  EXPECT_EQ(row(51).ValueToolTip(), "");
  row(51).SetValueType(qrnTypeLong);
  EXPECT_EQ(row(51).ValueForeColor(), host::kWindowText);
  EXPECT_EQ(row(51).ValueToolTip(), "");
}

TEST_F(UnseenRows, RefuseForTheirListsWhatADropListRefuses) {
  QRNEdit& unseen = row(50);
  unseen.SetValueType(qrnTypeList);
  unseen.SetValueCount(2);
  const auto refusals = [&] {
    return std::vector{refusalOf([&] { unseen.ValueNames(2); }),
                       refusalOf([&] { unseen.SetValueItems(-1, 0); }),
                       refusalOf([&] { unseen.SetValue(Variant(2)); })};
  };
  const auto before = refusals();
  EXPECT_EQ(before, std::vector<std::string>(3, "ComboBox: 380"));
  EXPECT_FALSE(hasParts(50));
  unseen.CurrentEditor();
  EXPECT_EQ(refusals(), before);
}

TEST_F(UnseenRows, AreNotMadeEditorsForBecauseTheFocusPassesAnotherRow) {
  row(1).SetFocus();
  EXPECT_TRUE(row(1).hasFocus());
  EXPECT_EQ(panel().nextTabStop(row(1).CurrentEditor(), true), &row(2));
  EXPECT_TRUE(hasParts(2));
  EXPECT_FALSE(hasParts(3));
}

TEST_F(UnseenRows, NeedNoMoreRoomOnceTheyAreSeen) {
  row(50).SetValueType(qrnTypeList);
  row(50).SetValueNames(0, "an entry of a list that is wide");
  row(51).SetValue(Variant(1234567890));
  panel().LayoutControls(true);
  const auto list = row(50).GetMinValueWidth(), number = row(51).GetMinValueWidth();
  const int measured = platform.measuredTexts();
  row(50).CurrentEditor();
  row(51).CurrentEditor();
  panel().LayoutControls(true);
  EXPECT_EQ(row(50).GetMinValueWidth(), list);
  EXPECT_EQ(row(51).GetMinValueWidth(), number);
  EXPECT_EQ(platform.measuredTexts(), measured);
}

// ---- when the columns are fitted again ----

TEST_F(UnseenRows, AreNotFittedAgainUntilSomethingHasChangedThatCounts) {
  panel().LayoutControls(true);
  const auto fitted = row(1).LabelWidth();
  row(7).SetLabelWidth(3);
  panel().LayoutControls(true);
  EXPECT_EQ(row(7).LabelWidth(), fitted) << "the host made it too narrow";
  panel().LayoutControls(true);
  panel().Items().AddParameter("", qrnTypeString)->Control().SetLabelText("one that is much longer than all");
  panel().LayoutControls(true);
  const auto wider = row(1).LabelWidth();
  EXPECT_GT(wider, fitted) << "a new one needs more";
  panel().LayoutControls(true);
  panel().Items().Remove(Variant(101));
  panel().LayoutControls(true);
  EXPECT_LT(row(1).LabelWidth(), wider) << "it has gone, so all are too wide";
}

TEST_F(UnseenRows, AreFittedToAnEditorThatNeedsMore) {
  panel().LayoutControls(true);
  const auto before = row(1).ValueWidth();
  row(80).SetValue(Variant(1234567890));
  panel().LayoutControls(true);
  const auto longer = row(1).ValueWidth();
  EXPECT_GT(longer, before);
  panel().LayoutControls(true);
  row(80).SetValueType(qrnTypeList);
  row(80).SetValueCount(1);
  row(80).SetValueNames(0, "an entry of a list that is wide");
  panel().LayoutControls(true);
  EXPECT_GT(row(1).ValueWidth(), longer);
}

}  // namespace
}  // namespace qrn::test
