#include "row_fixture.h"

namespace qrn::test {
namespace {

using std::chrono::milliseconds;

constexpr auto kRight = host::MouseButton::Right;

/// A row of 400 by 21 with two icons of 16 by 16, whose events are taken down.
class RowEvents : public RowTest {
 protected:
  RowEvents() {
    useType(qrnTypeString);
    row().SetWidth(400);
    row().SetIcon1Picture(picture(16, 16));
    row().SetIcon2Picture(picture(16, 16));
    raised();
  }
  host::Timer* timer() { return dynamic_cast<host::Timer*>(row().controls().find("tmrHit")); }
};

/// The same events of a row in a panel, where it can have the focus and lose it.
class RowFocus : public PanelTest {
 protected:
  RowFocus() {
    addParameter("first");
    addParameter("second");
    log_ = std::make_unique<RowLog>(row(1));
  }
  Events raised() {
    Events all = log_->take();
    std::erase_if(all, [](const std::string& one) { return one == "GotFocus" || one == "LostFocus"; });
    return all;
  }
  void leave() { panel().input().setFocus(nullptr); }

 private:
  std::unique_ptr<RowLog> log_;
};

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
  const auto noLetters = row().KeyPress.connect([](std::int16_t& key) {
    if (key >= 'a') key = 0;
  });
  user->focuses(row());
  user->types("a1b2");
  EXPECT_EQ(row().ValueText(), "12");
  const auto noKeys = row().KeyDown.connect([](std::int16_t& key, std::int16_t&) { key = 0; });
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
  const auto change = row().Change.connect([&] { seen = row().ValueText(); });
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
  const auto change = row().Change.connect([&] {
    if (throws) raiseRunTimeError(kInvalidProcedureCall);
  });
  EXPECT_EQ(errorOf([&] { type("1,5"); }), 5);
  throws = false;
  type("2,5");
  EXPECT_EQ(row().ValueText(), "2.5");
  EXPECT_EQ(raised(), Events{"Change"});
}

// ---- icons under the mouse ----

TEST_F(RowEvents, WatchAnIconUnderTheMouseUntilItHasLeft) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  user->hovers(row().imgIcon1());
  ASSERT_NE(timer(), nullptr);
  EXPECT_EQ(timer()->Interval(), 70);
  EXPECT_TRUE(timer()->Enabled());
  platform.clock().advance(milliseconds(700));
  EXPECT_NE(timer(), nullptr);
  platform.setCursor({200, 10});
  platform.clock().advance(milliseconds(69));
  EXPECT_NE(timer(), nullptr);
  platform.clock().advance(milliseconds(1));
  EXPECT_EQ(timer(), nullptr);
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(RowEvents, WatchOneIconAtATime) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  row().SetIcon2ButtonMode(qrnButtonFlat);
  user->hovers(row().imgIcon1());
  user->hovers(row().imgIcon2());
  EXPECT_EQ(platform.clock().runningTimers(), 1);
  EXPECT_EQ(painted("line").size(), 4u);
}

TEST_F(RowEvents, WatchNoIconWithoutButtonMode) {
  user->hovers(row().imgIcon1());
  EXPECT_EQ(timer(), nullptr);
  row().SetIcon1ButtonMode(qrnButtonFlat);
  user->hovers(row().imgIcon1());
  row().SetIcon1ButtonMode(qrnbuttonNone);
  EXPECT_EQ(timer(), nullptr);
  EXPECT_EQ(painted("line"), Events{});
}

TEST_F(RowEvents, WatchNoIconThatThePressedMouseHasLeft) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  user->pressesAt(headless::User::middleOf(row().imgIcon1()));
  user->movesTo({200, 10});
  EXPECT_EQ(timer(), nullptr);
}

TEST_F(RowEvents, StopWatchingAnIconThatIsHidden) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  user->hovers(row().imgIcon1());
  row().SetIcon1Hidden(true);
  platform.clock().advance(milliseconds(70));
  EXPECT_EQ(timer(), nullptr);
}

TEST_F(RowEvents, StopWatchingWithTheRow) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  user->hovers(row().imgIcon1());
  row_.reset();
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(RowEvents, FrameAFlatIconOnlyUnderTheMouse) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  EXPECT_EQ(painted("line"), Events{});
  user->hovers(row().imgIcon1());
  EXPECT_EQ(painted("line"), (Events{"line 0,18 0,1 #ffffff", "line 0,1 17,1 #ffffff",
                                     "line 17,1 17,18 #a0a0a0", "line 0,18 17,18 #a0a0a0"}));
  platform.setCursor({200, 10});
  platform.clock().advance(milliseconds(70));
  EXPECT_EQ(painted("line"), Events{});
}

TEST_F(RowEvents, FrameAnEmbossedIconAlways) {
  row().SetIcon1ButtonMode(qrnButtonEmbossed);
  EXPECT_EQ(painted("line").front(), "line 0,18 0,1 #ffffff");
  row().SetIcon1Visible(false);
  EXPECT_EQ(painted("line"), Events{});
  row().SetIcon1Visible(true);
  row().SetIcon1Column(0);
  EXPECT_EQ(painted("line"), Events{});
}

TEST_F(RowEvents, FrameAPressedIconTheOtherWayRound) {
  row().SetIcon1ButtonMode(qrnButtonEmbossed);
  user->hovers(row().imgIcon1());
  EXPECT_EQ(painted("line").front(), "line 0,18 0,1 #ffffff");
  user->pressesAt({8, 8});
  EXPECT_EQ(painted("line").front(), "line 0,18 0,1 #a0a0a0");
  user->releasesAt({8, 8});
  EXPECT_EQ(painted("line").front(), "line 0,18 0,1 #ffffff");
}

TEST_F(RowEvents, PaintThePressAndTheReleaseOfAnIcon) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  row().realise();
  auto& peer = static_cast<headless::HeadlessPeer&>(*row().peer());
  const auto repaints = [&] { return !std::exchange(peer.invalidated, {}).empty(); };
  repaints();
  user->pressesAt({8, 8});
  EXPECT_TRUE(repaints());
  user->releasesAt({8, 8});
  EXPECT_TRUE(repaints());
}

// ---- the menu ----

TEST_F(RowEvents, NameTheChosenEntryOfTheMenu) {
  EXPECT_EQ(row().AddMenuItem("Read")->Caption(), "Read");
  row().AddMenuItem("Write");
  platform.willChoose(2);
  user->clicks(row().lblLabel(), kRight);
  EXPECT_EQ(raised(), Events{"MenuClick(2)"});
  ASSERT_EQ(platform.shownMenus().size(), 1u);
  EXPECT_EQ(platform.shownMenus()[0].captions, (Events{"Read", "Write"}));
  EXPECT_EQ(platform.shownMenus()[0].at, headless::User::middleOf(row().lblLabel()));
}

TEST_F(RowEvents, NameNoEntryWhenTheMenuIsClosed) {
  row().AddMenuItem("Read");
  platform.willChoose(std::nullopt);
  user->clicksAt({399, 20}, kRight);
  EXPECT_EQ(platform.shownMenus().size(), 1u);
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowEvents, OfferNoMenuWithoutEntriesOfTheHost) {
  EXPECT_EQ(row().GetMenuItem(0)->Caption(), "&Help");
  EXPECT_EQ(row().GetMenuItem(1), nullptr);
  row().RemoveMenu();
  row().RemoveMenuItem(4);
  user->clicks(row().lblLabel(), kRight);
  row().AddMenuItem("Read");
  row().RemoveMenu();
  user->clicks(row().lblLabel(), kRight);
  EXPECT_TRUE(platform.shownMenus().empty());
  EXPECT_EQ(row().GetMenuItem(0)->Caption(), "&Help");
}

TEST_F(RowEvents, OfferTheMenuOnEveryPartOfTheRow) {
  row().AddMenuItem("Read");
  for (host::Control* part : std::initializer_list<host::Control*>{&row().lblLabel(), &row().lblUnit(),
                                                                   &row().imgIcon1(), &textBox()}) {
    user->clicks(*part, kRight);
  }
  EXPECT_EQ(platform.shownMenus().size(), 4u);
}

TEST_F(RowEvents, OfferTheMenuToTheKeyboardAThirdIntoTheRow) {
  row().AddMenuItem("Read");
  row().Move(0, 0, 90, 30);
  user->focuses(row());
  for (const std::int16_t scale : {3, 1}) {
    row().SetScaleMode(scale);
    user->presses(host::key::F10, host::shift::Shift);
    EXPECT_EQ(platform.shownMenus().back().at, (Point{30, 20})) << scale;
  }
  EXPECT_EQ(raised(), (Events{"StartEdit", "KeyUp(121, 1)", "KeyUp(121, 1)"}));
}

// ---- the edit bracket ----

TEST_F(RowFocus, StartsAnEditWhenItComesAndEndsItWhenItGoes) {
  user->focuses(row(1));
  EXPECT_EQ(raised(), Events{"StartEdit"});
  leave();
  EXPECT_EQ(raised(), Events{"EndEdit(False)"});
}

TEST_F(RowFocus, SaysAtTheEndWhetherTheValueWasChanged) {
  row(1).SetValue(Variant("a"));
  user->focuses(row(1));
  user->enters("b");
  raised();
  leave();
  EXPECT_EQ(raised(), Events{"EndEdit(True)"});
  EXPECT_TRUE(row(1).ValueChanged());
  user->focuses(row(1));
  leave();
  EXPECT_EQ(raised(), (Events{"StartEdit", "EndEdit(True)"}));
  row(1).SetValueChanged(false);
  row(1).SetValueChanged(false);
  EXPECT_EQ(raised(), Events{"StatusChange"});
}

TEST_F(RowFocus, StartsNoEditOfALockedRowAndEndsNone) {
  row(1).SetLocked(true);
  user->focuses(row(1));
  leave();
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowFocus, EndsNoEditOfARowThatWasLockedMeanwhile) {
  user->focuses(row(1));
  raised();
  row(1).SetLocked(true);
  leave();
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowFocus, GoesToNoEditorThatCanNotTakeIt) {
  row(1).SetEnabled(false);
  user->focuses(row(1));
  row(1).SetEnabled(true);
  row(1).SetValueVisible(false);
  user->focuses(row(1));
  row(1).SetValueVisible(true);
  row(1).SetValueType(qrnTypeArray);
  user->focuses(row(1));
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowFocus, KeepsTheEditGoingWhileTheEditorChanges) {
  user->focuses(row(1));
  raised();
  row(1).SetValueType(qrnTypeBoolean);
  row(1).SetValueType(qrnTypeList);
  EXPECT_EQ(raised(), Events{});
  EXPECT_EQ(panel().input().focus(), row(1).CurrentEditor());
  row(1).SetValueCount(1);
  user->presses(host::key::Down);
  raised();
  leave();
  EXPECT_EQ(raised(), Events{"EndEdit(True)"});
  user->focuses(row(1));
  EXPECT_EQ(raised(), Events{"StartEdit"});
}

TEST_F(RowFocus, EndsTheEditOfARowThatLosesItsEditor) {
  row(1).SetValue(Variant("a"));
  user->focuses(row(1));
  raised();
  row(1).SetValueType(qrnTypeArray);
  EXPECT_EQ(raised(), Events{"EndEdit(False)"});
  row(1).SetValueType(qrnTypeString);
  user->focuses(row(1));
  EXPECT_EQ(raised(), Events{"StartEdit"});
}

TEST_F(RowFocus, EndsTheEditOfAnEditorThatIsHidden) {
  row(1).SetValue(Variant("a"));
  user->focuses(row(1));
  raised();
  row(1).SetValueVisible(false);
  EXPECT_EQ(raised(), Events{"EndEdit(False)"});
}

TEST_F(RowFocus, PassesTheChangedFlagByReference) {
  row(1).SetValue(Variant("a"));
  bool seen = false;
  const auto first = row(1).EndEdit.connect([](bool& changed) { changed = true; });
  const auto second = row(1).EndEdit.connect([&](bool& changed) { seen = changed; });
  user->focuses(row(1));
  leave();
  EXPECT_TRUE(seen);
}

// ---- listeners that take the ground from under the row ----

struct Upset {
  const char* name;
  std::function<void(clsQRNCollection&, QRNEdit&)> action;
};

const Upset kUpsets[] = {
    {"RemovesTheRow", [](clsQRNCollection& items, QRNEdit&) { items.Remove(Variant(1)); }},
    {"MakesItAList", [](clsQRNCollection&, QRNEdit& row) { row.SetValueType(qrnTypeList); }},
    {"MakesItACheckBox", [](clsQRNCollection&, QRNEdit& row) { row.SetValueType(qrnTypeBoolean); }},
    {"MakesItABitField", [](clsQRNCollection&, QRNEdit& row) { row.SetValueType(qrnTypeBitfield); }},
    {"MakesItAnArray", [](clsQRNCollection&, QRNEdit& row) { row.SetValueType(qrnTypeArray); }},
    {"MakesItAText", [](clsQRNCollection&, QRNEdit& row) { row.SetValueType(qrnTypeString); }},
    {"HidesTheEditor", [](clsQRNCollection&, QRNEdit& row) { row.SetValueVisible(false); }},
    {"LocksTheRow", [](clsQRNCollection&, QRNEdit& row) { row.SetLocked(true); }},
    {"DisablesTheRow", [](clsQRNCollection&, QRNEdit& row) { row.SetEnabled(false); }},
};

/// What a listener does to the row when it first hears of a certain event, and what the user does to raise
/// What a listener does to the row when it first hears of a certain event, with and without native widgets.
class AListenerThat : public PanelTest, public ::testing::WithParamInterface<std::tuple<Upset, bool>> {
 protected:
  void expectToSurvive(qrnValueType type, std::string_view event, const std::function<void()>& act) {
    const auto& [upset, withWidgets] = GetParam();
    if (withWidgets) panel().realise();
    addParameter("first", type);
    addParameter("second");
    panel().LayoutControls(true);
    bool heard = false;
    const auto connection = row(1).ObjectEvent.connect(
        [&, first = &row(1), upset = &upset](std::string_view name, host::EventArgs) {
          if (name == event && !std::exchange(heard, true)) upset->action(items(), *first);
        });
    act();
    EXPECT_TRUE(heard);
    // The panel still works, whichever row is the first now.
    leave();
    QRNEdit& last = row(items().Count());
    user->focuses(last);
    user->types("x");
    EXPECT_EQ(last.ValueText(), "x");
  }
  void leave() { panel().input().setFocus(nullptr); }
  template <class T>
  T& editor() {
    return dynamic_cast<T&>(*row(1).CurrentEditor());
  }
};

TEST_P(AListenerThat, HearsOfAStart) {
  expectToSurvive(qrnTypeString, "StartEdit", [&] { user->focuses(row(1)); });
}

TEST_P(AListenerThat, HearsOfAnEnd) {
  expectToSurvive(qrnTypeString, "EndEdit", [&] {
    user->focuses(row(1));
    user->focuses(row(2));
  });
}

TEST_P(AListenerThat, HearsOfAnEndBecauseTheEditorIsHidden) {
  expectToSurvive(qrnTypeString, "EndEdit", [&] {
    user->focuses(row(1));
    row(1).SetValueVisible(false);
  });
}

TEST_P(AListenerThat, HearsOfAnEndBecauseTheEditorGoes) {
  expectToSurvive(qrnTypeString, "EndEdit", [&] {
    user->focuses(row(1));
    row(1).SetValueType(qrnTypeArray);
  });
}

TEST_P(AListenerThat, HearsOfAChangedText) {
  expectToSurvive(qrnTypeDouble, "Change", [&] {
    user->focuses(row(1));
    user->types("1,5");
  });
}

TEST_P(AListenerThat, HearsOfAChangedChoice) {
  expectToSurvive(qrnTypeList, "Change", [&] {
    row(1).SetValueCount(2);
    user->focuses(row(1));
    user->presses(host::key::Down);
  });
}

TEST_P(AListenerThat, HearsOfAClickOnACheckBox) {
  expectToSurvive(qrnTypeBoolean, "Click", [&] { user->clicks(*row(1).CurrentEditor()); });
}

TEST_P(AListenerThat, HearsOfAClickThroughTheCaption) {
  expectToSurvive(qrnTypeBoolean, "Click", [&] {
    row(1).childMouseDown(row(1).lblLabel(), host::MouseButton::Left, 0, {1, 1});
  });
}

TEST_P(AListenerThat, HearsOfATick) {
  expectToSurvive(qrnTypeBitfield, "ItemCheck", [&] {
    row(1).SetValueCount(2);
    editor<host::ListBox>().userChecked(1);
  });
}

TEST_P(AListenerThat, HearsOfAKeyGoingDown) {
  expectToSurvive(qrnTypeString, "KeyDown", [&] {
    user->focuses(row(1));
    user->types("a");
  });
}

TEST_P(AListenerThat, HearsOfAKeyPressed) {
  expectToSurvive(qrnTypeString, "KeyPress", [&] {
    user->focuses(row(1));
    user->types("a");
  });
}

TEST_P(AListenerThat, HearsOfAKeyLetGo) {
  expectToSurvive(qrnTypeString, "KeyUp", [&] {
    user->focuses(row(1));
    user->types("a");
  });
}

TEST_P(AListenerThat, HearsOfAClickOnTheCaption) {
  expectToSurvive(qrnTypeString, "LabelClick", [&] { user->clicks(row(1).lblLabel()); });
}

TEST_P(AListenerThat, HearsOfAClickOnAnIcon) {
  expectToSurvive(qrnTypeString, "Icon2Click", [&] {
    const Point at = headless::User::middleOf(row(1).imgIcon2());
    user->movesTo(at);
    user->clicksAt(at);
    platform.setCursor({0, 0});
    platform.clock().advance(milliseconds(70));
  });
}

TEST_P(AListenerThat, HearsOfAMenuEntry) {
  expectToSurvive(qrnTypeString, "MenuClick", [&] {
    row(1).AddMenuItem("Read");
    platform.willChoose(1);
    user->clicks(row(1).lblLabel(), kRight);
  });
}

TEST_P(AListenerThat, HearsOfATakenValue) {
  expectToSurvive(qrnTypeString, "StatusChange", [&] {
    editor<host::TextBox>().userTyped("new", 0);
    row(1).SetValueChanged(false);
  });
}

std::string nameOf(const ::testing::TestParamInfo<std::tuple<Upset, bool>>& test) {
  const auto& [upset, withWidgets] = test.param;
  return std::string(upset.name) + (withWidgets ? "WithWidgets" : "");
}

INSTANTIATE_TEST_SUITE_P(Row, AListenerThat,
                         ::testing::Combine(::testing::ValuesIn(kUpsets), ::testing::Bool()), nameOf);

TEST_F(RowEvents, MayDestroyARowThatStandsAlone) {
  const auto change = row().Change.connect([&] { row_.reset(); });
  user->focuses(row());
  user->types("a");
  EXPECT_EQ(row_, nullptr);
}

TEST_F(RowEvents, MayDestroyARowWhoseIconIsBeingWatched) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  const auto click = row().Icon1Click.connect([&] { row_.reset(); });
  user->hovers(row().imgIcon1());
  user->clicks(row().imgIcon1());
  EXPECT_EQ(row_, nullptr);
  platform.clock().advance(milliseconds(70));
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

}  // namespace
}  // namespace qrn::test
