#include "host/class_table.h"
#include "row_fixture.h"

namespace qrn::test {
namespace {

using host::PropertyBag;

template <class T>
PropertyBag savedFrom(const T& control) {
  PropertyBag bag;
  control.writeProperties(bag);
  return bag;
}

std::string refusal(const std::function<void()>& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return std::to_string(error.number()) + " " + error.description();
  }
  return "nothing was refused";
}

// ---- panels ----

class SavedPanel : public PanelTest {};

TEST_F(SavedPanel, KeepsSpacingsAndTheHeightOfActionsIn16Bits) {
  panel().SetVerticalSpacing(4);
  panel().SetHorizontalSpacing(-32768);
  panel().SetMenuItemHeight(32767);
  EXPECT_EQ(savedFrom(panel()).toText(),
            "QRNV16Controls2 properties 1\n"
            "VerticalSpacing = Integer 4\n"
            "HorizontalSpacing = Integer -32768\n"
            "MenuItemHeight = Integer 32767\n");
}

TEST_F(SavedPanel, CanNotBeSavedWithASpacingOfMoreBits) {
  panel().SetTitle("Tank");
  panel().SetHorizontalSpacing(40'000);
  PropertyBag bag;
  EXPECT_EQ(refusal([&] { panel().writeProperties(bag); }), "6 Property \"HorizontalSpacing\": Overflow");
  EXPECT_TRUE(bag.items().empty());
}

TEST_F(SavedPanel, CanNotBeRestoredWithASpacingThatItCouldNotSave) {
  const auto bag =
      PropertyBag::fromText("QRNV16Controls2 properties 1\nTitle = \"Tank\"\nMenuItemHeight = Long 40000\n");
  EXPECT_EQ(refusal([&] { host::restoreProperties(panel(), bag); }),
            "321 Property \"MenuItemHeight\": Overflow");
  EXPECT_EQ(panel().Title(), "");
  EXPECT_EQ(panel().MenuItemHeight(), -1);
}

// A larger font makes the title higher and the room for the items smaller, which lays them out again; with so
// many of them that fails, after the font and all before it have been set.
TEST_F(SavedPanel, StaysAsItWasWhenItsItemsCanNotBeLaidOutWithWhatABagHolds) {
  for (int i = 0; i < 2000; ++i) addParameter("");
  panel().SetTitle("before");
  panel().SetVerticalSpacing(3);
  platform.setTextSize(6, 40);
  const std::string before = savedFrom(panel()).toText();
  PropertyBag bag;
  bag.writeProperty("Title", "after");
  bag.writeProperty("VerticalSpacing", std::int16_t{9});
  bag.writeProperty("Font", std::make_shared<host::Font>("Serif", 30));
  EXPECT_EQ(refusal([&] { host::restoreProperties(panel(), bag); }), "321 Property \"Font\": Overflow");
  EXPECT_EQ(savedFrom(panel()).toText(), before);
  EXPECT_EQ(panel().Title(), "before");
  EXPECT_EQ(panel().VerticalSpacing(), 3);
}

// ---- buttons ----

class SavedButton : public PanelTest {
 protected:
  host::Owned<QRNMenuItem> button = host::create<QRNMenuItem>(site);
  host::Owned<QRNMenuItem> restored() {
    const PropertyBag bag = savedFrom(*button);
    return host::create<QRNMenuItem>(site, &bag);
  }
  const std::shared_ptr<host::Picture> withoutPixels =
      std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>());
};

TEST_F(SavedButton, DoesNotKeepAnIconWithoutPixels) {
  ASSERT_TRUE(button->Icon()->empty());
  EXPECT_EQ(savedFrom(*button).find("Icon"), nullptr);
  EXPECT_EQ(restored()->Icon(), nullptr);
}

// It hides the icon of a disabled button, which none would not.
TEST_F(SavedButton, KeepsADisabledIconWithoutPixels) {
  EXPECT_EQ(restored()->IconDisabled(), nullptr);
  button->SetIconDisabled(withoutPixels);
  ASSERT_NE(restored()->IconDisabled(), nullptr);
  EXPECT_TRUE(restored()->IconDisabled()->empty());
}

// ---- rows ----

class SavedRow : public RowTest {};

TEST_F(SavedRow, DoesNotKeepIconsWithoutPixels) {
  useBag({});
  row().SetIcon1Picture(picture(16, 15));
  row().SetIcon2Picture(std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>()));
  EXPECT_NE(saved().find("Icon1Picture"), nullptr);
  EXPECT_EQ(saved().find("Icon2Picture"), nullptr);
}

// The text was formatted when it was saved; the format is for what comes later.
TEST_F(SavedRow, ShowsTheTextOfABagAsItStandsWhateverItsFormatWasBefore) {
  useType(qrnTypeDouble);
  row().SetValueFormat("0.0");
  PropertyBag bag;
  bag.writeProperty("ValueType", Variant(std::int32_t{qrnTypeDouble}));
  bag.writeProperty("ValueText", "1.234");
  bag.writeProperty("ValueFormat", "0.00");
  host::restoreProperties(row(), bag);
  EXPECT_EQ(row().ValueText(), "1.234");
  row().SetValue(Variant(1.234));
  EXPECT_EQ(row().ValueText(), "1.23");
}

TEST_F(SavedRow, KeepsAValueWhoseDigitsAreGrouped) {
  for (const Locale& locale : {enUS(), deDE()}) {
    setCurrentLocale(locale);
    for (const char* format : {"#,##0", "#,##0.00"}) {
      SCOPED_TRACE(locale.decimalSeparator + " " + format);
      useType(qrnTypeDouble);
      row().SetValueFormat(format);
      row().SetValue(Variant(1234));
      const std::string shown = row().ValueText();
      useBag(saved());
      EXPECT_EQ(row().ValueText(), shown);
      EXPECT_EQ(row().Value(), Variant(1234.0));
      EXPECT_FALSE(row().ValueChanged());
    }
  }
}

TEST_F(SavedRow, ReadsAValueThatWasSavedWhereThePointIsAComma) {
  useType(qrnTypeDouble);
  row().SetValueFormat("0.00");
  row().SetValue(Variant(3.5));
  const PropertyBag bag = saved();
  setCurrentLocale(deDE());
  useBag(bag);
  EXPECT_EQ(row().ValueText(), "3,50");
  EXPECT_EQ(row().Value(), Variant(3.5));
}

TEST_F(SavedRow, IsEmptiedByABagWithoutAText) {
  for (int type = qrnTypeString; type <= qrnTypeHexadecimal; ++type) {
    useBag({});
    useType(static_cast<qrnValueType>(type));
    addEntries({"off", "on"});
    const std::string before = row().ValueText();
    row().SetValue(type == qrnTypeBitfield ? Variant("11") : Variant(1));
    PropertyBag bag;
    bag.writeProperty("ValueType", Variant(type));
    host::restoreProperties(row(), bag);
    EXPECT_EQ(row().ValueText(), before) << type;
    EXPECT_EQ(row().ValueChanged(), type == qrnTypeArray) << type;
  }
}

// Not what it showed before as a value of another type.
TEST_F(SavedRow, IsEmptiedByATextThatItsTypeRefuses) {
  useType(qrnTypeDouble);
  row().SetValue(Variant(7.5));
  PropertyBag bag;
  bag.writeProperty("ValueType", Variant(std::int32_t{qrnTypeHexadecimal}));
  bag.writeProperty("ValueText", "no digits");
  host::restoreProperties(row(), bag);
  EXPECT_EQ(textBox().Text(), "");
  EXPECT_FALSE(row().ValueChanged());
}

// An inch is 96 pixels, so the widest label has no number in pixels.
TEST_F(SavedRow, HasTheLargestWidthWhenAnotherScaleMakesOneTooLarge) {
  PropertyBag bag;
  bag.writeProperty("ScaleMode", Variant(std::int16_t{5}));
  bag.writeProperty("LabelWidth", Variant(2147483647));
  bag.writeProperty("UnitWidth", Variant(-2147483647 - 1));
  useBag(bag);
  row().SetScaleMode(3);
  EXPECT_EQ(row().LabelWidth(), 2147483647);
  EXPECT_EQ(row().UnitWidth(), -2147483647 - 1);
  host::restoreProperties(row(), PropertyBag());
  EXPECT_EQ(row().LabelWidth(), 100);
}

}  // namespace
}  // namespace qrn::test
