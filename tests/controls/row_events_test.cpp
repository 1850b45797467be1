#include "row_events_fixture.h"

namespace qrn::test {
namespace {

// ---- clicks ----

TEST_F(RowEvents, ComeOnceForAClickOnEachPart) {
  user->clicks(row().lblLabel());
  EXPECT_EQ(raised(), Events{"LabelClick"});
  user->clicks(row().lblUnit());
  EXPECT_EQ(raised(), Events{"UnitClick"});
  user->clicksAt({399, 20});
  EXPECT_EQ(raised(), Events{"BackgroundClick"});
}

TEST_F(RowEvents, ComeFromAnIconOnlyInButtonMode) {
  user->clicks(row().imgIcon1());
  user->clicks(row().imgIcon2());
  EXPECT_EQ(raised(), Events{});
  row().SetIcon1ButtonMode(qrnButtonFlat);
  row().SetIcon2ButtonMode(qrnButtonEmbossed);
  user->clicks(row().imgIcon1());
  user->clicks(row().imgIcon2());
  EXPECT_EQ(raised(), (Events{"Icon1Click", "Icon2Click"}));
  row().SetIcon1ButtonMode(qrnbuttonNone);
  row().SetIcon1Picture(picture(20, 20));
  user->clicks(row().imgIcon1());
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowEvents, ComeNotFromAPressThatIsReleasedOutsideItsPart) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  const std::pair<host::Control*, const char*> parts[] = {
      {&row().lblLabel(), "LabelClick"}, {&row().lblUnit(), "UnitClick"}, {&row().imgIcon1(), "Icon1Click"}};
  for (const auto& [part, event] : parts) {
    const Rect place = part->onSurface();
    user->pressesAt(headless::User::middleOf(*part));
    user->releasesAt({place.right(), place.top});
    EXPECT_EQ(raised(), Events{}) << event;
    user->pressesAt(headless::User::middleOf(*part));
    user->releasesAt({place.right() - 1, place.bottom() - 1});
    EXPECT_EQ(raised(), Events{event});
  }
}

TEST_F(RowEvents, ComeFromTheBackgroundOnlyInsideTheRow) {
  for (const Point outside : {Point{-1, 5}, Point{400, 5}, Point{399, -1}, Point{399, 21}}) {
    user->pressesAt({399, 20});
    user->releasesAt(outside);
    EXPECT_EQ(raised(), Events{});
  }
}

TEST_F(RowEvents, NeedAPressOfTheLeftButton) {
  user->clicks(row().lblLabel(), kRight);
  user->clicks(row().lblUnit(), host::MouseButton::Middle);
  user->releasesAt(headless::User::middleOf(row().lblLabel()));
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowEvents, AreOverWithTheReleaseWhereverItIs) {
  user->pressesAt(headless::User::middleOf(row().lblLabel()));
  user->releasesAt({-5, -5});
  row().childMouseUp(row().lblLabel(), host::MouseButton::Left, 0, {1, 1});
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowEvents, ComeFromNoPartOfADisabledRow) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  row().AddMenuItem("Help");
  row().SetEnabled(false);
  user->clicks(row().lblLabel());
  user->clicks(row().imgIcon1());
  user->clicksAt({399, 20});
  user->clicks(row().lblLabel(), kRight);
  user->hovers(row().imgIcon1());
  EXPECT_EQ(raised(), Events{});
  EXPECT_EQ(timer(), nullptr);
  EXPECT_TRUE(platform.shownMenus().empty());
}

TEST_F(RowEvents, LeaveTheKeysOfTheMenuOutEvenWithoutAMenu) {
  useType(qrnTypeString);
  user->focuses(row());
  raised();
  user->holds(host::key::F10, host::shift::Shift);
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowEvents, HaveAMenuWhoseTemplateIsOneAndTheSame) {
  row().GetMenuItem(0)->SetEnabled(false);
  EXPECT_FALSE(row().GetMenuItem(0)->Enabled());
  EXPECT_FALSE(row().AddMenuItem("Help")->Enabled());
}

TEST_F(RowEvents, ComeFromNoRowThatIsDisabledBeforeTheRelease) {
  user->pressesAt(headless::User::middleOf(row().lblLabel()));
  row().SetEnabled(false);
  user->releasesAt(headless::User::middleOf(row().lblLabel()));
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowEvents, ComeFromACaptionAloneWhenItsCheckBoxIsHidden) {
  useType(qrnTypeBoolean);
  row().SetValueVisible(false);
  raised();
  user->clicks(row().lblLabel());
  EXPECT_EQ(raised(), Events{"LabelClick"});
  EXPECT_EQ(row().Value(), Variant(false));
}

TEST_F(RowEvents, ComeFromTheEditorsThatAreClicked) {
  useType(qrnTypeBoolean);
  user->clicks(checkBox());
  EXPECT_EQ(raised(), (Events{"StartEdit", "Click"}));
  useType(qrnTypeList);
  addEntries({"a", "b"});
  dropList().userSelected(1);
  EXPECT_EQ(raised(), (Events{"Change", "Click"}));
}

TEST_F(RowEvents, ComeFromAClickInsideABitFieldEvenOfALockedOne) {
  row().SetHeight(60);
  useType(qrnTypeBitfield);
  addEntries({"a", "b"});
  row().SetLocked(true);
  user->clicks(bitList());
  EXPECT_EQ(raised(), Events{"Click"});
  user->pressesAt(headless::User::middleOf(bitList()));
  user->releasesAt({399, 59});
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowEvents, ComeWithEveryTickOfABitField) {
  useType(qrnTypeBitfield);
  addEntries({"a", "b"});
  bitList().userChecked(1);
  bitList().userChecked(1);
  bitList().userChecked(5);
  EXPECT_EQ(raised(), (Events{"ItemCheck(1)", "ItemCheck(1)"}));
}

TEST_F(RowEvents, OfTheCaptionWorkTheCheckBox) {
  useType(qrnTypeBoolean);
  user->clicks(row().lblLabel());
  EXPECT_EQ(row().Value(), Variant(true));
  EXPECT_EQ(raised(), (Events{"StartEdit", "Click", "LabelClick"}));
  EXPECT_EQ(row().input().focus(), &checkBox());
  row().SetLocked(true);
  user->clicks(row().lblLabel());
  EXPECT_EQ(row().Value(), Variant(true));
  EXPECT_EQ(raised(), Events{"LabelClick"});
}

TEST_F(RowEvents, OfTheCaptionLeaveADisabledCheckBoxAlone) {
  useType(qrnTypeBoolean);
  row().SetEnabled(false);
  user->clicks(row().lblLabel());
  EXPECT_EQ(row().Value(), Variant(false));
}

// ---- what is typed ----

TEST_F(RowEvents, FollowTheKeysOfTheEditor) {
  user->focuses(row());
  raised();
  user->types("a");
  EXPECT_EQ(raised(), (Events{"KeyDown(65, 0)", "KeyPress(97)", "Change", "KeyUp(65, 0)"}));
  user->presses(host::key::Left);
  EXPECT_EQ(raised(), (Events{"KeyDown(37, 0)", "KeyUp(37, 0)"}));
}

TEST_F(RowEvents, MayTakeAKeyFromTheEditor) {
  const auto noLetters = row().events().KeyPress.connect([](std::int16_t& key) {
    if (key >= 'a') key = 0;
  });
  user->focuses(row());
  user->types("a1b2");
  EXPECT_EQ(row().ValueText(), "12");
  const auto noKeys = row().events().KeyDown.connect([](std::int16_t& key, std::int16_t&) { key = 0; });
  user->types("3");
  EXPECT_EQ(row().ValueText(), "12");
}

TEST_F(RowEvents, ComeNotForWhatAProgramSets) {
  for (const qrnValueType type : {qrnTypeString, qrnTypeBoolean, qrnTypeList, qrnTypeBitfield}) {
    useType(type);
    addEntries({"a"});
    row().SetValue(Variant(type == qrnTypeList ? 0 : 1));
  }
  EXPECT_EQ(raised(), Events{});
}

// ---- the decimal separator ----

TEST_F(RowEvents, ComeWithTheLocalSeparatorInPlace) {
  setCurrentLocale(deDE());
  useType(qrnTypeDouble);
  std::string seen;
  const auto change = row().events().Change.connect([&] { seen = row().ValueText(); });
  user->focuses(row());
  user->types("3.5");
  EXPECT_EQ(row().ValueText(), "3,5");
  EXPECT_EQ(seen, "3,5");
  EXPECT_EQ(row().Value(), Variant(3.5));
}

TEST_F(RowEvents, CorrectTheFirstOtherSeparatorOnly) {
  useType(qrnTypeDouble);
  type("1,5,7");
  EXPECT_EQ(row().ValueText(), "1.5,7");
  EXPECT_EQ(raised(), Events{"Change"});
}

TEST_F(RowEvents, CorrectNoOtherType) {
  for (const qrnValueType valueType : {qrnTypeString, qrnTypeDecimal, qrnTypeCurrency, qrnTypeDate}) {
    useType(valueType);
    type("1,5");
    EXPECT_EQ(row().ValueText(), "1,5") << valueType;
    type("");
  }
}

TEST_F(RowEvents, LeaveTheSelectionWhereItWasWhenASeparatorIsCorrected) {
  useType(qrnTypeDouble);
  textBox().userTyped("12,45", 2, 3);
  EXPECT_EQ(row().ValueText(), "12.45");
  EXPECT_EQ(textBox().SelStart(), 2);
  EXPECT_EQ(textBox().SelLength(), 3);
}

TEST_F(RowEvents, CorrectToASeparatorOfSeveralBytes) {
  Locale locale = enUS();
  locale.decimalSeparator = "\u066b";
  setCurrentLocale(locale);
  useType(qrnTypeDouble);
  type("1.5");
  EXPECT_EQ(row().ValueText(), "1\u066b5");
}

TEST_F(RowEvents, StillComeAfterAListenerHasThrown) {
  useType(qrnTypeDouble);
  bool throws = true;
  const auto change = row().events().Change.connect([&] {
    if (throws) raiseRunTimeError(kInvalidProcedureCall);
  });
  EXPECT_EQ(errorOf([&] { type("1,5"); }), 5);
  throws = false;
  type("2,5");
  EXPECT_EQ(row().ValueText(), "2.5");
  EXPECT_EQ(raised(), Events{"Change"});
}

}  // namespace
}  // namespace qrn::test
