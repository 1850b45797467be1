#include <functional>
#include <string>
#include <tuple>

#include "controls/raised.h"
#include "diag/QRNErrors.h"
#include "row_events_fixture.h"
#include "support/meddling_site.h"

namespace qrn::test {
namespace {

using std::chrono::milliseconds;

// ---- listeners that take the ground from under the row ----

constexpr std::int32_t kOwnError = 1000;

struct Upset {
  const char* name;
  std::function<void(clsQRNCollection&, QRNEdit&)> action;
};

const Upset kUpsets[] = {
    {"RemovesTheRow", [](clsQRNCollection& items, QRNEdit&) { items.Remove(Variant(1)); }},
    {"MakesItAList", [](clsQRNCollection&, QRNEdit& row) { row.SetValueType(qrnTypeList); }},
    {"MakesItACheckBox", [](clsQRNCollection&, QRNEdit& row) { row.SetValueType(qrnTypeBoolean); }},
    {"MakesItABitField", [](clsQRNCollection&, QRNEdit& row) { row.SetValueType(qrnTypeBitfield); }},
    {"MakesItAnArray", [](clsQRNCollection&, QRNEdit& row) { row.SetValueType(qrnTypeArray); }},
    {"MakesItAText", [](clsQRNCollection&, QRNEdit& row) { row.SetValueType(qrnTypeString); }},
    {"HidesTheEditor", [](clsQRNCollection&, QRNEdit& row) { row.SetValueVisible(false); }},
    {"LocksTheRow", [](clsQRNCollection&, QRNEdit& row) { row.SetLocked(true); }},
    {"DisablesTheRow", [](clsQRNCollection&, QRNEdit& row) { row.SetEnabled(false); }},
    {"Fails", [](clsQRNCollection&, QRNEdit&) { RaiseError(kOwnError, "listener", "on purpose"); }},
};

/// What a listener does to the row when it first hears of a certain event, with and without native widgets.
class AListenerThat : public PanelTest, public ::testing::WithParamInterface<std::tuple<Upset, bool>> {
 protected:
  void expectToSurvive(qrnValueType type, std::string_view event, const std::function<void()>& act) {
    const auto& [upset, withWidgets] = GetParam();
    if (withWidgets) panel().realise();
    addParameter("first", type);
    addParameter("second");
    panel().LayoutControls(true);
    bool heard = false;
    const auto connection = row(1).ObjectEvent.connect(
        [&, first = &row(1), upset = &upset](std::string_view name, host::EventArgs) {
          if (name == event && !std::exchange(heard, true)) upset->action(items(), *first);
        });
    const Raised raised = raisedBy(act);
    EXPECT_TRUE(heard);
    // An error reaches whoever led to the event, but never the message loop.
    const bool reaches = upset.name == std::string_view("Fails") && event != "AppLostFocus";
    EXPECT_EQ(raised.number, reaches ? kOwnError : 0) << raised.description;
    // The panel still works, whichever row is the first now.
    leave();
    QRNEdit& last = row(items().Count());
    user->focuses(last);
    user->types("x");
    EXPECT_EQ(last.ValueText(), "x");
  }
  void leave() { panel().input().setFocus(nullptr); }
  template <class T>
  T& editor() {
    return dynamic_cast<T&>(*row(1).CurrentEditor());
  }
};

TEST_P(AListenerThat, HearsOfAStart) {
  expectToSurvive(qrnTypeString, "StartEdit", [&] { user->focuses(row(1)); });
}

TEST_P(AListenerThat, HearsOfAnEnd) {
  expectToSurvive(qrnTypeString, "EndEdit", [&] {
    user->focuses(row(1));
    user->focuses(row(2));
  });
}

TEST_P(AListenerThat, HearsOfAnEndBecauseTheEditorIsHidden) {
  expectToSurvive(qrnTypeString, "EndEdit", [&] {
    user->focuses(row(1));
    row(1).SetValueVisible(false);
  });
}

TEST_P(AListenerThat, HearsOfAnEndBecauseTheEditorGoes) {
  expectToSurvive(qrnTypeString, "EndEdit", [&] {
    user->focuses(row(1));
    row(1).SetValueType(qrnTypeArray);
  });
}

TEST_P(AListenerThat, HearsOfTheFocus) {
  expectToSurvive(qrnTypeList, "GotFocus", [&] { user->focuses(row(1)); });
}

TEST_P(AListenerThat, HearsThatTheFocusHasGone) {
  expectToSurvive(qrnTypeString, "LostFocus", [&] {
    user->focuses(row(1));
    leave();
  });
}

TEST_P(AListenerThat, HearsThatTheApplicationIsLeft) {
  expectToSurvive(qrnTypeString, "AppLostFocus", [&] {
    user->focuses(row(1));
    user->switchesAway();
  });
}

TEST_P(AListenerThat, HearsOfAChangedText) {
  expectToSurvive(qrnTypeDouble, "Change", [&] {
    user->focuses(row(1));
    user->types("1,5");
  });
}

TEST_P(AListenerThat, HearsOfAChangedChoice) {
  expectToSurvive(qrnTypeList, "Change", [&] {
    row(1).SetValueCount(2);
    user->focuses(row(1));
    user->presses(host::key::Down);
  });
}

TEST_P(AListenerThat, HearsOfAClickOnACheckBox) {
  expectToSurvive(qrnTypeBoolean, "Click", [&] { user->clicks(*row(1).CurrentEditor()); });
}

TEST_P(AListenerThat, HearsOfAClickThroughTheCaption) {
  expectToSurvive(qrnTypeBoolean, "Click", [&] {
    row(1).childMouseDown(row(1).lblLabel(), host::MouseButton::Left, 0, {1, 1});
  });
}

TEST_P(AListenerThat, HearsOfATick) {
  expectToSurvive(qrnTypeBitfield, "ItemCheck", [&] {
    row(1).SetValueCount(2);
    editor<host::ListBox>().userChecked(1);
  });
}

TEST_P(AListenerThat, HearsOfAClickInABitField) {
  expectToSurvive(qrnTypeBitfield, "Click", [&] { user->clicks(editor<host::ListBox>()); });
}

TEST_P(AListenerThat, HearsOfAKeyGoingDown) {
  expectToSurvive(qrnTypeString, "KeyDown", [&] {
    user->focuses(row(1));
    user->types("a");
  });
}

TEST_P(AListenerThat, HearsOfAKeyPressed) {
  expectToSurvive(qrnTypeString, "KeyPress", [&] {
    user->focuses(row(1));
    user->types("a");
  });
}

TEST_P(AListenerThat, HearsOfAKeyLetGo) {
  expectToSurvive(qrnTypeString, "KeyUp", [&] {
    user->focuses(row(1));
    user->types("a");
  });
}

TEST_P(AListenerThat, HearsOfAClickOnTheCaption) {
  expectToSurvive(qrnTypeString, "LabelClick", [&] { user->clicks(row(1).lblLabel()); });
}

TEST_P(AListenerThat, HearsOfAClickOnTheUnit) {
  expectToSurvive(qrnTypeString, "UnitClick", [&] {
    row(1).SetUnitText("mm");
    user->clicks(row(1).lblUnit());
  });
}

TEST_P(AListenerThat, HearsOfAClickOnAnIcon) {
  expectToSurvive(qrnTypeString, "Icon2Click", [&] {
    const Point at = headless::User::middleOf(row(1).imgIcon2());
    user->movesTo(at);
    user->clicksAt(at);
    platform.setCursor({0, 0});
    platform.clock().advance(milliseconds(70));
  });
}

TEST_P(AListenerThat, HearsOfAMenuEntry) {
  expectToSurvive(qrnTypeString, "MenuClick", [&] {
    row(1).AddMenuItem("Read");
    platform.willChoose(1);
    user->clicks(row(1).lblLabel(), kRight);
  });
}

TEST_P(AListenerThat, HearsOfATakenValue) {
  expectToSurvive(qrnTypeString, "StatusChange", [&] {
    editor<host::TextBox>().userTyped("new", 0);
    row(1).SetValueChanged(false);
  });
}

std::string nameOf(const ::testing::TestParamInfo<std::tuple<Upset, bool>>& test) {
  const auto& [upset, withWidgets] = test.param;
  return std::string(upset.name) + (withWidgets ? "WithWidgets" : "");
}

INSTANTIATE_TEST_SUITE_P(Row, AListenerThat,
                         ::testing::Combine(::testing::ValuesIn(kUpsets), ::testing::Bool()), nameOf);

TEST_F(RowEvents, MayDestroyARowThatStandsAlone) {
  const auto change = row().events().Change.connect([&] { row_.reset(); });
  user->focuses(row());
  user->types("a");
  EXPECT_EQ(row_, nullptr);
}

TEST_F(RowEvents, MayDestroyARowWhoseIconIsBeingWatched) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  const auto click = row().events().Icon1Click.connect([&] { row_.reset(); });
  user->hovers(row().imgIcon1());
  user->clicks(row().imgIcon1());
  EXPECT_EQ(row_, nullptr);
  platform.clock().advance(milliseconds(70));
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

// ---- notifications are answered as freely as events ----

class RowNotifications : public ::testing::Test {
 protected:
  RowNotifications() { registerControls(); }
  headless::HeadlessPlatform platform;
  MeddlingSite site{platform};
};

TEST_F(RowNotifications, OfANewTypeMayLeadToAnother) {
  const auto row = host::create<QRNEdit>(site);
  site.on("ValueType", [&](host::UserControl&) { row->SetValueType(qrnTypeBoolean); });
  row->SetValueType(qrnTypeList);
  EXPECT_EQ(row->ValueType(), qrnTypeBoolean);
  EXPECT_EQ(row->CurrentEditor()->typeName(), "CheckBox");
}

TEST_F(RowNotifications, OfAValueMayTakeTheEditorAway) {
  const auto row = host::create<QRNEdit>(site);
  row->SetValueType(qrnTypeLong);
  site.on("Value", [&](host::UserControl&) { row->SetValueType(qrnTypeArray); });
  row->SetValue(Variant(5));
  EXPECT_EQ(row->CurrentEditor(), nullptr);
}

TEST_F(RowNotifications, MayBeTheEndOfTheRow) {
  const std::pair<const char*, std::function<void(QRNEdit&)>> changes[] = {
      {"ScaleMode", [](QRNEdit& one) { one.SetScaleMode(1); }},
      {"ValueType", [](QRNEdit& one) { one.SetValueType(qrnTypeList); }},
      {"Font", [](QRNEdit& one) { one.SetFont(std::make_shared<host::Font>("Serif", 20)); }},
      {"HorizontalSpacing", [](QRNEdit& one) { one.SetHorizontalSpacing(9); }},
      {"LabelWidth", [](QRNEdit& one) { one.SetLabelWidth(9); }},
      {"ValueWidth", [](QRNEdit& one) { one.SetValueWidth(9); }},
      {"Icon1Picture", [](QRNEdit& one) { one.SetIcon1Picture(picture(9, 9)); }},
      {"Icon2ButtonMode", [](QRNEdit& one) { one.SetIcon2ButtonMode(qrnButtonFlat); }},
      {"Locked", [](QRNEdit& one) { one.SetLocked(true); }},
      {"Enabled", [](QRNEdit& one) { one.SetEnabled(false); }},
      {"Value", [](QRNEdit& one) { one.SetValue(Variant(5)); }},
      {"ValueText", [](QRNEdit& one) { one.SetValue(Variant(5)); }},
  };
  for (const auto& [key, change] : changes) {
    auto row = host::create<QRNEdit>(site);
    row->SetValueType(qrnTypeLong);
    row->SetFocus();
    site.on(key, [&](host::UserControl&) { row.reset(); });
    change(*row);
    EXPECT_EQ(row, nullptr) << key;
  }
}

TEST_F(RowNotifications, OfAnElementMayBeTheEndOfTheRow) {
  auto row = host::create<QRNEdit>(site);
  row->SetValueType(qrnTypeArray);
  row->SetArraySize(2);
  site.on("Value", [&](host::UserControl&) { row.reset(); });
  row->SetArrayValue(0, Variant(1));
  EXPECT_EQ(row, nullptr);
}

TEST_F(RowNotifications, OfAnElementMayFailWithoutLosingIt) {
  auto row = host::create<QRNEdit>(site);
  row->SetValueType(qrnTypeArray);
  row->SetArraySize(3);
  site.on("Value", [&](host::UserControl&) { raiseRunTimeError(kInvalidProcedureCall); });
  EXPECT_EQ(errorOf([&] { row->SetArrayValue(2, Variant("c")); }), 5);
  EXPECT_EQ(row->CurrentArrayValueIndex(), 2);
  EXPECT_EQ(row->Value(), Variant("c"));
}

}  // namespace
}  // namespace qrn::test
