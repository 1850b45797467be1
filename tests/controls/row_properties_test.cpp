#include <algorithm>

#include "row_fixture.h"

namespace qrn::test {
namespace {

using ARow = RowTest;

Variant read(QRNEdit& row, std::string_view name) { return row.classTable().find(name)->read(row); }
void write(QRNEdit& row, std::string_view name, const Variant& value) {
  row.classTable().find(name)->write(row, value);
}

Events keysOf(const host::PropertyBag& bag) {
  Events keys;
  for (const auto& item : bag.items()) keys.push_back(item.key);
  return keys;
}

// ---- a new row ----

TEST_F(ARow, StartsWithoutAnEditorAndWithTheTextsOfTheDesign) {
  EXPECT_EQ(row().CurrentEditor(), nullptr);
  EXPECT_EQ(row().ValueType(), qrnTypeString);
  EXPECT_EQ(row().LabelText(), "Label");
  EXPECT_EQ(row().UnitText(), "Unit");
  EXPECT_EQ(row().HorizontalSpacing(), 4);
  EXPECT_EQ(row().Alignment(), 0);
  EXPECT_EQ(row().Icon1Column(), 1);
  EXPECT_EQ(row().Icon2Column(), 4);
  EXPECT_EQ(row().Icon1ButtonMode(), qrnbuttonNone);
  EXPECT_EQ(row().Icon2ButtonMode(), qrnbuttonNone);
  EXPECT_EQ(row().ValueMaxLength(), 65535);
}

TEST_F(ARow, StartsWithEverythingVisibleAndNothingHidden) {
  EXPECT_TRUE(row().LabelVisible() && row().ValueVisible() && row().UnitVisible());
  EXPECT_TRUE(row().Icon1Visible() && row().Icon2Visible());
  EXPECT_FALSE(row().Icon1Hidden() || row().Icon2Hidden());
  EXPECT_TRUE(row().Enabled());
  EXPECT_FALSE(row().Locked() || row().ValueUpperCase() || row().Password());
}

TEST_F(ARow, TakesColoursAndFontFromItsContainerWhenItIsNew) {
  site.ambientProperties.backColor = host::rgb(1, 2, 3);
  site.ambientProperties.foreColor = host::rgb(4, 5, 6);
  site.ambientProperties.font = std::make_shared<host::Font>("Serif", 14);
  const auto fresh = host::create<QRNEdit>(site);
  EXPECT_EQ(fresh->BackColor(), host::rgb(1, 2, 3));
  EXPECT_EQ(fresh->ForeColor(), host::rgb(4, 5, 6));
  EXPECT_EQ(*fresh->Font(), host::Font("Serif", 14));
}

TEST_F(ARow, WithoutAnEditorHasNoValueWidthAndKeepsNone) {
  row().SetValueWidth(70);
  EXPECT_EQ(row().ValueWidth(), 0);
  EXPECT_EQ(row().GetMinValueWidth(), 0);
  EXPECT_EQ(notified(), Events{});
}

TEST_F(ARow, WithoutAnEditorTakesValuesWithoutShowingThem) {
  for (const Variant& value : {Variant("text"), Variant(5.0), Variant(Null()), Variant()}) {
    EXPECT_EQ(errorOf([&] { row().SetValue(value); }), 0);
    EXPECT_EQ(row().ValueText(), "");
    EXPECT_FALSE(row().ValueChanged());
  }
  row().SetSelection(0, 2);
  row().SetValueChanged(false);
  row().SetValueToolTip("tip");
  row().SetValueForeColor(0xFF);
  EXPECT_EQ(row().ValueToolTip(), "");
  EXPECT_EQ(row().ValueCount(), 0);
}

// ---- setters ----

struct Change {
  std::string_view name;
  Variant value;
  Events keys;
  bool laysOut;

  friend void PrintTo(const Change& change, std::ostream* out) { *out << change.name; }
};

// Every setter of the row, with a value that differs from that of a restored row.
std::vector<Change> changes() {
  const host::FontPtr font = std::make_shared<host::Font>("Serif", 12);
  return {
      {"ScaleMode", Variant(3), {"ScaleMode"}, true},
      {"ValueType", Variant(2), {"ValueType"}, true},
      {"BackColor", Variant(255), {"BackColor"}, false},
      {"ForeColor", Variant(255), {"ForeColor"}, false},
      {"Enabled", Variant(false), {"Enabled"}, false},
      {"Font", host::toVariant(font), {"Font"}, true},
      {"HorizontalSpacing", Variant(9), {"HorizontalSpacing"}, true},
      {"Alignment", Variant(2), {"Alignment"}, true},
      {"LabelWidth", Variant(60), {"LabelWidth"}, true},
      {"LabelAlignment", Variant(1), {"LabelAlignment"}, false},
      {"LabelToolTip", Variant("tip"), {"LabelToolTip"}, false},
      {"LabelText", Variant("Damping"), {"LabelText"}, false},
      {"LabelVisible", Variant(false), {"LabelVisible"}, true},
      {"Icon1Column", Variant(2), {"Icon1Column"}, true},
      {"Icon1ToolTip", Variant("tip"), {"Icon1ToolTip"}, false},
      {"Icon1Picture", host::toVariant(picture(16, 15)), {"Icon1Picture"}, true},
      {"Icon1Visible", Variant(false), {"Icon1Visible"}, true},
      {"Icon1Hidden", Variant(true), {"Icon1Hidden"}, false},
      {"Icon1ButtonMode", Variant(1), {"Icon1ButtonMode"}, true},
      {"Icon2Column", Variant(2), {"Icon2Column"}, true},
      {"Icon2ToolTip", Variant("tip"), {"Icon2ToolTip"}, false},
      {"Icon2Picture", host::toVariant(picture(16, 15)), {"Icon2Picture"}, true},
      {"Icon2Visible", Variant(false), {"Icon2Visible"}, true},
      {"Icon2Hidden", Variant(true), {"Icon2Hidden"}, false},
      {"Icon2ButtonMode", Variant(2), {"Icon2ButtonMode"}, true},
      {"ValueWidth", Variant(60), {"ValueWidth"}, true},
      {"ValueText", Variant("abc"), {"Value", "ValueText"}, false},
      {"Value", Variant("abc"), {"Value", "ValueText"}, false},
      {"ValueToolTip", Variant("tip"), {"ValueToolTip"}, false},
      {"ValueAlignment", Variant(1), {"ValueAlignment"}, false},
      {"Locked", Variant(true), {"Locked"}, false},
      {"ValueVisible", Variant(false), {"ValueVisible"}, true},
      {"ValueForeColor", Variant(255), {"ValueForeColor"}, false},
      {"ValueUpperCase", Variant(true), {"ValueUpperCase"}, false},
      {"ValueMaxLength", Variant(8), {"ValueMaxLength"}, false},
      {"Password", Variant(true), {"Password"}, false},
      {"ValueRule", Variant("0..5"), {"ValueRule"}, false},
      {"ValueCharSet", Variant("0-9"), {"ValueCharSet"}, false},
      {"ValueFormat", Variant("0.0"), {"ValueFormat"}, false},
      {"UnitWidth", Variant(60), {"UnitWidth"}, true},
      {"UnitText", Variant("mbar"), {"UnitText"}, false},
      {"UnitToolTip", Variant("tip"), {"UnitToolTip"}, false},
      {"UnitAlignment", Variant(1), {"UnitAlignment"}, false},
      {"UnitVisible", Variant(false), {"UnitVisible"}, true},
  };
}

class EverySetter : public RowTest, public ::testing::WithParamInterface<Change> {
 protected:
  EverySetter() {
    useType(qrnTypeString);
    notified();
  }
};

TEST_P(EverySetter, AppliesNotifiesAndLaysOutAsItsPropertyDoes) {
  const auto& [name, value, keys, lays] = GetParam();
  EXPECT_EQ(laysOut([&] { write(row(), name, value); }), lays);
  EXPECT_EQ(notified(), keys);
  EXPECT_TRUE(host::sameValue(Variant(read(row(), name)), value) || name == "ScaleMode");
}

std::vector<Change> comparedChanges() {
  auto result = changes();
  std::erase_if(result, [](const Change& change) {
    constexpr std::string_view kAlways[] = {"ScaleMode", "ValueType", "Font", "Value", "ValueText"};
    return std::find(std::begin(kAlways), std::end(kAlways), change.name) != std::end(kAlways);
  });
  return result;
}

class EveryComparingSetter : public EverySetter {};

TEST_P(EveryComparingSetter, DoesNothingWithTheValueThatIsThere) {
  const auto& [name, value, keys, lays] = GetParam();
  write(row(), name, value);
  notified();
  EXPECT_FALSE(laysOut([&] { write(row(), name, value); }));
  EXPECT_EQ(notified(), Events{});
}

INSTANTIATE_TEST_SUITE_P(Row, EverySetter, ::testing::ValuesIn(changes()),
                         [](const auto& change) { return std::string(change.param.name); });
INSTANTIATE_TEST_SUITE_P(Row, EveryComparingSetter, ::testing::ValuesIn(comparedChanges()),
                         [](const auto& change) { return std::string(change.param.name); });

TEST(RowProperties, AreAllAmongTheSettersTestedAboveOrCanOnlyBeRead) {
  registerControls();
  headless::HeadlessPlatform platform;
  headless::HeadlessSite site(platform);
  const auto row = host::create<QRNEdit>(site);
  const auto tested = changes();
  for (const host::Property& property : row->classTable().properties) {
    const bool listed = std::any_of(tested.begin(), tested.end(),
                                    [&](const Change& change) { return change.name == property.name; });
    EXPECT_TRUE(listed || !property.write || property.name == "Redraw") << property.name;
  }
}

TEST_F(ARow, LaysOutOnEveryAssignmentOfFontScaleModeAndValueType) {
  useType(qrnTypeLong);
  EXPECT_TRUE(laysOut([&] { row().SetFont(row().Font()); }));
  EXPECT_TRUE(laysOut([&] { row().SetScaleMode(row().ScaleMode()); }));
  EXPECT_TRUE(laysOut([&] { row().SetValueType(qrnTypeLong); }));
}

TEST_F(ARow, NotifiesOfEveryValueEvenIfItIsTheSame) {
  useType(qrnTypeLong);
  row().SetValue(Variant(5));
  notified();
  row().SetValue(Variant(5));
  EXPECT_EQ(notified(), (Events{"Value", "ValueText"}));
  row().SetValueText("5");
  EXPECT_EQ(notified(), (Events{"Value", "ValueText"}));
}

TEST_F(ARow, StoresAMaximumLengthOutsideItsLimitsAsTheLargest) {
  useType(qrnTypeString);
  row().SetValueMaxLength(-5);
  EXPECT_EQ(row().ValueMaxLength(), 65535);
  row().SetValueMaxLength(0);
  EXPECT_EQ(row().ValueMaxLength(), 0);
  EXPECT_EQ(textBox().MaxLength(), 0);
  row().SetValueMaxLength(65536);
  EXPECT_EQ(row().ValueMaxLength(), 65535);
  EXPECT_EQ(textBox().MaxLength(), 65535);
}

TEST_F(ARow, ComparesItsRuleWithRegardToCase) {
  row().SetValueRule("a*");
  notified();
  row().SetValueRule("A*");
  EXPECT_EQ(row().ValueRule(), "A*");
  EXPECT_EQ(notified(), Events{"ValueRule"});
}

TEST_F(ARow, LeavesEverythingInPlaceWhenATextChangesUntilTheNextLayout) {
  useType(qrnTypeString);
  const double before = textBox().Left();
  row().SetLabelText("a caption that is far too long for its room");
  row().SetUnitText("a unit as well");
  EXPECT_EQ(textBox().Left(), before);
  EXPECT_TRUE(laysOut([&] { row().SetLabelWidth(120); }));
  EXPECT_TRUE(laysOut([&] { row().SetWidth(500); }));
}

TEST_F(ARow, LaysOutForANewIconOnlyWhenItsSizeDiffers) {
  row().SetIcon1Picture(picture(16, 16));
  EXPECT_FALSE(laysOut([&] { row().SetIcon1Picture(picture(16, 16)); }));
  EXPECT_TRUE(laysOut([&] { row().SetIcon1Picture(picture(16, 15)); }));
  EXPECT_TRUE(laysOut([&] { row().SetIcon1Picture(picture(15, 15)); }));
  EXPECT_TRUE(laysOut([&] { row().SetIcon1Picture(nullptr); }));
}

TEST_F(ARow, ShowsAnIconOnlyWithAColumnVisibleAndNotHidden) {
  EXPECT_TRUE(row().imgIcon1().Visible());
  row().SetIcon1Hidden(true);
  EXPECT_FALSE(row().imgIcon1().Visible());
  row().SetIcon1Hidden(false);
  row().SetIcon1Column(0);
  EXPECT_FALSE(row().imgIcon1().Visible());
  row().SetIcon1Column(-3);
  EXPECT_FALSE(row().imgIcon1().Visible());
  row().SetIcon1Column(3);
  EXPECT_TRUE(row().imgIcon1().Visible());
  row().SetIcon1Visible(false);
  EXPECT_FALSE(row().imgIcon1().Visible());
}

TEST_F(ARow, AppliesAHiddenFlagEvenWhileItIsNotLaidOut) {
  row().SetRedraw(false);
  row().SetIcon2Hidden(true);
  EXPECT_FALSE(row().imgIcon2().Visible());
}

TEST_F(ARow, PassesItsEnabledStateOnToItsTexts) {
  useType(qrnTypeLong);
  row().SetEnabled(false);
  EXPECT_FALSE(row().lblLabel().Enabled() || row().lblUnit().Enabled() || textBox().Enabled());
  row().SetEnabled(true);
  EXPECT_TRUE(row().lblLabel().Enabled() && row().lblUnit().Enabled() && textBox().Enabled());
}

TEST_F(ARow, PaintsItsTextsInItsForeColor) {
  row().SetForeColor(host::rgb(0x12, 0x34, 0x56));
  // The unit lies behind a spacing, the caption and its spacing, with no icon pictures and no editor.
  EXPECT_EQ(painted("text"), (Events{"text 4,4 \"Label\" #123456", "text 112,4 \"Unit\" #123456"}));
}

// ---- redraw ----

TEST_F(ARow, RefusesRedrawAtDesignTime) {
  site.ambientProperties.userMode = false;
  EXPECT_EQ(errorOf([&] { row().Redraw(); }), 394);
  EXPECT_EQ(errorOf([&] { row().SetRedraw(false); }), 383);
}

TEST_F(ARow, IsLaidOutOnceRedrawIsSwitchedOnAgain) {
  row().SetRedraw(false);
  EXPECT_FALSE(laysOut([&] { row().SetLabelWidth(33); }));
  EXPECT_FALSE(laysOut([&] { row().SetWidth(400); }));
  EXPECT_TRUE(laysOut([&] { row().SetRedraw(true); }));
  EXPECT_FALSE(laysOut([&] { row().SetRedraw(true); }));
}

TEST_F(ARow, IsNotLaidOutWhileItIsHiddenAndIsWhenItIsShown) {
  EXPECT_TRUE(row().Redraw());
  row().SetVisible(false);
  EXPECT_FALSE(row().Redraw());
  EXPECT_FALSE(laysOut([&] { row().SetLabelWidth(33); }));
  EXPECT_TRUE(laysOut([&] { row().SetVisible(true); }));
  EXPECT_TRUE(row().Redraw());
}

TEST_F(ARow, IsLaidOutWhenShownEvenIfRedrawWasSwitchedOnBefore) {
  row().SetVisible(false);
  row().SetRedraw(true);
  EXPECT_TRUE(laysOut([&] { row().SetVisible(true); }));
}

// ---- saved and restored ----

TEST_F(ARow, RestoredFromAnEmptyBagHasTheDefaults) {
  useBag({});
  EXPECT_EQ(row().LabelText(), "Label:");
  EXPECT_EQ(row().UnitText(), "Unit");
  EXPECT_EQ(row().LabelWidth(), 100);
  EXPECT_EQ(row().ValueWidth(), 100);
  EXPECT_EQ(row().UnitWidth(), 100);
  EXPECT_EQ(row().HorizontalSpacing(), 4);
  EXPECT_EQ(row().Icon1Column(), 1);
  EXPECT_EQ(row().Icon2Column(), 4);
  EXPECT_EQ(row().BackColor(), 0x8000000Fu);
  EXPECT_EQ(row().ForeColor(), 0x80000012u);
  EXPECT_EQ(row().ValueForeColor(), 0x80000008u);
  EXPECT_EQ(row().ValueText(), "");
  EXPECT_FALSE(row().ValueChanged());
}

TEST_F(ARow, RestoredFromAnEmptyBagConvertsNoEmptyText) {
  for (int type = qrnTypeString; type <= qrnTypeHexadecimal; ++type) {
    host::PropertyBag bag;
    bag.writeProperty("ValueType", Variant(type));
    EXPECT_EQ(errorOf([&] { useBag(bag); }), 0) << type;
    EXPECT_EQ(row().ValueType(), type);
    EXPECT_EQ(row().ValueChanged(), type == qrnTypeArray) << type;
  }
}

TEST_F(ARow, SavedUnchangedLeavesAnEmptyBag) {
  site.ambientProperties.font = platform.defaultFont();
  useBag({});
  EXPECT_EQ(keysOf(saved()), Events{});
}

TEST_F(ARow, SavesItsPropertiesInTheirOwnOrder) {
  useBag({});
  row().SetScaleMode(1);
  for (const Change& change : changes()) {
    if (change.name != "ScaleMode") write(row(), change.name, change.value);
  }
  row().SetValueText("7");
  row().SetScaleMode(1);
  EXPECT_EQ(
      keysOf(saved()),
      (Events{"ValueType",         "BackColor",      "ForeColor",       "Enabled",         "Font",
              "HorizontalSpacing", "Alignment",      "LabelWidth",      "LabelAlignment",  "LabelToolTip",
              "LabelText",         "LabelVisible",   "Icon1Column",     "Icon1ToolTip",    "Icon1Picture",
              "Icon1Visible",      "Icon1Hidden",    "Icon1ButtonMode", "Icon2Column",     "Icon2ToolTip",
              "Icon2Picture",      "Icon2Visible",   "Icon2Hidden",     "Icon2ButtonMode", "ValueWidth",
              "ValueText",         "ValueToolTip",   "ValueAlignment",  "Locked",          "ValueVisible",
              "ValueForeColor",    "ValueUpperCase", "ValueMaxLength",  "ValueRule",       "ValueCharSet",
              "UnitWidth",         "UnitText",       "UnitToolTip",     "UnitAlignment",   "UnitVisible",
              "ValueFormat",       "Password",       "ScaleMode"}));
}

TEST_F(ARow, ComesBackFromABagAsItWasSaved) {
  useBag({});
  for (const Change& change : changes()) write(row(), change.name, change.value);
  row().SetScaleMode(1);
  row().SetValueText("7");
  const host::PropertyBag first = saved();
  useBag(host::PropertyBag::fromText(first.toText()));
  EXPECT_EQ(saved().toText(), first.toText());
  EXPECT_EQ(row().ValueText(), "7.0");
}

TEST_F(ARow, RestoresItsFieldsWithoutNotification) {
  host::PropertyBag bag;
  for (const char* flag : {"LabelVisible", "ValueVisible", "UnitVisible", "Icon1Visible", "Icon2Visible"}) {
    bag.writeProperty(flag, Variant(false));
  }
  bag.writeProperty("Icon1Hidden", Variant(true));
  bag.writeProperty("HorizontalSpacing", Variant(7));
  bag.writeProperty("Alignment", Variant(1));
  bag.writeProperty("Icon1Column", Variant(3));
  bag.writeProperty("Icon2ButtonMode", Variant(2));
  bag.writeProperty("ValueRule", Variant("1..2"));
  bag.writeProperty("ValueCharSet", Variant("0-9"));
  bag.writeProperty("ValueFormat", Variant("0.0"));
  notified();
  useBag(bag);
  // The three that notify always, and those that go through a setter with another value than a new row's.
  EXPECT_EQ(notified(), (Events{"ScaleMode", "ValueType", "Font", "LabelText"}));
  EXPECT_EQ(row().HorizontalSpacing(), 7);
  EXPECT_EQ(row().Icon2ButtonMode(), qrnButtonEmbossed);
  EXPECT_EQ(row().ValueFormat(), "0.0");
  EXPECT_FALSE(row().imgIcon1().Visible());
}

TEST_F(ARow, IsRestoredInItsOwnScale) {
  host::PropertyBag bag;
  bag.writeProperty("ScaleMode", Variant(std::int16_t{1}));
  bag.writeProperty("LabelWidth", Variant(900));
  useBag(bag);
  EXPECT_EQ(row().LabelWidth(), 900);
  EXPECT_EQ(row().ValueWidth(), 100);
  EXPECT_EQ(row().lblLabel().pixelSize().width, 60);
}

TEST_F(ARow, ShowsTheTextOfABagBeforeItsFormatArrives) {
  host::PropertyBag bag;
  bag.writeProperty("ValueType", Variant(4));
  bag.writeProperty("ValueText", Variant("1.5"));
  bag.writeProperty("ValueFormat", Variant("0.000"));
  useBag(bag);
  EXPECT_EQ(row().ValueText(), "1.5");
}

TEST_F(ARow, CanBeRestoredWithTheNameOfAnEntryThatIsNotThereYet) {
  useType(qrnTypeList);
  addEntries({"50", "60"});
  row().SetValue(Variant(1));
  const host::PropertyBag bag = saved();
  ASSERT_EQ(bag.readProperty("ValueText"), Variant("60"));
  EXPECT_EQ(errorOf([&] { useBag(bag); }), 0);
  EXPECT_EQ(row().Value(), Variant(-1));
  EXPECT_EQ(row().UnitWidth(), 100);
}

TEST_F(ARow, CanBeSavedWithANegativeHexadecimalValue) {
  useType(qrnTypeHexadecimal);
  row().SetValue(Variant(-1));
  EXPECT_EQ(errorOf([&] { saved(); }), 0);
  EXPECT_EQ(row().ValueText(), "");
}

}  // namespace
}  // namespace qrn::test
