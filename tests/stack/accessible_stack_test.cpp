#include "host/accessible.h"
#include "stack_fixture.h"
#include "tooltip/QRNToolTip.h"

namespace qrn::test {
namespace {

using host::AccessibleNode;
using host::AccessibleRole;

class AccessibleStack : public StackTest {
 protected:
  AccessibleStack() {
    for (const char* title : {"Device", "Basic setup"}) addRow(*stack().AddPage("", title, false));
  }
  AccessibleNode node() { return {&stack()}; }
  AccessibleNode pageNode(std::int32_t index) { return node().child(index - 1); }
};

TEST_F(AccessibleStack, IsAPanelThatSaysWhatItsToolTipSays) {
  stack().SetToolTipText("Everything about the device");
  EXPECT_EQ(node().facts().role, AccessibleRole::Panel);
  EXPECT_EQ(node().facts().name, "");
  EXPECT_EQ(node().facts().description, "Everything about the device");
  EXPECT_FALSE(node().parent());
}

TEST_F(AccessibleStack, HasItsPagesAsGroupsFromTheLowestUp) {
  ASSERT_EQ(node().childCount(), 2);
  const Events titles{"Device", "Basic setup"};
  for (std::int32_t k = 1; k <= 2; ++k) {
    EXPECT_EQ(pageNode(k).control, &page(k));
    EXPECT_EQ(pageNode(k).facts().role, AccessibleRole::Group);
    EXPECT_EQ(pageNode(k).facts().name, titles[static_cast<std::size_t>(k) - 1]);
    EXPECT_EQ(pageNode(k).parent(), node());
    EXPECT_EQ(node().indexOf(pageNode(k)), k - 1);
  }
  EXPECT_FALSE(node().child(2));
  stack().ActivatePage(1);
  EXPECT_EQ(node().childCount(), 1);
}

TEST_F(AccessibleStack, ShowsTheItemsOfThePageOnTopOnly) {
  const auto rowOf = [&](std::int32_t index) {
    return AccessibleNode{page(index).ControlsContainer().contained().front()};
  };
  EXPECT_EQ(rowOf(2).parent(), pageNode(2));
  EXPECT_FALSE(rowOf(2).facts().states.invisible);
  EXPECT_TRUE(rowOf(1).facts().states.invisible);
  EXPECT_FALSE(pageNode(1).facts().states.invisible);
  stack().ActivatePage(1);
  EXPECT_FALSE(rowOf(1).facts().states.invisible);
}

TEST_F(AccessibleStack, ACoveredPageCanBeUsedUntilAModalOneCoversIt) {
  EXPECT_FALSE(pageNode(1).facts().states.unavailable);
  EXPECT_FALSE(pageNode(2).facts().states.modal);
  stack().AddPage("", "Write to the device?", true);
  EXPECT_TRUE(pageNode(1).facts().states.unavailable);
  EXPECT_TRUE(pageNode(2).facts().states.unavailable);
  EXPECT_FALSE(pageNode(3).facts().states.unavailable);
  EXPECT_TRUE(pageNode(3).facts().states.modal);
  stack().ActivatePage(2);
  EXPECT_FALSE(pageNode(1).facts().states.unavailable);
}

TEST_F(AccessibleStack, APageIsClosedByItsButtonUnlessAModalOneCoversIt) {
  const AccessibleNode close{&page(2).imgClose()};
  EXPECT_EQ(close.parent(), pageNode(2));
  stack().AddPage("", "Write to the device?", true);
  EXPECT_FALSE(close.act());
  EXPECT_EQ(stack().Count(), 3);
  stack().ActivatePage(2);
  EXPECT_TRUE(close.act());
  EXPECT_EQ(stack().Count(), 1);
}

TEST_F(AccessibleStack, HasAToolTipInItsPage) {
  page(2).DisplayToolTip(Variant(1), 1)->SetText("Seconds until the value has settled.");
  const AccessibleNode help = pageNode(2).child(pageNode(2).childCount() - 1);
  EXPECT_EQ(help.facts().role, AccessibleRole::Label);
  EXPECT_EQ(help.facts().name, "Seconds until the value has settled.");
  EXPECT_TRUE(help.facts().states.focused);
  EXPECT_EQ(help.parent(), pageNode(2));
}

}  // namespace
}  // namespace qrn::test
