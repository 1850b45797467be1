#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <functional>
#include <memory>
#include <new>

#include "display/QRNDisplay.h"
#include "library/library.h"
#include "platform/headless/headless_platform.h"
#include "platform/headless/recording_surface.h"
#include "platform/headless/user.h"

namespace {

std::atomic<long> allocations{0};

void* counted(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size ? size : 1)) return memory;
  throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) { return counted(size); }
void* operator new[](std::size_t size) { return counted(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  ++allocations;
  return std::malloc(size ? size : 1);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }

namespace qrn::test {
namespace {

/// What an action did, in numbers that do not depend on the machine.
struct Cost {
  long allocated = 0;
  int measured = 0;
  int told = 0;         // what the peers heard of
  int invalidated = 0;  // areas to be painted
};

class PanelCosts : public ::testing::Test {
 protected:
  PanelCosts() {
    registerControls();
    panel = host::create<QRNDisplay>(site);
    panel->Move(0, 0, 400, 300);
    panel->SetTallContent(true);
  }

  void addRows(int count) {
    for (int i = 0; i < count; ++i) panel->Items().AddParameter("", qrnTypeLong);
  }
  std::shared_ptr<clsQRNParam> item(std::int32_t position) {
    return std::dynamic_pointer_cast<clsQRNParam>(panel->Items().Item(Variant(position)));
  }
  QRNEdit& row(std::int32_t position) { return item(position)->Control(); }

  Cost costOf(const std::function<void()>& action) {
    Cost cost;
    const auto peers = allPeers();
    int told = 0, invalidated = 0;
    for (const auto* peer : peers) {
      told += peer->changes;
      invalidated += static_cast<int>(peer->invalidated.size());
    }
    const int measured = platform.measuredTexts();
    const long before = allocations;
    action();
    cost.allocated = allocations - before;
    cost.measured = platform.measuredTexts() - measured;
    for (const auto* peer : peers) {
      cost.told += peer->changes;
      cost.invalidated += static_cast<int>(peer->invalidated.size());
    }
    cost.told -= told;
    cost.invalidated -= invalidated;
    return cost;
  }

  headless::HeadlessPlatform platform;
  headless::HeadlessSite site{platform};
  host::Owned<QRNDisplay> panel;

 private:
  std::vector<const headless::HeadlessPeer*> allPeers() {
    std::vector<const headless::HeadlessPeer*> peers;
    collect(*panel, peers);
    return peers;
  }
  static void collect(host::Control& control, std::vector<const headless::HeadlessPeer*>& peers) {
    if (control.peer()) peers.push_back(static_cast<headless::HeadlessPeer*>(control.peer()));
    if (auto* container = dynamic_cast<host::ContainerControl*>(&control)) {
      for (host::Control* child : container->inside()) collect(*child, peers);
    }
  }
};

// The fifth row makes three lists grow, which the thousandth does not; it has two entries of name indexes to
// pay instead, which short lists do without. Anything that grew with the number of rows would be far beyond.
TEST_F(PanelCosts, AddingTheThousandthRowCostsNoMoreThanTheFifth) {
  addRows(4);
  const Cost fifth = costOf([&] { addRows(1); });
  addRows(994);
  const Cost thousandth = costOf([&] { addRows(1); });
  EXPECT_EQ(panel->Items().Count(), 1000);
  EXPECT_LE(thousandth.allocated, fifth.allocated);
  EXPECT_LE(thousandth.measured, fifth.measured);
  EXPECT_GT(fifth.allocated, 0);
}

// Between two growths of the lists nothing at all may differ.
TEST_F(PanelCosts, AddingARowCostsTheSameHoweverManyThereAre) {
  addRows(19);
  const Cost twentieth = costOf([&] { addRows(1); });
  addRows(979);
  const Cost thousandth = costOf([&] { addRows(1); });
  // The made name of a later row has more digits, and may not fit into the string itself any more.
  EXPECT_LE(thousandth.allocated, twentieth.allocated);
  EXPECT_EQ(thousandth.measured, twentieth.measured);
}

TEST_F(PanelCosts, ARowThatNobodyHasSeenGoesWithoutGettingPartsFirst) {
  addRows(30);
  panel->LayoutControls(false);
  panel->realise();
  row(29).lblLabel();
  const Cost seen = costOf([&] { panel->Items().Remove(Variant(29)); });
  const Cost unseen = costOf([&] { panel->Items().Remove(Variant(28)); });
  EXPECT_LE(unseen.allocated, seen.allocated);
}

TEST_F(PanelCosts, AnEventOfAnyRowAllocatesNothing) {
  addRows(1000);
  int heard = 0;
  const auto connection = panel->ParameterIcon2Click.connect([&](std::int32_t& index) { heard += index; });
  const auto clickIcon = [&](std::int32_t position) {
    QRNEdit& clicked = row(position);
    host::Image& icon = clicked.imgIcon2();
    return costOf([&] {
      clicked.childMouseDown(icon, host::MouseButton::Left, 0, {1, 1});
      clicked.childMouseUp(icon, host::MouseButton::Left, 0, {1, 1});
    });
  };
  EXPECT_EQ(clickIcon(5).allocated, 0);
  EXPECT_EQ(clickIcon(1000).allocated, 0);
  EXPECT_EQ(heard, 1005);
}

TEST_F(PanelCosts, AChangeOfAnyRowAllocatesAndMeasuresTheSame) {
  addRows(1000);
  const auto change = [&](std::int32_t position) {
    auto& box = dynamic_cast<host::TextBox&>(*row(position).CurrentEditor());
    return costOf([&] { box.userTyped("7", 1); });
  };
  const Cost early = change(5), late = change(1000);
  EXPECT_EQ(early.allocated, late.allocated);
  EXPECT_EQ(early.measured, late.measured);
}

TEST_F(PanelCosts, TheConditionalLayoutOfUnchangedRowsTouchesNoTextAndNoPeer) {
  addRows(100);
  panel->SetColumnLayout(0, 0, 0, 10.2f);
  panel->realise();
  row(3).SetFocus();
  ASSERT_EQ(platform.peers(), 3);  // the panel, its scroll bar and the focused editor
  const Cost cost = costOf([&] { panel->LayoutControls(true); });
  EXPECT_EQ(cost.measured, 0);
  EXPECT_EQ(cost.told, 0);
  EXPECT_EQ(cost.invalidated, 0);
  EXPECT_EQ(cost.allocated, 0);
}

TEST_F(PanelCosts, AFullLayoutOfUnchangedRowsMeasuresNoTextOfThem) {
  addRows(10);
  panel->LayoutControls(false);
  const Cost few = costOf([&] { panel->LayoutControls(false); });
  EXPECT_EQ(few.measured, 1);  // the width of a digit, which the spacing follows from
}

TEST_F(PanelCosts, ARowIsLaidOutOnceHowEverManyOfItsColumnsChange) {
  addRows(1);
  panel->LayoutControls(false);
  panel->realise();
  const auto layouts = [&](std::int32_t label, std::int32_t value, std::int32_t unit) {
    row(1).SetLabelWidth(label);
    row(1).SetValueWidth(value);
    row(1).SetUnitWidth(unit);
    auto& areas = static_cast<headless::HeadlessPeer*>(panel->peer())->invalidated;
    areas.clear();
    panel->LayoutControls(false);
    const Rect whole = panel->ControlsContainer().visibleOnSurface();
    return std::count(areas.begin(), areas.end(), whole);
  };
  const ColumnWidths fit{row(1).LabelWidth(), row(1).ValueWidth(), row(1).UnitWidth()};
  const auto one = layouts(fit[0] + 9, fit[1], fit[2]);
  EXPECT_GT(one, 0);
  EXPECT_EQ(layouts(fit[0] + 9, fit[1] + 9, fit[2] + 9), one);
}

TEST_F(PanelCosts, AValueWrittenOffScreenPaintsNothingAndTellsNoPeer) {
  addRows(100);
  panel->LayoutControls(false);
  panel->realise();
  headless::RecordingSurface screen(platform, panel->pixelSize());
  panel->paintTree(screen);
  row(1).SetFocus();
  const auto offScreen = item(100), onScreen = item(2);
  const Cost hidden = costOf([&] { offScreen->SetParamValue(Variant(42)); });
  EXPECT_EQ(hidden.told, 0);
  EXPECT_EQ(hidden.invalidated, 0);
  EXPECT_EQ(hidden.measured, 0);
  EXPECT_EQ(offScreen->ParamValue(), Variant(42));
  EXPECT_GT(costOf([&] { onScreen->SetParamValue(Variant(42)); }).invalidated, 0);
}

TEST_F(PanelCosts, ATickOfADynamicValueOffScreenPaintsNothing) {
  addRows(100);
  panel->LayoutControls(false);
  panel->realise();
  const auto dynamic = item(100);
  dynamic->SetParamState(qrnStateDynamic);
  dynamic->SetParamValue(Variant(1));
  const Cost cost = costOf([&] { dynamic->SetParamValue(Variant(2)); });
  EXPECT_EQ(cost.told, 0);
  EXPECT_EQ(cost.invalidated, 0);
}

TEST_F(PanelCosts, AnIdlePanelRunsNoTimers) {
  addRows(100);
  for (int i = 0; i < 20; ++i) panel->Items().AddAction("", ddtypeMenu);
  panel->LayoutControls(false);
  panel->realise();
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(PanelCosts, OfAThousandActionButtonsOnlyTheOneUnderTheMouseRunsATimer) {
  for (int i = 0; i < 1000; ++i) panel->Items().AddAction("", ddtypeMethod);
  panel->LayoutControls(false);
  panel->realise();
  EXPECT_EQ(platform.clock().runningTimers(), 0);
  headless::User user(platform, *panel);
  for (const std::int32_t position : {1, 2, 3}) {
    user.hovers(static_cast<clsQRNAction&>(*panel->Items().Item(Variant(position))).Control());
    EXPECT_GE(platform.clock().runningTimers(), 1);
    platform.clock().advance(std::chrono::milliseconds(70));
    EXPECT_EQ(platform.clock().runningTimers(), 1);
  }
  user.movesTo({399, 299});
  platform.clock().advance(std::chrono::milliseconds(70));
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(PanelCosts, PeersAreMadeForTheFocusedEditorOnly) {
  addRows(1000);
  panel->LayoutControls(false);
  EXPECT_EQ(platform.peers(), 0);
  panel->realise();
  EXPECT_EQ(platform.peers(), 2);
  for (const std::int32_t position : {1, 500, 1000}) {
    row(position).SetFocus();
    EXPECT_EQ(platform.peers(), 3);
  }
}

}  // namespace
}  // namespace qrn::test
