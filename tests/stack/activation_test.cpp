#include "host/form.h"
#include "stack_fixture.h"

namespace qrn::test {
namespace {

using Activation = StackTest;

TEST_F(Activation, ClosesThePagesAboveFromTheTopDown) {
  addPages("....");
  stack().ActivatePage(1);
  EXPECT_EQ(take(),
            (Events{"PageClose(4, False)", "PageClose(3, False)", "PageClose(2, False)", "PageActivate(1)"}));
  EXPECT_EQ(stack().Count(), 1);
  EXPECT_EQ(activePages(stack()), "A");
}

TEST_F(Activation, DoesNothingForTheTopPageAndAbove) {
  addPages("..");
  stack().ActivatePage(2);
  stack().ActivatePage(7);
  EXPECT_EQ(take(), Events{});
  EXPECT_EQ(stack().Count(), 2);
}

TEST_F(Activation, ClosesEveryPageForZeroAndBelow) {
  for (const std::int32_t index : {0, -3}) {
    addPages("..");
    stack().ActivatePage(index);
    EXPECT_EQ(take(), (Events{"PageClose(2, False)", "PageClose(1, False)"}));
    EXPECT_EQ(stack().Count(), 0);
  }
}

TEST_F(Activation, UncoversTheNewTopPageAndGivesItTheFocus) {
  addPages("..");
  addRow(page(1));
  stack().ActivatePage(1);
  EXPECT_TRUE(page(1).ControlsContainer().Visible());
  EXPECT_TRUE(page(1).ControlsContainer().hasFocus());
}

TEST_F(Activation, LeavesEverythingAsItWasWhenTheTopPageIsKept) {
  addPages("..m");
  keep = stack().PageClose.connect([](std::int32_t, bool& cancel) { cancel = true; });
  stack().ActivatePage(1);
  EXPECT_EQ(take(), Events{"PageClose(3, True)"});
  EXPECT_EQ(stack().Count(), 3);
  EXPECT_EQ(activePages(stack()), "..A");
  EXPECT_EQ(enabledPages(stack()), "..E");
}

TEST_F(Activation, ActivatesThePageThatIsKept) {
  addPages("....");
  keep = stack().PageClose.connect([](std::int32_t index, bool& cancel) { cancel = index == 3; });
  stack().ActivatePage(1);
  EXPECT_EQ(take(), (Events{"PageClose(4, False)", "PageClose(3, True)", "PageActivate(3)"}));
  EXPECT_EQ(stack().Count(), 3);
  EXPECT_EQ(activePages(stack()), "..A");
}

// ---- modal pages ----

TEST_F(Activation, OfAModalPageDisablesThoseBelowUntilItIsClosed) {
  addPages("..m");
  EXPECT_EQ(enabledPages(stack()), "..E");
  stack().ActivatePage(2);
  EXPECT_EQ(enabledPages(stack()), "EE");
}

TEST_F(Activation, EnablesPagesDownToTheUppermostModalOneOnly) {
  addPages("..m.");
  stack().ActivatePage(3);
  EXPECT_EQ(enabledPages(stack()), "..E");
  EXPECT_EQ(activePages(stack()), "..A");
}

TEST_F(Activation, OfOneModalPageOnAnotherKeepsTheLowerOnesDisabled) {
  addPages(".m.m");
  EXPECT_EQ(enabledPages(stack()), "...E");
  stack().ActivatePage(3);
  EXPECT_EQ(enabledPages(stack()), ".EE");
  stack().ActivatePage(1);
  EXPECT_EQ(enabledPages(stack()), "E");
}

TEST_F(Activation, BeepsAtAClickBesideAModalPage) {
  addPages("..m");
  user->clicksAt({5, 5});
  user->clicksAt({200, 25});
  EXPECT_EQ(platform.beeps(), 2);
  EXPECT_EQ(stack().Count(), 3);
  EXPECT_EQ(take(), Events{});
}

TEST_F(Activation, IsSilentAtAClickBesideOtherPages) {
  user->clicksAt({5, 5});
  EXPECT_EQ(platform.beeps(), 0);
}

TEST_F(Activation, IsSilentWhenTheMouseIsReleasedElsewhere) {
  addPages(".m");
  user->pressesAt({5, 5});
  user->releasesAt({500, 5});
  user->pressesAt({5, 5}, host::MouseButton::Right);
  user->releasesAt({5, 5}, host::MouseButton::Right);
  EXPECT_EQ(platform.beeps(), 0);
}

// A press on what a modal page then covers: such as one that opens by itself after a while.
TEST_F(Activation, DoesNotFollowAPressThatWasOnAPageBeforeAModalOneCameOverIt) {
  stack().SetHideDisabledControls(false);
  addPages("..");
  const auto action = page(1).Items().AddAction("", ddtypeMethod);
  page(1).LayoutControls(false);
  for (const host::Control* pressed :
       {static_cast<host::Control*>(&page(2).imgClose()), static_cast<host::Control*>(&page(1)),
        static_cast<host::Control*>(&action->Control())}) {
    const Point at = pressed->onSurface().topLeft() + Point{3, 5};
    user->pressesAt(at);
    add(true);
    take();
    user->releasesAt(at);
    EXPECT_EQ(take(), Events{}) << pressed->typeName();
    EXPECT_EQ(stack().Count(), 3);
    stack().ActivatePage(2);
    take();
  }
}

// ---- by the user ----

TEST_F(Activation, FollowsAClickOnALowerPage) {
  addPages("...");
  user->clicksAt({5, 200});
  EXPECT_EQ(take(), (Events{"PageClose(3, False)", "PageClose(2, False)", "PageActivate(1)"}));
}

TEST_F(Activation, IgnoresAClickOnTheTopPage) {
  addPages("..");
  user->clicks(page(2).lblTitle());
  EXPECT_EQ(take(), Events{});
  EXPECT_EQ(stack().Count(), 2);
}

TEST_F(Activation, OfThePageBelowFollowsTheCloseButton) {
  addPages("...");
  user->clicks(page(3).imgClose());
  EXPECT_EQ(take(), (Events{"PageClose(3, False)", "PageActivate(2)"}));
}

TEST_F(Activation, OfNothingFollowsTheCloseButtonOfAModalFirstPage) {
  addPages("m");
  user->clicks(page(1).imgClose());
  EXPECT_EQ(take(), Events{"PageClose(1, False)"});
  EXPECT_EQ(stack().Count(), 0);
}

// ---- traced ----

class Viewer final : public host::AutomationObject {
 public:
  explicit Viewer(Events& lines) : lines_(lines) {}
  std::string_view typeName() const override { return "clsDebugTrace"; }
  Variant call(std::string_view, std::span<const Variant> arguments) override {
    lines_.push_back(CStr(arguments[1]) + ": " + CStr(arguments[2]));
    return {};
  }

 private:
  Events& lines_;
};

TEST_F(Activation, IsTracedPageByPage) {
  const host::Form viewer(platform, "ZOLVEN Debug Tracer");
  Events traced;
  platform.provideObject("ZVDebugTrace.clsDebugTrace", [&] { return std::make_shared<Viewer>(traced); });
  addPages("...");
  traced.clear();
  keep = stack().PageClose.connect([&](std::int32_t, bool&) { traced.push_back("asked"); });
  const auto activated = stack().PageActivate.connect([&](std::int32_t) { traced.push_back("activated"); });
  stack().ActivatePage(1);
  EXPECT_EQ(traced, (Events{"asked", "0: Close Page =3 Page3", "0: Close Page done", "asked",
                            "0: Close Page =2 Page2", "0: Close Page done", "0: RaiseEvent PageActivate",
                            "activated", "0: RaiseEvent PageActivate DONE"}));
}

}  // namespace
}  // namespace qrn::test
