#include <stdexcept>

#include "runtime/errors.h"
#include "stack_fixture.h"

// An error on the way reaches whoever has called the stack, which then is as if there had been none.

namespace qrn::test {
namespace {

class FailingListener : public StackTest {
 protected:
  [[noreturn]] static void fail() { throw std::runtime_error("no"); }
  template <class Action>
  static void expectFailure(const Action& action) {
    EXPECT_THROW(action(), std::runtime_error);
  }
};

TEST_F(FailingListener, OfThePageLayoutGetsItsPageAllTheSame) {
  addPages("..");
  keep = stack().PageLayout.connect([](std::int32_t) { fail(); });
  expectFailure([&] { add(true); });
  EXPECT_EQ(take(), (Events{"PageDeactivate(2)", "PageActivate(3)"}));
  EXPECT_EQ(stack().Count(), 3);
  expectInOrder();
}

TEST_F(FailingListener, OfACoveredPageLeavesItCovered) {
  addPages("..");
  keep = stack().PageDeactivate.connect([](std::int32_t) { fail(); });
  expectFailure([&] { add(true); });
  EXPECT_EQ(take(), (Events{"PageLayout(3)", "PageActivate(3)"}));
  expectInOrder();
}

TEST_F(FailingListener, OfALostFocusLeavesThePageCovered) {
  QRNEdit& row = addRow(*add());
  user->focuses(row);
  keep = stack().ItemLostFocus.connect([](std::int32_t&, std::int32_t&) { fail(); });
  expectFailure([&] { add(true); });
  EXPECT_EQ(stack().Count(), 2);
  EXPECT_FALSE(page(1).hasFocus());
  expectInOrder();
}

TEST_F(FailingListener, OfTheActivationLeavesThePageOnTop) {
  addPages("...");
  keep = stack().PageActivate.connect([](std::int32_t) { fail(); });
  expectFailure([&] { add(true); });
  expectInOrder();
  expectFailure([&] { stack().ActivatePage(2); });
  EXPECT_EQ(stack().Count(), 2);
  expectInOrder();
}

TEST_F(FailingListener, OfAFocusThatIsGotIsHeardAfterTheActivation) {
  addRow(*add());
  addPages(".");
  keep = page(1).ObjectEvent.connect([](std::string_view name, host::EventArgs) {
    if (name == "GotFocus") fail();
  });
  expectFailure([&] { stack().ActivatePage(1); });
  EXPECT_EQ(take(), (Events{"PageClose(2, False)", "PageActivate(1)"}));
  expectInOrder();
}

TEST_F(FailingListener, OfAPageThatIsAskedForKeepsIt) {
  addPages(".m..");
  keep = stack().PageClose.connect([](std::int32_t index, bool&) {
    if (index == 2) fail();
  });
  expectFailure([&] { stack().ActivatePage(1); });
  EXPECT_EQ(take(), (Events{"PageClose(4, False)", "PageClose(3, False)", "PageActivate(2)"}));
  EXPECT_EQ(stack().Count(), 2);
  expectInOrder();
}

TEST_F(FailingListener, OfAChangedIndentLeavesThePagesInTheirPlaces) {
  struct FailingSite final : headless::HeadlessSite {
    using HeadlessSite::HeadlessSite;
    void propertyChanged(host::UserControl&, std::string_view) override { fail(); }
  } failing{platform};
  const auto other = host::create<QRNDisplayStack>(failing);
  other->Move(0, 0, 400, 300);
  for (int i = 0; i < 2; ++i) other->AddPage("", "", false);
  expectFailure([&] { other->SetLeftIndent(30); });
  EXPECT_EQ(other->Pages(Variant(2)).bounds(), (Rect{30, 20, 370, 280}));
}

TEST_F(FailingListener, OfTheFirstPageLayoutLeavesThePageActive) {
  keep = stack().PageLayout.connect([](std::int32_t) { fail(); });
  expectFailure([&] { add(); });
  EXPECT_EQ(page(1).bounds(), (Rect{0, 0, 400, 300}));
  expectInOrder();
}

TEST_F(FailingListener, OfALostFocusLeavesAPageCoveredThatStaysInSight) {
  stack().SetHideDisabledControls(false);
  user->focuses(addRow(*add()));
  keep = stack().ItemLostFocus.connect([](std::int32_t&, std::int32_t&) { fail(); });
  expectFailure([&] { add(true); });
  EXPECT_FALSE(page(1).hasFocus());
  expectInOrder();
}

TEST_F(FailingListener, WhoComesFirstIsTheOneThatTheCallerHears) {
  addPages("..");
  keep = stack().PageDeactivate.connect([](std::int32_t) { throw std::runtime_error("first"); });
  const auto second = stack().PageActivate.connect([](std::int32_t) { fail(); });
  try {
    add(true);
    ADD_FAILURE() << "nothing was raised";
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "first");
  }
  expectInOrder();
}

TEST_F(FailingListener, MayHaveClosedThePageBefore) {
  addPages(".");
  keep = stack().PageLayout.connect([&](std::int32_t) {
    stack().ActivatePage(1);
    fail();
  });
  expectFailure([&] { add(true); });
  EXPECT_EQ(stack().Count(), 1);
  expectInOrder();
}

TEST_F(FailingListener, MayHaveDestroyedTheStackBefore) {
  addPages(".");
  keep = stack().PageDeactivate.connect([&](std::int32_t) {
    destroyStack();
    fail();
  });
  expectFailure([&] { add(true); });
  EXPECT_EQ(stack_, nullptr);
}

// ---- a page that can't be laid out ----

class TallPage : public FailingListener {
 protected:
  // More than a scroll bar of 16 bits reaches.
  static void makeTall(QRNDisplay& page) {
    page.SetMenuItemHeight(20000);
    for (int i = 0; i < 2; ++i) page.Items().AddAction("", ddtypeMethod);
  }
  template <class Action>
  static void expectOverflow(const Action& action) {
    try {
      action();
      ADD_FAILURE() << "nothing was raised";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), kOverflow);
    }
  }
};

TEST_F(TallPage, LeavesTheOthersTheirPlaces) {
  addPages("...");
  makeTall(page(2));
  expectOverflow([&] { stack().Move(0, 0, 300, 200); });
  EXPECT_EQ(page(2).bounds(), (Rect{10, 20, 290, 180}));
  EXPECT_EQ(page(3).bounds(), (Rect{20, 40, 280, 160}));
  expectOverflow([&] { stack().SetLeftIndent(20); });
  EXPECT_EQ(page(3).bounds(), (Rect{40, 40, 260, 160}));
}

TEST_F(TallPage, IsMaximizedWithTheOthers) {
  addPages("....");
  makeTall(page(3));
  expectOverflow([&] { user->clicks(page(4).imgMaxRst()); });
  for (std::int32_t k : {2, 3, 4}) EXPECT_TRUE(page(k).Maximized()) << k;
  EXPECT_EQ(page(2).bounds(), (Rect{0, 0, 400, 300}));
  expectOverflow([&] { user->clicks(page(4).imgMaxRst()); });
  for (std::int32_t k : {2, 3, 4}) EXPECT_FALSE(page(k).Maximized()) << k;
  EXPECT_EQ(page(4).bounds(), (Rect{30, 60, 370, 240}));
}

TEST_F(TallPage, LeavesTheOthersTheirFont) {
  addPages("..");
  makeTall(page(1));
  const auto font = std::make_shared<host::Font>("Serif", 12);
  static_cast<headless::FixedMetrics&>(platform.metrics(*font)).textHeight = 20;
  expectOverflow([&] { stack().SetFont(font); });
  EXPECT_EQ(*page(2).Font(), *font);
}

TEST_F(TallPage, IsAddedAllTheSame) {
  addPages("..");
  keep = stack().PageLayout.connect([&](std::int32_t index) {
    makeTall(page(index));
    take();
  });
  expectOverflow([&] { add(true); });
  EXPECT_EQ(take(), (Events{"PageLayout(3)", "PageDeactivate(2)", "PageActivate(3)"}));
  expectInOrder();
}

}  // namespace
}  // namespace qrn::test
