#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>

#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

// Closing a dialog with OK, opening another menu with a button or loading another device from a context menu:
// what leads to a click is gone when the click has been dealt with. The sanitised build finds what touches
// it.

class Rebuilding;

/// A way to a click, and the events that it ends in: of the control and of its panel.
struct Way {
  const char* name;
  const char* controlEvent;
  const char* panelEvent;
  host::Control& (*control)(Rebuilding&);
  void (*act)(Rebuilding&);
};

enum class Deed { ClosesThePanel, BuildsItAnew };
enum class Heard { FromTheControl, FromThePanel };

class Rebuilding : public PanelTest,
                   public ::testing::WithParamInterface<std::tuple<Way, Heard, Deed, bool>> {
 public:
  QRNEdit& parameter() { return row(1); }
  QRNMenuItem& action() { return static_cast<clsQRNAction&>(*items().Item(Variant(2))).Control(); }
  clsQRNButton& button() { return *panel().Buttons().Item(Variant("OK")); }
  headless::User& by() { return *user; }
  void chooses(int entry) { platform.willChoose(entry); }

 protected:
  Rebuilding() { build(); }

  void build() {
    const auto parameter = addParameter("Parameter");
    parameter->Control().AddMenuItem("&Help");
    const auto action = items().AddAction("Action", ddtypeMethod);
    action->Control().AddMenuItem("&Help");
    panel().Buttons().AddButton("OK", "&OK");
    panel().Buttons().AddButton("Cancel", "&Cancel");
    panel().LayoutControls(false);
  }
  void act(Deed deed) {
    if (deed == Deed::ClosesThePanel) {
      panel_.reset();
      return;
    }
    items().RemoveAll();
    panel().Buttons().RemoveAll();
    build();
  }
  /// How often an event was raised since the last call.
  int raised(const std::string& name) {
    const Events all = events();
    return static_cast<int>(std::count_if(
        all.begin(), all.end(), [&](const std::string& one) { return one.starts_with(name + "("); }));
  }
  void go(const Way& way) {
    way.act(*this);
    platform.processMessages();
  }
};

constexpr Way kWays[] = {
    {"AClickOnAFooterButton", "Click", "ButtonClick",
     [](Rebuilding& test) -> host::Control& { return test.button().Control(); },
     [](Rebuilding& test) { test.by().clicks(test.button().Control()); }},
    {"TheLetterOfAFooterButton", "Click", "ButtonClick",
     [](Rebuilding& test) -> host::Control& { return test.button().Control(); },
     [](Rebuilding& test) {
       test.by().focuses(test.parameter());
       test.by().presses('O', host::shift::Alt);
     }},
    {"SpaceOnAFooterButton", "Click", "ButtonClick",
     [](Rebuilding& test) -> host::Control& { return test.button().Control(); },
     [](Rebuilding& test) {
       test.by().focuses(test.button().Control());
       test.by().presses(host::key::Space);
     }},
    {"AClickOnAnActionButton", "Click", "ActionClick",
     [](Rebuilding& test) -> host::Control& { return test.action(); },
     [](Rebuilding& test) { test.by().clicks(test.action()); }},
    {"SpaceOnAnActionButton", "Click", "ActionClick",
     [](Rebuilding& test) -> host::Control& { return test.action(); },
     [](Rebuilding& test) {
       test.by().focuses(test.action());
       test.by().presses(host::key::Space);
     }},
    {"EnterOnAnActionButton", "Click", "ActionClick",
     [](Rebuilding& test) -> host::Control& { return test.action(); },
     [](Rebuilding& test) {
       test.by().focuses(test.parameter());
       test.by().presses(host::key::Tab);
       test.by().presses(host::key::Enter);
     }},
    {"TheMenuOfAnActionButton", "MenuClick", "ItemMenuClick",
     [](Rebuilding& test) -> host::Control& { return test.action(); },
     [](Rebuilding& test) {
       test.chooses(1);
       test.by().clicks(test.action(), host::MouseButton::Right);
     }},
    {"TheMenuOfAnActionButtonByKeyboard", "MenuClick", "ItemMenuClick",
     [](Rebuilding& test) -> host::Control& { return test.action(); },
     [](Rebuilding& test) {
       test.by().focuses(test.action());
       test.chooses(1);
       test.by().presses(host::key::F10, host::shift::Shift);
     }},
    {"TheMenuOfARow", "MenuClick", "ItemMenuClick",
     [](Rebuilding& test) -> host::Control& { return test.parameter(); },
     [](Rebuilding& test) {
       test.chooses(1);
       test.by().clicks(test.parameter().lblLabel(), host::MouseButton::Right);
     }},
    {"TheMenuOfARowByKeyboard", "MenuClick", "ItemMenuClick",
     [](Rebuilding& test) -> host::Control& { return test.parameter(); },
     [](Rebuilding& test) {
       test.by().focuses(test.parameter());
       test.chooses(1);
       test.by().presses(host::key::F10, host::shift::Shift);
     }},
};

TEST_P(Rebuilding, IsSurvivedAndTheNewPanelWorksTheSame) {
  const auto& [way, heardFrom, deed, withWidgets] = GetParam();
  if (withWidgets) panel().realise();
  const bool fromThePanel = heardFrom == Heard::FromThePanel;
  host::Control& source = fromThePanel ? static_cast<host::Control&>(panel()) : way.control(*this);
  int heard = 0;
  const Connection connection = source.ObjectEvent.connect(
      [&, event = std::string_view(fromThePanel ? way.panelEvent : way.controlEvent), what = deed](
          std::string_view name, host::EventArgs) {
        if (name == event && heard++ == 0) act(what);
      });
  go(way);
  ASSERT_EQ(heard, 1);
  if (deed == Deed::ClosesThePanel) {
    EXPECT_EQ(panel_, nullptr);
    EXPECT_EQ(platform.peers(), 0);
    EXPECT_EQ(platform.clock().runningTimers(), 0);
    EXPECT_EQ(platform.windows().windowCount(), 0);
    return;
  }
  startListening();
  go(way);
  EXPECT_EQ(raised(way.panelEvent), 1);
}

std::string nameOfTest(const ::testing::TestParamInfo<Rebuilding::ParamType>& test) {
  const auto& [way, heardFrom, deed, withWidgets] = test.param;
  return std::string(way.name) + (heardFrom == Heard::FromThePanel ? "" : "HeardFromTheControl") +
         (deed == Deed::ClosesThePanel ? "ClosesThePanel" : "BuildsItAnew") +
         (withWidgets ? "WithWidgets" : "");
}

INSTANTIATE_TEST_SUITE_P(EveryClick, Rebuilding,
                         ::testing::Combine(::testing::ValuesIn(kWays),
                                            ::testing::Values(Heard::FromTheControl, Heard::FromThePanel),
                                            ::testing::Values(Deed::ClosesThePanel, Deed::BuildsItAnew),
                                            ::testing::Bool()),
                         nameOfTest);

}  // namespace
}  // namespace qrn::test
