#include "buttons/context_menu.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

class ContextMenuOfAButton : public PanelTest {
 protected:
  ContextMenuOfAButton() {
    item_ = items().AddAction("Button", ddtypeMenu);
    button().Move(0, 0, 90, 30);
    startListening();
  }
  QRNMenuItem& button() { return item_->Control(); }
  Point origin() { return button().onSurface().topLeft(); }
  // What the last right click showed; nothing when no menu popped up.
  Events captionsShown() {
    const auto before = platform.shownMenus().size();
    user->clicks(button(), host::MouseButton::Right);
    return platform.shownMenus().size() == before ? Events{"no menu"} : platform.shownMenus().back().captions;
  }
  Events menuEvents() {
    Events found;
    for (const std::string& one : events())
      if (one.starts_with("ItemMenuClick")) found.push_back(one);
    return found;
  }

 private:
  std::shared_ptr<clsQRNAction> item_;
};

// ---- entries ----

TEST_F(ContextMenuOfAButton, StartsWithTheTemplateOnly) {
  ASSERT_NE(button().GetMenuItem(0), nullptr);
  EXPECT_EQ(button().GetMenuItem(0)->Caption(), "&Help");
  EXPECT_EQ(button().GetMenuItem(1), nullptr);
}

TEST_F(ContextMenuOfAButton, TheTemplateIsOneAndTheSameEntry) {
  button().GetMenuItem(0)->SetCaption("Template");
  EXPECT_EQ(button().GetMenuItem(0)->Caption(), "Template");
}

TEST_F(ContextMenuOfAButton, EntriesCountFromOne) {
  const auto first = button().AddMenuItem("Trend");
  const auto second = button().AddMenuItem("Print");
  EXPECT_EQ(first->Caption(), "Trend");
  EXPECT_EQ(button().GetMenuItem(1), first);
  EXPECT_EQ(button().GetMenuItem(2), second);
}

TEST_F(ContextMenuOfAButton, HasNoMoreEntriesThanAnIntegerCounts) {
  for (int i = 1; i < 32767; ++i) button().AddMenuItem("");
  EXPECT_NE(button().AddMenuItem("the last one"), nullptr);
  EXPECT_EQ(button().AddMenuItem("one more"), nullptr);
  EXPECT_EQ(button().GetMenuItem(32768), nullptr);
}

TEST_F(ContextMenuOfAButton, ANewEntryIsACopyOfTheTemplate) {
  button().GetMenuItem(0)->SetEnabled(false);
  button().GetMenuItem(0)->SetChecked(true);
  const auto entry = button().AddMenuItem("Trend");
  EXPECT_EQ(entry->Caption(), "Trend");
  EXPECT_FALSE(entry->Enabled());
  EXPECT_TRUE(entry->Checked());
}

TEST_F(ContextMenuOfAButton, AnUnknownIndexYieldsNothing) {
  button().AddMenuItem("Trend");
  for (const std::int32_t index : {-1, 2, 1000, -2'147'483'647}) {
    EXPECT_EQ(button().GetMenuItem(index), nullptr) << index;
    button().RemoveMenuItem(index);
  }
  EXPECT_EQ(captionsShown(), (Events{"Trend"}));
}

TEST_F(ContextMenuOfAButton, TheTemplateIsNeverRemoved) {
  button().AddMenuItem("Trend");
  button().RemoveMenuItem(0);
  button().RemoveMenuItem(-1);
  EXPECT_NE(button().GetMenuItem(0), nullptr);
  EXPECT_NE(button().GetMenuItem(1), nullptr);
}

TEST_F(ContextMenuOfAButton, EntriesAreRemovedFromTheEndAndAddedAgain) {
  button().AddMenuItem("Trend");
  button().AddMenuItem("Print");
  button().RemoveMenuItem(2);
  EXPECT_EQ(button().GetMenuItem(2), nullptr);
  const auto added = button().AddMenuItem("Save");
  EXPECT_EQ(button().GetMenuItem(2), added);
}

TEST_F(ContextMenuOfAButton, AfterARemovalFromTheMiddleTheNextIndexMayBeTakenAndNothingIsAdded) {
  button().AddMenuItem("Trend");
  button().AddMenuItem("Print");
  button().RemoveMenuItem(1);
  EXPECT_EQ(button().AddMenuItem("Save"), nullptr);  // two are loaded, and 2 is one of them
  EXPECT_EQ(button().GetMenuItem(2)->Caption(), "Print");
  EXPECT_EQ(captionsShown(), (Events{"Print"}));
}

TEST_F(ContextMenuOfAButton, RemovingAllLeavesTheTemplateAndNoMenu) {
  button().AddMenuItem("Trend");
  button().AddMenuItem("Print");
  button().RemoveMenu();
  EXPECT_EQ(button().GetMenuItem(1), nullptr);
  EXPECT_NE(button().GetMenuItem(0), nullptr);
  EXPECT_EQ(captionsShown(), (Events{"no menu"}));
  const auto added = button().AddMenuItem("Save");
  EXPECT_EQ(button().GetMenuItem(1), added);
}

TEST_F(ContextMenuOfAButton, RemovingAllOfNothingDoesNothing) {
  button().RemoveMenu();
  EXPECT_EQ(captionsShown(), (Events{"no menu"}));
}

TEST_F(ContextMenuOfAButton, RemovingAllReachesAsFarAsThereAreEntries) {
  button().AddMenuItem("Trend");
  button().AddMenuItem("Print");
  button().RemoveMenuItem(1);
  button().RemoveMenu();
  EXPECT_NE(button().GetMenuItem(2), nullptr) << "two are loaded, so only 1 is looked for";
}

// ---- popping up ----

TEST_F(ContextMenuOfAButton, PopsUpAtTheMouseWithoutTheTemplate) {
  button().AddMenuItem("Trend");
  EXPECT_EQ(captionsShown(), (Events{"Trend"}));
  EXPECT_EQ(platform.shownMenus().back().at, user->middleOf(button()));
  EXPECT_EQ(menuEvents(), Events{});  // closed without a choice
}

TEST_F(ContextMenuOfAButton, AChosenEntryRaisesItsIndex) {
  button().AddMenuItem("Trend");
  button().AddMenuItem("Print");
  platform.willChoose(2);
  user->clicks(button(), host::MouseButton::Right);
  EXPECT_EQ(menuEvents(), (Events{"ItemMenuClick(1, 2)"}));
}

TEST_F(ContextMenuOfAButton, ARightButtonThatComesUpOutsideShowsNoMenu) {
  button().AddMenuItem("Trend");
  user->pressesAt(origin() + Point{5, 5}, host::MouseButton::Right);
  user->releasesAt(origin() + Point{5, 40}, host::MouseButton::Right);
  EXPECT_TRUE(platform.shownMenus().empty());
}

TEST_F(ContextMenuOfAButton, ARightButtonThatWentDownElsewhereShowsNoMenu) {
  button().AddMenuItem("Trend");
  button().mouseUp(host::MouseButton::Right, 0, {5, 5});
  EXPECT_TRUE(platform.shownMenus().empty());
}

TEST_F(ContextMenuOfAButton, WorksWithoutButtonModeToo) {
  button().AddMenuItem("Trend");
  button().SetButtonMode(qrnbuttonNone);
  EXPECT_EQ(captionsShown(), (Events{"Trend"}));
}

TEST_F(ContextMenuOfAButton, ShiftF10PopsItUpInsideTheButtonAndIsNotForwarded) {
  button().AddMenuItem("Trend");
  user->focuses(button());
  startListening();
  platform.willChoose(1);
  user->holds(host::key::F10, host::shift::Shift);
  ASSERT_EQ(platform.shownMenus().size(), 1u);
  EXPECT_EQ(platform.shownMenus()[0].at, origin() + (Point{30, 20}));
  EXPECT_EQ(events(), (Events{"ItemMenuClick(1, 1)"}));
}

TEST_F(ContextMenuOfAButton, TheDoubledHeightIsRoundedBeforeItIsDivided) {
  button().AddMenuItem("Trend");
  button().Move(0, 0, 90, 28.5);
  user->focuses(button());
  user->holds(host::key::F10, host::shift::Shift);
  EXPECT_EQ(platform.shownMenus().back().at, origin() + (Point{30, 19}));
}

TEST_F(ContextMenuOfAButton, ShiftF10WithoutEntriesShowsNothingAndIsNotForwardedEither) {
  user->focuses(button());
  startListening();
  user->holds(host::key::F10, host::shift::Shift);
  EXPECT_TRUE(platform.shownMenus().empty());
  EXPECT_EQ(events(), Events{});
}

TEST_F(ContextMenuOfAButton, F10WithOtherModifiersIsAKeyLikeAnyOther) {
  button().AddMenuItem("Trend");
  user->focuses(button());
  startListening();
  user->holds(host::key::F10);
  user->holds(host::key::F10, host::shift::Shift | host::shift::Control);
  EXPECT_TRUE(platform.shownMenus().empty());
  EXPECT_EQ(events(), (Events{"ItemKeyDown(1, 121, 0)", "ItemKeyDown(1, 121, 3)"}));
}

TEST_F(ContextMenuOfAButton, AListenerMayRemoveTheButton) {
  button().AddMenuItem("Trend");
  const auto connection =
      panel().ItemMenuClick.connect([&](std::int32_t&, std::int16_t&) { items().RemoveAll(); });
  platform.willChoose(1);
  user->clicks(button(), host::MouseButton::Right);
  EXPECT_EQ(items().Count(), 0);
}

TEST_F(ContextMenuOfAButton, AListenerMayDestroyThePanel) {
  button().AddMenuItem("Trend");
  const auto connection =
      panel().ItemMenuClick.connect([&](std::int32_t&, std::int16_t&) { panel_.reset(); });
  platform.willChoose(1);
  user->clicks(button(), host::MouseButton::Right);
  EXPECT_EQ(panel_, nullptr);
}

}  // namespace
}  // namespace qrn::test
