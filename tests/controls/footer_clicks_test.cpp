#include "footer_fixture.h"

namespace qrn::test {
namespace {

using namespace std::chrono_literals;

// ---- clicks ----

class FooterClicks : public FooterTest {
 protected:
  FooterClicks() {
    for (const char* name : {"OK", "Apply", "Cancel"}) add(name, std::string("&") + name);
    panel().LayoutControls(false);
    startListening();
  }
};

TEST_F(FooterClicks, ReachThePanelAfterTheHandlerHasReturned) {
  bool returned = false;
  const auto during = control(2).Click.connect([&] { EXPECT_EQ(events(), Events{}); });
  const auto connection = panel().ButtonClick.connect([&](std::int32_t&) { EXPECT_TRUE(returned); });
  user->clicks(control(2));
  EXPECT_EQ(events(), Events{});
  returned = true;
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(2)"}));
}

TEST_F(FooterClicks, ComeFromTheKeyboardToo) {
  user->focuses(control(1));
  startListening();
  user->holds(host::key::Space);
  deliver();
  EXPECT_EQ(events(), (Events{"KeyDown(32, 0)", "KeyPress(32)"})) << "the space bar clicks when it is let go";
  user->lets(host::key::Space);
  deliver();
  EXPECT_EQ(events(), (Events{"KeyUp(32, 0)", "ButtonClick(1)"}));
  user->presses(host::key::Enter);
  deliver();
  EXPECT_EQ(events(), (Events{"KeyDown(13, 0)", "KeyPress(13)", "KeyUp(13, 0)", "ButtonClick(1)"}));
}

TEST_F(FooterClicks, ComeFromTheLetterOfTheCaptionWhereverTheFocusIs) {
  addParameter("Damping");
  panel().LayoutControls(false);
  user->focuses(row(1));
  startListening();
  user->presses('A', host::shift::Alt);
  deliver();
  EXPECT_EQ(events(), (Events{"ItemKeyDown(1, 65, 4)", "ParameterEndEdit(1, False)", "ItemLostFocus(1)",
                              "KeyUp(65, 4)", "ButtonClick(2)"}));
  EXPECT_TRUE(control(2).hasFocus());
}

TEST_F(FooterClicks, ARowThatIsBeingEditedEndsItsEditingFirst) {
  addParameter("Damping");
  panel().LayoutControls(false);
  user->focuses(row(1));
  user->types("x");
  startListening();
  user->clicks(control(1));
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(1, True)", "ItemLostFocus(1)"}));
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)"}));
}

TEST_F(FooterClicks, OfADisabledButtonAreClicksOnThePanel) {
  control(1).SetEnabled(false);
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(events(), (Events{"Click"}));
}

TEST_F(FooterClicks, OnTheFooterBesideTheButtonsAreClicksOnThePanel) {
  panel().SetButtonsAlignment(0);
  const Rect footer = panel().ButtonsContainer().visibleOnSurface();
  user->clicksAt({footer.right() - 5, footer.top + 5});
  EXPECT_EQ(events(), (Events{"Click"}));
}

TEST_F(FooterClicks, TwoBeforeTheMessageLoopComesAreOne) {
  user->clicks(control(1));
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)"}));
}

TEST_F(FooterClicks, OfSeveralButtonsArriveInTheirOrder) {
  user->clicks(control(3));
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(3)", "ButtonClick(1)"}));
}

TEST_F(FooterClicks, CarryThePositionAtTheTimeOfTheClick) {
  user->clicks(control(2));
  buttons().Remove(Variant(1));
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(2)"}));
}

TEST_F(FooterClicks, ACallByHandTakesWhatAnswersToANumber) {
  Variant two("2");
  button(1).Callback(two);
  EXPECT_EQ(events(), (Events{"ButtonClick(2)"}));
  Variant nonsense("two");
  button(1).Callback(nonsense);
  EXPECT_EQ(events(), Events{});
}

// ---- what listeners do to it ----

TEST_F(FooterClicks, OfAButtonRemovedMeanwhileAreForgotten) {
  const ButtonPtr kept = buttons().Item(Variant(2));
  user->clicks(control(2));
  buttons().Remove(Variant(2));
  deliver();
  EXPECT_EQ(events(), Events{});
}

TEST_F(FooterClicks, TheirButtonMayGoInsideThem) {
  const auto connection =
      panel().ButtonClick.connect([&](std::int32_t& index) { buttons().Remove(Variant(index)); });
  user->clicks(control(2));
  deliver();
  EXPECT_EQ(order(), (Names{"OK", "Cancel"}));
  EXPECT_EQ(events(), (Events{"ButtonClick(2)"}));
}

TEST_F(FooterClicks, AllButtonsMayGoInsideOneAndOthersCome) {
  const auto connection = panel().ButtonClick.connect([&](std::int32_t&) {
    buttons().RemoveAll();
    add("New");
  });
  user->clicks(control(2));
  user->clicks(control(3));
  deliver();
  EXPECT_EQ(order(), (Names{"New"}));
  EXPECT_EQ(events(), (Events{"ButtonLayout(1)", "ButtonClick(2)"}));  // the log listens last
}

TEST_F(FooterClicks, ThePanelMayGoInsideOne) {
  int heard = 0;
  const auto connection = panel().ButtonClick.connect([&](std::int32_t&) {
    ++heard;
    panel_.reset();
  });
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(heard, 1);
  EXPECT_EQ(panel_, nullptr);
  EXPECT_EQ(platform.windows().windowCount(), 0);
}

TEST_F(FooterClicks, ThePanelMayGoBeforeOneArrives) {
  const ButtonPtr kept = buttons().Item(Variant(1));
  user->clicks(control(1));
  panel_.reset();
  deliver();
  kept->SetAutoFireDelay(0);
  deliver();
  EXPECT_EQ(raisedBy([&] { kept->Control(); }).number, kObjectNotInitialized);
  EXPECT_EQ(platform.windows().windowCount(), 0);
}

TEST_F(FooterClicks, TheControlMayGoInsideItsOwnClick) {
  const auto connection = control(1).Click.connect([&] { buttons().Remove(Variant(1)); });
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(events(), Events{});
  EXPECT_EQ(order(), (Names{"Apply", "Cancel"}));
}

TEST_F(FooterClicks, AnErrorOfAListenerIsNoneOfTheMessageLoops) {
  int heard = 0;
  const auto connection = panel().ButtonClick.connect([&](std::int32_t&) {
    if (++heard == 1) RaiseError(1000, "listener", "on purpose");
  });
  user->clicks(control(1));
  EXPECT_EQ(raisedBy([&] { deliver(); }).number, 0);
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(heard, 2);
}

TEST_F(FooterClicks, ABrokenListenerDoesNotHoldUpTheNextClick) {
  int heard = 0;
  const auto connection = panel().ButtonClick.connect([&](std::int32_t&) {
    if (++heard == 1) throw std::logic_error("on purpose");
  });
  user->clicks(control(1));
  user->clicks(control(2));
  EXPECT_THROW(deliver(), std::logic_error);
  deliver();
  EXPECT_EQ(heard, 2);
}

TEST_F(FooterClicks, AButtonMayFireAgainInsideItsOwnClick) {
  int left = 3;
  const auto connection = panel().ButtonClick.connect([&](std::int32_t& index) {
    if (--left > 0) button(index).SetAutoFireDelay(0);
  });
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)", "ButtonClick(1)", "ButtonClick(1)"}));
}

// A dialog box that a click opens runs the message loop on.
TEST_F(FooterClicks, ALoopInsideOneDeliversTheOthersAndItselfOnlyOnce) {
  std::vector<std::int32_t> order;
  const auto connection = panel().ButtonClick.connect([&](std::int32_t& index) {
    order.push_back(index);
    deliver();
  });
  user->clicks(control(1));
  user->clicks(control(1));
  user->clicks(control(2));
  deliver();
  EXPECT_EQ(order, (std::vector<std::int32_t>{1, 2}));
}

}  // namespace
}  // namespace qrn::test
