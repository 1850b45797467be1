#include "hooks/window_registry.h"
#include "stack_fixture.h"
#include "tooltip/QRNToolTip.h"

// The tool tip of a page.

namespace qrn::test {
namespace {

class ToolTipOfAPage : public StackTest {
 protected:
  ToolTipOfAPage() {
    user->focuses(addRow(*add()));
    user->types("x");
    page(1).DisplayToolTip(Variant(1), 2);
    take();
  }
  host::Control* tip() { return page(1).ControlsCollection().find("ctlToolTip"); }
};

TEST_F(ToolTipOfAPage, GoesWhenThePageIsCoveredAndEndsTheEdit) {
  for (const bool hides : {true, false}) {
    stack().SetHideDisabledControls(hides);
    add();
    EXPECT_EQ(tip(), nullptr);
    EXPECT_EQ(take(), (Events{"PageLayout(2)", "ParameterEndEdit(1, 1, True)", "PageDeactivate(1)",
                              "PageActivate(2)"}));
    stack().ActivatePage(0);
    user->focuses(addRow(*add()));
    user->types("x");
    page(1).DisplayToolTip(Variant(1), 2);
    take();
  }
}

TEST_F(ToolTipOfAPage, DoesNotKeepEditsFromStartingOnceThePageIsBack) {
  add();
  stack().ActivatePage(1);
  QRNEdit& other = addRow(page(1));
  take();
  user->focuses(other);
  EXPECT_EQ(take(), (Events{"ParameterStartEdit(1, 2)", "ItemGotFocus(1, 2)"}));
}

TEST_F(ToolTipOfAPage, MayHaveGoneBeforeThePageIsCovered) {
  page(1).RemoveToolTip(false);
  EXPECT_EQ(take(), Events{}) << "the edit is still held";
  add();
  EXPECT_EQ(take(), (Events{"PageLayout(2)", "ParameterEndEdit(1, 1, True)", "PageDeactivate(1)",
                            "PageActivate(2)"}));
}

TEST_F(ToolTipOfAPage, MayCloseTheNewPageWhenItEndsTheEdit) {
  const auto close = once([&] { stack().ActivatePage(1); });
  keep = stack().ParameterEndEdit.connect([&](std::int32_t&, std::int32_t&, bool&) { close(); });
  EXPECT_EQ(add(true), nullptr);
  EXPECT_EQ(stack().Count(), 1);
  expectInOrder();
}

TEST_F(ToolTipOfAPage, MayDestroyTheStackWhenItEndsTheEdit) {
  keep = stack().ParameterEndEdit.connect([&](std::int32_t&, std::int32_t&, bool&) { destroyStack(); });
  EXPECT_EQ(add(true), nullptr);
  EXPECT_EQ(stack_, nullptr);
}

TEST_F(ToolTipOfAPage, GoesWithTheStack) {
  Events late;
  const auto ended =
      stack().ParameterEndEdit.connect([&](std::int32_t&, std::int32_t&, bool&) { late.push_back("ended"); });
  destroyStack();
  EXPECT_EQ(watchedWindows(), 0);
  platform.windows().applicationActivated(false);
  EXPECT_EQ(late, Events{});
}

}  // namespace
}  // namespace qrn::test
