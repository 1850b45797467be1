#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "controls/raised.h"
#include "diag/QRNErrors.h"
#include "support/meddling_site.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

// A listener does to the panel, in the middle of an event, what hurts most. Each combination of an event and
// a deed runs once; the sanitised build finds what touches something that has gone.

enum class Deed { RemovesItsItem, RemovesAll, InsertsBefore, Raises, DestroysThePanel };

std::string nameOf(Deed deed) {
  switch (deed) {
    case Deed::RemovesItsItem: return "RemovesItsItem";
    case Deed::RemovesAll: return "RemovesAll";
    case Deed::InsertsBefore: return "InsertsBefore";
    case Deed::Raises: return "Raises";
    default: return "DestroysThePanel";
  }
}

constexpr std::int32_t kOwnError = 1000;

class PanelFaults : public PanelTest, public ::testing::WithParamInterface<std::tuple<std::string, Deed>> {
 protected:
  PanelFaults() {
    addParameter("A");
    addParameter("B", qrnTypeLong);
    items().AddAction("C", ddtypeMethod);
    row(2).SetValue(Variant(5));
    panel().LayoutControls(false);
    panel().realise();
  }

  // Leads up to the event, which the second item raises, or the action.
  void prepare(const std::string& event) {
    if (event == "ParameterEndEdit" || event == "ItemLostFocus") user->focuses(row(2));
  }

  void trigger(const std::string& event) {
    if (event == "ParameterLayout") {
      items().AddParameter("New", qrnTypeString, Variant(2));
    } else if (event == "ActionLayout") {
      items().AddAction("New", ddtypeMenu, Variant(2));
    } else if (event == "ParameterStatusChange" || event == "ParameterChange") {
      dynamic_cast<host::TextBox&>(*row(2).CurrentEditor()).userTyped("7", 1);
    } else if (event == "ParameterStartEdit" || event == "ItemGotFocus") {
      user->focuses(row(2));
    } else if (event == "ParameterEndEdit" || event == "ItemLostFocus") {
      user->focuses(panel().ControlsContainer());
    } else if (event == "ParameterIcon2Click") {
      user->clicks(row(2).imgIcon2());
    } else if (event == "ItemKeyDown" || event == "ItemKeyPress" || event == "ItemKeyUp") {
      user->focuses(row(2));
      user->types("8");
    } else if (event == "ActionClick") {
      user->clicks(*panel().ControlsCollection().find("C"));
    } else if (event == "DisplayClose") {
      user->clicks(panel().imgClose());
    } else if (event == "DisplayMaximize") {
      user->clicks(panel().imgMaxRst());
    } else if (event == "Click") {
      user->clicks(row(2).lblLabel());
    }
  }

  void act(Deed deed, std::int32_t index) {
    switch (deed) {
      case Deed::RemovesItsItem: items().Remove(Variant(index)); break;
      case Deed::RemovesAll: items().RemoveAll(); break;
      case Deed::InsertsBefore: items().AddParameter("Inserted", qrnTypeString, Variant(index)); break;
      case Deed::Raises: RaiseError(kOwnError, "listener", "on purpose"); break;
      case Deed::DestroysThePanel: panel_.reset(); break;
    }
  }
};

TEST_P(PanelFaults, AreSurvived) {
  const auto& [event, deed] = GetParam();
  const std::int32_t count = items().Count();
  const bool adds = event == "ParameterLayout" || event == "ActionLayout";
  int heard = 0;
  prepare(event);
  // Heard once only: what the deed raises itself is not its business.
  const Connection connection =
      panel().ObjectEvent.connect([&](std::string_view name, host::EventArgs arguments) {
        if (name != event || heard++ > 0) return;
        const bool ofAnItem = !name.starts_with("Display") && name != "Click";
        act(deed, ofAnItem ? arguments[0].asLong() : 2);
      });
  const Raised raised = raisedBy([&] { trigger(event); });

  EXPECT_GT(heard, 0);
  EXPECT_EQ(raised.number, deed == Deed::Raises ? kOwnError : 0) << raised.description;
  if (deed == Deed::DestroysThePanel) {
    EXPECT_EQ(panel_, nullptr);
    EXPECT_EQ(platform.peers(), 0);
    EXPECT_EQ(platform.clock().runningTimers(), 0);
    return;
  }
  switch (deed) {
    case Deed::RemovesItsItem: EXPECT_EQ(items().Count(), count + adds - 1); break;
    case Deed::RemovesAll: EXPECT_EQ(items().Count(), 0); break;
    case Deed::InsertsBefore: EXPECT_EQ(items().Count(), count + adds + 1); break;
    default: EXPECT_EQ(items().Count(), count + adds); break;
  }
  // The panel goes on working.
  addParameter("Later");
  panel().LayoutControls(false);
  startListening();
  QRNEdit& later = row(items().Count());
  user->clicks(later.imgIcon2());
  EXPECT_EQ(events(), (Events{"ParameterIcon2Click(" + std::to_string(items().Count()) + ")"}));
  for (std::int32_t i = 1; i <= items().Count(); ++i) {
    EXPECT_EQ(items().GetIndexOf(Variant(items().Item(Variant(i)))), i);
  }
}

INSTANTIATE_TEST_SUITE_P(
    EveryEvent, PanelFaults,
    ::testing::Combine(::testing::Values("ParameterLayout", "ActionLayout", "ParameterStatusChange",
                                         "ParameterChange", "ParameterStartEdit", "ParameterEndEdit",
                                         "ParameterIcon2Click", "ItemGotFocus", "ItemLostFocus",
                                         "ItemKeyDown", "ItemKeyPress", "ItemKeyUp", "ActionClick",
                                         "DisplayClose", "DisplayMaximize", "Click"),
                       ::testing::Values(Deed::RemovesItsItem, Deed::RemovesAll, Deed::InsertsBefore,
                                         Deed::Raises, Deed::DestroysThePanel)),
    [](const auto& test) { return std::get<0>(test.param) + nameOf(std::get<1>(test.param)); });

class FaultsWhileAdding : public PanelTest {};

TEST_F(FaultsWhileAdding, AnItemRemovedByItsFirstEventHasNoControlLeftToLayOut) {
  const auto connection =
      panel().ParameterStatusChange.connect([&](std::int32_t& index) { items().Remove(Variant(index)); });
  EXPECT_EQ(raisedBy([&] { addParameter("A"); }).number, kObjectNotInitialized);
  EXPECT_EQ(items().Count(), 0);
}

TEST_F(FaultsWhileAdding, APanelDestroyedByTheFirstEventOfAnItemLeavesNothingBehind) {
  const auto connection = panel().ParameterStatusChange.connect([&](std::int32_t&) { panel_.reset(); });
  EXPECT_EQ(raisedBy([&] { addParameter("A"); }).number, kObjectNotInitialized);
  EXPECT_EQ(panel_, nullptr);
}

TEST_F(FaultsWhileAdding, AnErrorOfALayoutListenerLeavesTheItemInItsPlace) {
  {
    const auto connection =
        panel().ParameterLayout.connect([](std::int32_t&) { RaiseError(kOwnError, "listener"); });
    EXPECT_EQ(raisedBy([&] { addParameter("A"); }).number, kOwnError);
  }
  EXPECT_EQ(items().Count(), 1);
  EXPECT_EQ(row(1).Name(), "A");
}

TEST_F(FaultsWhileAdding, AnItemRemovedWhenItsNewTypeEndsItsEditHasNoControlLeftToLayOut) {
  const auto item = addParameter("A");
  panel().LayoutControls(false);
  user->focuses(row(1));
  const auto connection =
      panel().ParameterEndEdit.connect([&](std::int32_t&, bool&) { items().RemoveAll(); });
  EXPECT_EQ(raisedBy([&] { item->SetDefaultLayout(qrnTypeArray); }).number, kObjectNotInitialized);
  EXPECT_EQ(items().Count(), 0);
}

TEST_F(FaultsWhileAdding, AnItemRemovedByTheStateThatItIsGivenKeepsTheState) {
  const auto item = addParameter("A");
  const auto connection =
      panel().ParameterStatusChange.connect([&](std::int32_t& index) { items().Remove(Variant(index)); });
  item->SetParamState(qrnStateNeeded);
  EXPECT_EQ(item->ParamState(), qrnStateNeeded);
  EXPECT_EQ(items().Count(), 0);
}

// Laying out hides the editor of a row whose value was made invisible while its drawing was off; that ends
// the edit, and whoever hears of it may do anything.
class FaultsWhileLayingOut : public PanelTest {
 protected:
  FaultsWhileLayingOut() {
    for (const char* name : {"A", "B", "C"}) addParameter(name);
    panel().LayoutControls(false);
    user->focuses(row(2));
    row(2).SetRedraw(false);
    row(2).SetValueVisible(false);
  }
  Connection ending(std::function<void()> deed) {
    return panel().ParameterEndEdit.connect(
        [this, deed = std::move(deed)](std::int32_t&, bool&) { ++ended, deed(); });
  }
  int ended = 0;
};

TEST_F(FaultsWhileLayingOut, AllItemsMayGo) {
  const auto connection = ending([this] { items().RemoveAll(); });
  panel().LayoutControls(false);
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(items().Count(), 0);
}

TEST_F(FaultsWhileLayingOut, ItemsMayCome) {
  const auto connection = ending([this] {
    for (int i = 0; i < 50; ++i) addParameter("");
  });
  panel().LayoutControls(false);
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(row(53).TabIndex(), 53);
}

TEST_F(FaultsWhileLayingOut, NoItemIsLeftOutWhenAnEarlierOneGoes) {
  addParameter("D");
  const auto connection = ending([this] { items().Remove(Variant(1)); });
  panel().LayoutControls(false);
  EXPECT_EQ(ended, 1);
  // B had its place before A went, so the others are one further on.
  EXPECT_EQ(row(2).TabIndex(), 3);
  EXPECT_EQ(row(3).TabIndex(), 4);
  EXPECT_EQ(row(3).Top() - row(2).Top(), row(2).Top() - row(1).Top());
}

TEST_F(FaultsWhileLayingOut, NoItemIsMetTwiceWhenSomeComeInFront) {
  const auto connection = ending([this] {
    items().AddParameter("New", qrnTypeString, Variant(1));
    items().AddParameter("New2", qrnTypeString, Variant("B"));
  });
  panel().LayoutControls(false);
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(row(4).TabIndex(), 2) << "B";
  EXPECT_EQ(row(5).TabIndex(), 3) << "C";
}

TEST_F(FaultsWhileLayingOut, TheItemsMayBeLaidOut) {
  const auto connection = ending([this] {
    items().Remove(Variant("A"));
    panel().LayoutControls(false);
  });
  panel().LayoutControls(false);
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(row(2).TabIndex(), 2);
  EXPECT_EQ(row(2).Top() - row(1).Top(), row(1).Height() + panel().GetVerticalSpacing());
}

TEST_F(FaultsWhileLayingOut, ThePanelMayGo) {
  const auto connection = ending([this] { panel_.reset(); });
  panel().LayoutControls(false);
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(panel_, nullptr);
}

TEST_F(FaultsWhileLayingOut, ThePanelMayGoInsideItsResize) {
  const auto connection = ending([this] { panel_.reset(); });
  panel().Move(0, 0, 500, 300);
  EXPECT_EQ(panel_, nullptr);
}

TEST_F(FaultsWhileLayingOut, ThePanelMayGoInsideASetterThatArrangesIt) {
  const auto connection = ending([this] { panel_.reset(); });
  panel().SetLeftMargin(50);
  EXPECT_EQ(panel_, nullptr);
}

TEST_F(FaultsWhileLayingOut, ThePanelMayGoInsideTheArrivalOfAButton) {
  const auto connection = ending([this] { panel_.reset(); });
  panel().Buttons().AddButton("OK", "OK");
  EXPECT_EQ(panel_, nullptr);
}

TEST_F(FaultsWhileLayingOut, AnErrorLeavesAPanelThatCanBeLaidOutAgain) {
  {
    const auto connection = ending([] { RaiseError(kOwnError, "listener"); });
    EXPECT_EQ(raisedBy([&] { panel().LayoutControls(false); }).number, kOwnError);
  }
  panel().LayoutControls(false);
  EXPECT_TRUE(row(2).Redraw());
  EXPECT_EQ(row(3).TabIndex(), 3);
}

class PanelNotifications : public ::testing::Test {
 protected:
  PanelNotifications() { registerControls(); }
  headless::HeadlessPlatform platform;
  MeddlingSite site{platform};
  host::Owned<QRNDisplay> panel = host::create<QRNDisplay>(site);
};

TEST_F(PanelNotifications, ComeAfterWhatTheChangeLedTo) {
  double left = 0;
  site.on("LeftMargin", [&](host::UserControl&) { left = panel->ControlsContainer().Left(); });
  panel->SetLeftMargin(20);
  EXPECT_EQ(left, 20);
}

TEST_F(PanelNotifications, MayBeTheEndOfThePanel) {
  const std::pair<const char*, std::function<void(QRNDisplay&)>> changes[] = {
      {"Title", [](QRNDisplay& one) { one.SetTitle("x"); }},
      {"LeftMargin", [](QRNDisplay& one) { one.SetLeftMargin(20); }},
      {"Active", [](QRNDisplay& one) { one.SetActive(false); }},
      {"BorderStyle", [](QRNDisplay& one) { one.SetBorderStyle(qrnEdgeSimple); }},
      {"TitleStyle", [](QRNDisplay& one) { one.SetTitleStyle(qrnTitleDialog); }},
      {"Font", [](QRNDisplay& one) { one.SetFont(std::make_shared<host::Font>("Serif", 20)); }},
      {"Enabled", [](QRNDisplay& one) { one.SetEnabled(false); }},
      {"ButtonsAlignment", [](QRNDisplay& one) { one.SetButtonsAlignment(2); }},
  };
  for (const auto& [key, change] : changes) {
    panel = host::create<QRNDisplay>(site);
    panel->Items().AddParameter("A", qrnTypeLong);
    site.on(key, [&](host::UserControl&) { panel.reset(); });
    change(*panel);
    EXPECT_EQ(panel, nullptr) << key;
  }
}

}  // namespace
}  // namespace qrn::test
