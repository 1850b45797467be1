#include "footer_fixture.h"

namespace qrn::test {
namespace {

class FooterButtons : public FooterTest {};

// ---- adding ----

TEST_F(FooterButtons, OfAPanelAreAlwaysTheSameCollection) {
  EXPECT_EQ(&panel().Buttons(), &panel().Buttons());
  EXPECT_EQ(buttons().Count(), 0);
}

TEST_F(FooterButtons, UnnamedOnesAreCountedThrough) {
  for (int i = 0; i < 3; ++i) add("");
  EXPECT_EQ(order(), (Names{"Button1", "Button2", "Button3"}));
}

TEST_F(FooterButtons, MadeNumbersStartAboveTheCountAndSkipKeysInUse) {
  add("OK");
  add("button2");
  add("");
  EXPECT_EQ(order(), (Names{"OK", "button2", "Button3"}));
  buttons().Remove(Variant("OK"));
  add("");  // Button3 is taken
  EXPECT_EQ(order(), (Names{"button2", "Button3", "Button4"}));
}

TEST_F(FooterButtons, MakeTheirControlInTheButtonsContainerUnderTheirKey) {
  const ButtonPtr ok = add("OK", "&OK");
  EXPECT_EQ(panel().ControlsCollection().find("ok"), &ok->Control());
  EXPECT_EQ(ok->Control().typeName(), "CommandButton");
  EXPECT_EQ(ok->Control().Container(), &panel().ButtonsContainer());
  EXPECT_EQ(ok->Control().Parent(), &panel());
  EXPECT_EQ(ok->Control().Caption(), "&OK");
}

TEST_F(FooterButtons, ANewOneIsOffAndItsTagIsFree) {
  const ButtonPtr ok = add("OK");
  EXPECT_EQ(ok->AutoFireDelay(), -1);
  EXPECT_TRUE(ok->Tag().isEmpty());
  ok->SetTag(Variant("mine"));
  EXPECT_EQ(ok->Tag(), Variant("mine"));
}

TEST_F(FooterButtons, GoInFrontOfTheSelectedOne) {
  add("A");
  const ButtonPtr b = add("B");
  addAt("ByPosition", Variant(1));
  addAt("ByKey", Variant("b"));
  addAt("ByObject", Variant(b));
  EXPECT_EQ(order(), (Names{"ByPosition", "A", "ByKey", "ByObject", "B"}));
}

TEST_F(FooterButtons, GoToTheEndWhenNothingIsSelected) {
  const ButtonPtr a = add("A");
  addAt("Zero", Variant(0));
  addAt("Beyond", Variant(3));
  addAt("Negative", Variant(-1));
  addAt("Unknown", Variant("unknown"));
  buttons().Remove(Variant(a));
  addAt("Gone", Variant(a));
  EXPECT_EQ(order(), (Names{"Zero", "Beyond", "Negative", "Unknown", "Gone"}));
}

TEST_F(FooterButtons, UnderANameInUseThereIsNone) {
  add("OK");
  addParameter("Damping");
  startListening();
  for (const char* name : {"ok", "Damping", "lblTitle", "tmrButtonFire"})
    EXPECT_EQ(add(name), nullptr) << name;
  EXPECT_EQ(order(), (Names{"OK"}));
  EXPECT_EQ(events(), Events{});
}

TEST_F(FooterButtons, AKeyInUseLeavesNoControlBehind) {
  add("OK");
  panel().ControlsCollection().remove("OK");  // the button stays behind
  EXPECT_EQ(add("OK"), nullptr);
  EXPECT_EQ(panel().ControlsCollection().find("OK"), nullptr);
  EXPECT_EQ(buttons().Count(), 1);
}

// ---- the default layout ----

TEST_F(FooterButtons, AreMeasuredWithoutTheSignOfTheirLetter) {
  const ButtonPtr apply = add("Apply", "&Apply");
  EXPECT_EQ(apply->MinWidth(), panel().TextWidth("Applya") + 10);
  EXPECT_EQ(apply->StdWidth(), 12 * panel().TextWidth("a"));
  EXPECT_EQ(apply->Control().Width(), 72);
  EXPECT_EQ(apply->Control().Height(), 23);
}

TEST_F(FooterButtons, AreAsWideAsALongCaptionNeeds) {
  const ButtonPtr wide = add("Wide", "A rather long caption");
  EXPECT_EQ(wide->MinWidth(), 22 * 6 + 10);
  EXPECT_EQ(wide->StdWidth(), 72);
  EXPECT_EQ(wide->Control().Width(), 142);
}

TEST_F(FooterButtons, FractionsOfAWidthAreRoundedToTheNearestNumber) {
  platform.setTextSize(6.125, 13);
  const ButtonPtr ok = add("OK", "OK");
  EXPECT_EQ(ok->StdWidth(), 74);  // 73.5, to the even neighbour
  EXPECT_EQ(ok->MinWidth(), 28);  // 28.375
}

TEST_F(FooterButtons, AskForTheirLayoutByPositionWhenTheyAreMade) {
  add("A");
  addAt("B", Variant(1));
  add("C");
  EXPECT_EQ(events(), (Events{"ButtonLayout(1)", "ButtonLayout(1)", "ButtonLayout(3)"}));
  button(2).SetDefaultLayout("New caption");
  EXPECT_EQ(events(), (Events{"ButtonLayout(2)"}));
  EXPECT_EQ(control(2).Caption(), "New caption");
}

TEST_F(FooterButtons, TheWidthsThatALayoutListenerSetsCountAtOnce) {
  const auto connection = panel().ButtonLayout.connect([&](std::int32_t& index) {
    button(index).SetMinWidth(100);
    button(index).SetStdWidth(120);
  });
  add("A");
  EXPECT_EQ(control(1).Width(), 120);
}

// ---- finding ----

TEST_F(FooterButtons, AreFoundByObjectKeyAndPosition) {
  const ButtonPtr a = add("A");
  const ButtonPtr b = add("B");
  for (const Variant& selector : {Variant(b), Variant("b"), Variant(2)}) {
    EXPECT_EQ(buttons().Item(selector), b);
    EXPECT_EQ(buttons().GetIndexOf(selector), 2);
  }
  EXPECT_EQ(buttons().GetIndexOf(Variant(a)), 1);
}

TEST_F(FooterButtons, AnUnknownOneHasNoIndex) {
  const ButtonPtr a = add("A");
  buttons().Remove(Variant(a));
  const auto foreign = host::create<QRNDisplay>(site);
  const ButtonPtr other = foreign->Buttons().AddButton("A", "A");
  add("B");
  for (const Variant& selector :
       {Variant(a), Variant(other), Variant("A"), Variant(0), Variant(2), Variant(ObjectPtr())}) {
    const Raised raised = raisedBy([&] { buttons().GetIndexOf(selector); });
    EXPECT_EQ(raised.number, kObjectNotInCollection);
    EXPECT_EQ(raised.source, "clsQRNButtons");
  }
}

TEST_F(FooterButtons, AnUnknownSelectorIsTheListsOwnError) {
  const ButtonPtr a = add("A");
  EXPECT_EQ(raisedBy([&] { buttons().Item(Variant("B")); }).number, kInvalidProcedureCall);
  EXPECT_EQ(raisedBy([&] { buttons().Item(Variant(2)); }).number, kSubscriptOutOfRange);
  EXPECT_EQ(raisedBy([&] { buttons().Item(Variant(0)); }).number, kSubscriptOutOfRange);
  EXPECT_EQ(raisedBy([&] { buttons().Remove(Variant("B")); }).number, kInvalidProcedureCall);
  EXPECT_EQ(raisedBy([&] { buttons().Remove(Variant(2)); }).number, kSubscriptOutOfRange);
  buttons().Remove(Variant(a));
  EXPECT_EQ(raisedBy([&] { buttons().Item(Variant(a)); }).number, kObjectNotInCollection);
}

// ---- removing ----

TEST_F(FooterButtons, AreRemovedWithTheirControl) {
  const ButtonPtr a = add("A"), b = add("B"), c = add("C");
  buttons().Remove(Variant("a"));
  buttons().Remove(Variant(2));
  EXPECT_EQ(order(), (Names{"B"}));
  EXPECT_EQ(panel().ControlsCollection().find("A"), nullptr);
  EXPECT_EQ(panel().ControlsCollection().find("C"), nullptr);
  buttons().Remove(Variant(b));
  EXPECT_EQ(buttons().Count(), 0);
  EXPECT_EQ(raisedBy([&] { b->Control(); }).number, kObjectNotInitialized);
}

TEST_F(FooterButtons, AnObjectThatIsNotHereIsLeftAlone) {
  const ButtonPtr a = add("A");
  add("B");
  buttons().Remove(Variant(a));
  buttons().Remove(Variant(a));
  EXPECT_EQ(order(), (Names{"B"}));
}

TEST_F(FooterButtons, OneWhoseControlHasGoneCanStillBeRemoved) {
  add("A");
  panel().ControlsCollection().remove("A");
  panel().LayoutButtons();
  buttons().Remove(Variant("A"));
  EXPECT_EQ(buttons().Count(), 0);
}

TEST_F(FooterButtons, RemoveAllLeavesNone) {
  for (int i = 0; i < 3; ++i) add("");
  buttons().RemoveAll();
  EXPECT_EQ(buttons().Count(), 0);
  EXPECT_TRUE(panel().ButtonsContainer().contained().empty());
}

TEST_F(FooterButtons, RemoveAllOfNoneDoesNothing) {
  buttons().RemoveAll();
  EXPECT_EQ(buttons().Count(), 0);
  EXPECT_EQ(events(), Events{});
}

// ---- what listeners do while buttons come ----

class FooterFaults : public FooterTest {};

TEST_F(FooterFaults, ThePanelMayGoInsideTheLayoutOfANewButton) {
  const auto connection = panel().ButtonLayout.connect([&](std::int32_t&) { panel_.reset(); });
  const ButtonPtr button = add("OK");
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(panel_, nullptr);
  EXPECT_EQ(raisedBy([&] { button->Control(); }).number, kObjectNotInitialized);
}

TEST_F(FooterFaults, ANewButtonMayBeRemovedInsideItsLayout) {
  const auto connection =
      panel().ButtonLayout.connect([&](std::int32_t& index) { buttons().Remove(Variant(index)); });
  const ButtonPtr button = add("OK");
  EXPECT_EQ(buttons().Count(), 0);
  EXPECT_FALSE(panel().ButtonsContainer().Visible());
  EXPECT_EQ(raisedBy([&] { button->Control(); }).number, kObjectNotInitialized);
}

TEST_F(FooterFaults, ThePanelMayGoWhenTheFooterLosesTheFocusWithItsLastButton) {
  add("OK");
  panel().SetButtonsAlignment(0);
  const Rect footer = panel().ButtonsContainer().visibleOnSurface();
  user->clicksAt({footer.right() - 5, footer.top + 5});
  ASSERT_TRUE(panel().ButtonsContainer().hasFocus());
  const auto connection = panel().ObjectEvent.connect([&](std::string_view name, host::EventArgs) {
    if (name == "LostFocus") panel_.reset();
  });
  buttons().Remove(Variant(1));
  EXPECT_EQ(panel_, nullptr);
}

TEST_F(FooterFaults, ALaterButtonShowsAgainTheFooterThatHasLostTheFocus) {
  add("OK");
  panel().SetButtonsAlignment(0);
  const Rect footer = panel().ButtonsContainer().visibleOnSurface();
  user->clicksAt({footer.right() - 5, footer.top + 5});
  const auto connection = panel().ObjectEvent.connect([&](std::string_view name, host::EventArgs) {
    if (name == "LostFocus") add("Again");
  });
  buttons().Remove(Variant(1));
  EXPECT_EQ(order(), (Names{"Again"}));
  EXPECT_TRUE(panel().ButtonsContainer().Visible());
  EXPECT_EQ(control(1).visibleOnSurface().size(), control(1).pixelSize());
}

TEST_F(FooterFaults, NothingIsArrangedOnceAListenerToTheFocusOfTheFooterHasSwitchedThatOff) {
  add("OK");
  panel().SetButtonsAlignment(0);
  const Rect footer = panel().ButtonsContainer().visibleOnSurface();
  user->clicksAt({footer.right() - 5, footer.top + 5});
  const double height = panel().ControlsContainer().Height();
  const auto connection = panel().ObjectEvent.connect([&](std::string_view name, host::EventArgs) {
    if (name == "LostFocus") panel().SetRedraw(false);
  });
  buttons().Remove(Variant(1));
  EXPECT_EQ(panel().ControlsContainer().Height(), height);
  panel().SetRedraw(true);
  EXPECT_GT(panel().ControlsContainer().Height(), height);
}

TEST_F(FooterFaults, AnErrorOfALayoutListenerReachesTheCallerAndLeavesTheButton) {
  {
    const auto connection = panel().ButtonLayout.connect([](std::int32_t&) { RaiseError(1000, "listener"); });
    EXPECT_EQ(raisedBy([&] { add("OK"); }).number, 1000);
  }
  EXPECT_EQ(order(), (Names{"OK"}));
  EXPECT_TRUE(panel().ButtonsContainer().Visible());
  EXPECT_GT(control(1).Width(), 0);
  add("Cancel");
  user->clicks(control(2));
  startListening();
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(2)"}));
}

TEST_F(FooterButtons, MayBeRemovedWhileTheyAreVisitedOneByOne) {
  for (const char* name : {"A", "B", "C", "D"}) add(name);
  Names visited;
  for (const ButtonPtr& one : buttons()) {
    visited.push_back(one->Control().Name());
    if (visited.size() == 1) buttons().Remove(Variant("A"));
    if (visited.size() == 2) buttons().RemoveAll();
  }
  EXPECT_EQ(visited, (Names{"A", "C"}));
}

}  // namespace
}  // namespace qrn::test
