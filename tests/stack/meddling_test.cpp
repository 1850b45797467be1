#include <stdexcept>

#include "stack_fixture.h"

// Listeners that change the stack while it is changing.

namespace qrn::test {
namespace {

using Meddling = StackTest;

TEST_F(Meddling, APageMayBeClosedWhileItIsLaidOut) {
  add();
  keep = stack().PageLayout.connect([&](std::int32_t index) { stack().ActivatePage(index - 1); });
  take();
  EXPECT_EQ(add(true), nullptr);
  EXPECT_EQ(stack().Count(), 1);
  expectInOrder();
}

TEST_F(Meddling, APageMayGetAnotherOneWhileItIsLaidOut) {
  add();
  keep = stack().PageLayout.connect(
      [&, another = once([&] { add(true); })](std::int32_t) mutable { another(); });
  QRNDisplay* added = add();
  EXPECT_EQ(added, &page(2));
  EXPECT_EQ(stack().Count(), 3);
  expectInOrder();
  EXPECT_EQ(page(2).bounds(), (Rect{10, 20, 390, 280}));
}

TEST_F(Meddling, APageMayBeAddedWhenOneIsCovered) {
  add();
  keep = stack().PageDeactivate.connect(
      [&, another = once([&] { add(); })](std::int32_t) mutable { another(); });
  add(true);
  EXPECT_EQ(stack().Count(), 3);
  expectInOrder();
}

TEST_F(Meddling, ThePagesMayBeClosedWhenOneIsCovered) {
  add();
  keep = stack().PageDeactivate.connect([&](std::int32_t) { stack().ActivatePage(0); });
  EXPECT_EQ(add(true), nullptr);
  EXPECT_EQ(stack().Count(), 0);
}

TEST_F(Meddling, ThePageMayBeClosedThatTakesTheFocusFromOneBelow) {
  user->focuses(addRow(*add()));
  keep = stack().ItemLostFocus.connect([&](std::int32_t&, std::int32_t&) { stack().ActivatePage(1); });
  take();
  EXPECT_EQ(add(true), nullptr);
  EXPECT_EQ(stack().Count(), 1);
  EXPECT_EQ(take(), (Events{"PageLayout(2)", "ParameterEndEdit(1, 1, False)", "PageClose(2, False)",
                            "PageActivate(1)", "ItemLostFocus(1, 1)"}));
  expectInOrder();
}

TEST_F(Meddling, APageMayBeAddedOrClosedWhenOneIsActivated) {
  keep =
      stack().PageActivate.connect([&, another = once([&] { add(); })](std::int32_t) mutable { another(); });
  add();
  EXPECT_EQ(stack().Count(), 2);
  expectInOrder();
  keep = stack().PageActivate.connect([&](std::int32_t index) { stack().ActivatePage(index - 1); });
  EXPECT_EQ(add(), nullptr);
  EXPECT_EQ(stack().Count(), 0) << "each page that came up was closed in its turn";
}

TEST_F(Meddling, APageMayBeClosedByTheOneWhoIsAskedForIt) {
  addPages("....");
  keep = stack().PageClose.connect(
      [&, close = once([&] { stack().ActivatePage(3); })](std::int32_t, bool&) mutable { close(); });
  stack().ActivatePage(2);
  EXPECT_EQ(stack().Count(), 2);
  expectInOrder();
}

TEST_F(Meddling, AQuestionPutOnThePageThatIsClosedKeepsThePage) {
  addPages("...");
  keep = stack().PageClose.connect([&, question = once([&] {
                                         stack().AddPage("question", "Discard the changes?", true);
                                       })](std::int32_t, bool&) mutable { question(); });
  stack().ActivatePage(1);
  EXPECT_EQ(stack().Count(), 4);
  EXPECT_EQ(page(4).Name(), "question");
  expectInOrder();
}

TEST_F(Meddling, AQuestionPutOnALowerPageEndsTheClosing) {
  addPages("..m.");
  keep = stack().PageClose.connect([&, question = once([&] { add(); })](std::int32_t index, bool&) mutable {
    if (index == 2) question();
  });
  take();
  stack().ActivatePage(1);
  EXPECT_EQ(stack().Count(), 3);
  expectInOrder();
  EXPECT_EQ(take().back(), "PageClose(2, False)") << "the question was activated when it came";
}

TEST_F(Meddling, APageThatTakesThePlaceOfTheClosedOneEndsTheClosing) {
  addPages("...");
  keep = stack().PageClose.connect([&, replace = once([&] {
                                         stack().ActivatePage(2);
                                         add(true);
                                       })](std::int32_t, bool&) mutable { replace(); });
  stack().ActivatePage(0);
  EXPECT_EQ(take(), (Events{"PageClose(3, False)", "PageActivate(2)", "PageLayout(3)", "PageDeactivate(2)",
                            "PageActivate(3)", "PageClose(3, False)"}));
  EXPECT_EQ(stack().Count(), 3);
  expectInOrder();
}

TEST_F(Meddling, AFailingListenerKeepsThePageThatItWasAskedFor) {
  addPages("...");
  keep = stack().PageClose.connect([&](std::int32_t index, bool&) {
    if (index == 3) throw std::runtime_error("no");
  });
  EXPECT_THROW(stack().ActivatePage(1), std::runtime_error);
  EXPECT_EQ(stack().Count(), 3);
  expectInOrder();
}

// What ends when a page is covered has listeners, too.
TEST_F(Meddling, APageMayBeClosedWhileItCoversAnother) {
  for (const bool hides : {true, false}) {
    for (const bool modal : {true, false}) {
      stack().SetHideDisabledControls(hides);
      user->focuses(addRow(*add()));
      const auto close = once([&] { stack().ActivatePage(1); });
      keep = stack().ParameterEndEdit.connect([&](std::int32_t&, std::int32_t&, bool&) { close(); });
      take();
      EXPECT_EQ(add(modal), nullptr);
      EXPECT_EQ(take(), (Events{"PageLayout(2)", "PageClose(2, False)", "PageActivate(1)",
                                "ParameterEndEdit(1, 1, False)", "ItemLostFocus(1, 1)"}));
      EXPECT_EQ(stack().Count(), 1);
      expectInOrder();
      stack().ActivatePage(0);
    }
  }
}

TEST_F(Meddling, APageThatIsCoveredWhileItIsLaidOutIsNotActivated) {
  keep = stack().PageLayout.connect([&, another = once([&] { add(); })](std::int32_t) mutable { another(); });
  add();
  EXPECT_EQ(take(), (Events{"PageLayout(2)", "PageDeactivate(1)", "PageActivate(2)", "PageLayout(1)"}));
  expectInOrder();
}

TEST_F(Meddling, ThePagesMayGoWhileAKeyIsHandedOn) {
  addPages("..");
  keep =
      stack().KeyDown.connect([&](std::int32_t&, std::int16_t&, std::int16_t&) { stack().ActivatePage(0); });
  page(2).ControlsContainer().SetFocus();
  user->presses(host::key::F1);
  EXPECT_EQ(stack().Count(), 0);
}

TEST_F(Meddling, APageMayGoWhenItsItemGetsTheFocus) {
  QRNEdit& row = addRow(*add());
  keep = stack().ItemGotFocus.connect([&](std::int32_t&, std::int32_t&) { stack().ActivatePage(0); });
  user->focuses(row);
  EXPECT_EQ(stack().Count(), 0);
}

// ---- the host removes the control of a page ----

TEST_F(Meddling, ThePageWhoseControlIsRemovedUncoversTheOneBelow) {
  addPages("..m");
  stack().controls().remove("Page3");
  EXPECT_EQ(take(), Events{"PageActivate(2)"});
  EXPECT_EQ(stack().Count(), 2);
  expectInOrder();
}

TEST_F(Meddling, ThePageWhoseControlIsRemovedTakesThoseAboveAlong) {
  addPages("....");
  stack().controls().remove("Page2");
  EXPECT_EQ(take(), Events{"PageActivate(1)"});
  EXPECT_EQ(stack().Count(), 1);
  expectInOrder();
  stack().controls().remove("Page1");
  EXPECT_EQ(take(), Events{});
  EXPECT_EQ(stack().Count(), 0);
}

TEST_F(Meddling, AControlOfTheHostsOwnMayBeRemoved) {
  addPages("..");
  stack().controls().add("QRNV16Controls2.QRNImageList", "mine", stack());
  stack().controls().remove("mine");
  EXPECT_EQ(take(), Events{});
  EXPECT_EQ(stack().Count(), 2);
  expectInOrder();
}

TEST_F(Meddling, ThePicturesOfTheStackMayBeRemoved) {
  stack().controls().remove("imlImages");
  addPages("..");
  EXPECT_FALSE(page(2).ImageList().Image(qrnImageLocked)->empty());
  expectInOrder();
}

TEST_F(Meddling, AListenerThatClosesItsPageMayKeepThoseBelow) {
  addPages("....");
  keep = stack().PageClose.connect([&](std::int32_t index, bool& cancel) {
    if (index != 4) return;
    stack().controls().remove(stack().Pages(Variant(4)).Name());
    cancel = true;
  });
  stack().ActivatePage(1);
  EXPECT_EQ(stack().Count(), 3);
  expectInOrder();
}

// ---- the stack itself goes ----

class Destroying : public Meddling {
 protected:
  void expectGone(const std::function<void()>& action) {
    action();
    EXPECT_EQ(stack_, nullptr);
  }
};

TEST_F(Destroying, FromThePageEventsOfAnAddedPage) {
  add();
  keep = stack().PageLayout.connect([&](std::int32_t) { destroyStack(); });
  expectGone([&] { EXPECT_EQ(add(), nullptr); });
}

TEST_F(Destroying, WhenAPageIsCovered) {
  add();
  keep = stack().PageDeactivate.connect([&](std::int32_t) { destroyStack(); });
  expectGone([&] { EXPECT_EQ(add(true), nullptr); });
}

TEST_F(Destroying, WhenAPageIsActivated) {
  keep = stack().PageActivate.connect([&](std::int32_t) { destroyStack(); });
  expectGone([&] { EXPECT_EQ(add(true), nullptr); });
}

TEST_F(Destroying, WhenAPageIsAskedFor) {
  addPages("...");
  keep = stack().PageClose.connect([&](std::int32_t index, bool&) {
    if (index == 2) destroyStack();
  });
  expectGone([&] { stack().ActivatePage(1); });
}

TEST_F(Destroying, ByTheCloseButton) {
  addPages("..");
  keep = stack().PageActivate.connect([&](std::int32_t) { destroyStack(); });
  headless::User* closer = user.release();
  const std::unique_ptr<headless::User> guard(closer);
  closer->clicks(page(2).imgClose());
  EXPECT_EQ(stack_, nullptr);
}

TEST_F(Destroying, WhenTheEditOfACoveredPageEnds) {
  QRNEdit& row = addRow(*add());
  user->focuses(row);
  keep = stack().ParameterEndEdit.connect([&](std::int32_t&, std::int32_t&, bool&) { destroyStack(); });
  expectGone([&] { EXPECT_EQ(add(true), nullptr); });
}

TEST_F(Destroying, TakesThePagesOffFromTheTopDown) {
  // Tells when the page that it has been given to goes.
  struct Given final : Object {
    explicit Given(std::function<void()> whenGone) : goes(std::move(whenGone)) {}
    ~Given() override { goes(); }
    std::string_view typeName() const override { return "Given"; }
    std::function<void()> goes;
  };
  addPages("...");
  Events gone;
  for (std::int32_t i = 1; i <= 3; ++i) {
    const auto goes = [&gone, i, all = &stack()] {
      gone.push_back(shown(i) + " before " + shown(all->Count()));
    };
    page(i).SetExtraData(Variant(ObjectPtr(std::make_shared<Given>(goes))));
  }
  destroyStack();
  EXPECT_EQ(gone, (Events{"3 before 2", "2 before 1", "1 before 0"})) << "with the record of each";
}

}  // namespace
}  // namespace qrn::test
