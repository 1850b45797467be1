#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

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
  /// The editor is always there; the labels and icons are not.
  bool hasParts(std::int32_t position) { return row(position).inside().size() > 1; }
};

TEST_F(UnseenRows, HaveNoLabelsAndIconsYet) {
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
