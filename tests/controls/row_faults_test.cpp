#include <functional>
#include <string>
#include <tuple>

#include "controls/raised.h"
#include "diag/QRNErrors.h"
#include "row_fixture.h"

namespace qrn::test {
namespace {

// A listener does to the row, in the middle of one of its events, what hurts most. Each combination of an
// event and a deed runs once; the sanitised build finds what touches something that has gone.

enum class Deed { DestroysTheRow, ChangesTheType, TakesTheEditorAway, Locks, Hides, Disables, Raises };

struct Cause {
  std::string event;
  qrnValueType type;
};

std::string nameOf(Deed deed) {
  switch (deed) {
    case Deed::DestroysTheRow: return "DestroysTheRow";
    case Deed::ChangesTheType: return "ChangesTheType";
    case Deed::TakesTheEditorAway: return "TakesTheEditorAway";
    case Deed::Locks: return "Locks";
    case Deed::Hides: return "Hides";
    case Deed::Disables: return "Disables";
    default: return "Raises";
  }
}

void PrintTo(Deed deed, std::ostream* out) { *out << nameOf(deed); }
void PrintTo(const Cause& cause, std::ostream* out) { *out << cause.event << " of type " << cause.type; }

constexpr std::int32_t kOwnError = 1000;

class RowFaults : public RowTest, public ::testing::WithParamInterface<std::tuple<Cause, Deed, bool>> {
 protected:
  RowFaults() {
    const auto& [cause, deed, realised] = GetParam();
    row().SetIcon1Picture(picture(8, 8));
    row().SetIcon1ButtonMode(qrnButtonFlat);
    row().SetIcon2Picture(picture(8, 8));
    row().SetIcon2ButtonMode(qrnButtonFlat);
    row().AddMenuItem("Help");
    row().Move(0, 0, 400, 80);
    useType(cause.type);
    if (row().CurrentEditor() && cause.type != qrnTypeBoolean && cause.type != qrnTypeString)
      addEntries({"a", "b"});
    if (realised) row().realise();
  }

  /// Another kind of editor than the one whose event is being raised.
  qrnValueType otherType() { return row().ValueType() == qrnTypeBitfield ? qrnTypeString : qrnTypeBitfield; }

  void act(Deed deed) {
    switch (deed) {
      case Deed::DestroysTheRow: row_.reset(); break;
      case Deed::ChangesTheType: row().SetValueType(otherType()); break;
      case Deed::TakesTheEditorAway: row().SetValueType(qrnTypeArray); break;
      case Deed::Locks: row().SetLocked(true); break;
      case Deed::Hides: row().SetValueVisible(false); break;
      case Deed::Disables: row().SetEnabled(false); break;
      case Deed::Raises: RaiseError(kOwnError, "listener", "on purpose"); break;
    }
  }

  void prepare(const std::string& event) {
    if (event == "EndEdit" || event == "AppLostFocus") user->focuses(row());
    if (event == "StatusChange") type("7");
    if (event == "MenuClick") platform.willChoose(1);
  }

  void trigger(const std::string& event) {
    if (event == "StartEdit" || event == "GotFocus") {
      user->focuses(row());
    } else if (event == "EndEdit" || event == "LostFocus") {
      user->focuses(row());
      row().input().setFocus(nullptr);
    } else if (event == "AppLostFocus") {
      user->switchesAway();
    } else if (event == "StatusChange") {
      row().SetValueChanged(false);
    } else if (event == "BackgroundClick") {
      user->clicksAt({row().Width() - 1, row().Height() - 1});
    } else if (event == "LabelClick") {
      user->clicks(row().lblLabel());
    } else if (event == "UnitClick") {
      user->clicks(row().lblUnit());
    } else if (event == "Icon1Click") {
      user->clicks(row().imgIcon1());
    } else if (event == "Icon2Click") {
      user->clicks(row().imgIcon2());
    } else if (event == "MenuClick") {
      user->clicks(row().lblUnit(), host::MouseButton::Right);
    } else {
      triggerEditor();
    }
  }

  // Changes, clicks and keys come with every kind of editor in its own way.
  void triggerEditor() {
    user->focuses(row());
    switch (row().ValueType()) {
      case qrnTypeBoolean: user->clicks(checkBox()); break;
      case qrnTypeList: user->chooses(dropList(), 1); break;
      case qrnTypeBitfield: user->ticks(bitList(), 1); break;
      default: user->types("8"); break;
    }
  }
};

TEST_P(RowFaults, AreSurvived) {
  const auto& [cause, deed, realised] = GetParam();
  int heard = 0;
  prepare(cause.event);
  const Connection connection =
      row().ObjectEvent.connect([&, action = deed](std::string_view name, host::EventArgs) {
        if (name != cause.event || heard++ > 0) return;
        act(action);
      });
  const Raised raised = raisedBy([&] { trigger(cause.event); });

  EXPECT_GT(heard, 0);
  // Nothing crosses a message of a window.
  const bool reaches = deed == Deed::Raises && cause.event != "AppLostFocus";
  EXPECT_EQ(raised.number, reaches ? kOwnError : 0) << raised.description;
  if (deed == Deed::DestroysTheRow) {
    EXPECT_EQ(row_, nullptr);
    EXPECT_EQ(platform.peers(), 0);
    EXPECT_EQ(platform.clock().runningTimers(), 0);
    EXPECT_EQ(platform.windows().windowCount(), 0);
    return;
  }
  // The row works on: it takes a new type, a value and the focus.
  row().SetEnabled(true);
  row().SetLocked(false);
  row().SetValueVisible(true);
  row().SetValueType(qrnTypeArray);
  row().SetValueType(qrnTypeLong);
  row().SetValue(Variant(5));
  row().input().setFocus(nullptr);
  user->focuses(row());
  user->enters("6");
  EXPECT_EQ(row().Value(), Variant(6));
  EXPECT_EQ(row().input().focus(), row().CurrentEditor());
}

std::string caseName(const ::testing::TestParamInfo<std::tuple<Cause, Deed, bool>>& one) {
  const auto& [cause, deed, realised] = one.param;
  return cause.event + "Of" + std::to_string(cause.type) + nameOf(deed) + (realised ? "OnScreen" : "");
}

INSTANTIATE_TEST_SUITE_P(
    Row, RowFaults,
    ::testing::Combine(
        ::testing::Values(Cause{"StartEdit", qrnTypeString}, Cause{"StartEdit", qrnTypeBitfield},
                          Cause{"EndEdit", qrnTypeString}, Cause{"EndEdit", qrnTypeList},
                          Cause{"GotFocus", qrnTypeString}, Cause{"LostFocus", qrnTypeString},
                          Cause{"AppLostFocus", qrnTypeString}, Cause{"StatusChange", qrnTypeString},
                          Cause{"Change", qrnTypeString}, Cause{"Change", qrnTypeList},
                          Cause{"Click", qrnTypeBoolean}, Cause{"Click", qrnTypeList},
                          Cause{"Click", qrnTypeBitfield}, Cause{"ItemCheck", qrnTypeBitfield},
                          Cause{"KeyDown", qrnTypeString}, Cause{"KeyPress", qrnTypeString},
                          Cause{"KeyUp", qrnTypeString}, Cause{"BackgroundClick", qrnTypeString},
                          Cause{"LabelClick", qrnTypeBoolean}, Cause{"LabelClick", qrnTypeString},
                          Cause{"UnitClick", qrnTypeString}, Cause{"Icon1Click", qrnTypeString},
                          Cause{"Icon2Click", qrnTypeString}, Cause{"MenuClick", qrnTypeString}),
        ::testing::Values(Deed::DestroysTheRow, Deed::ChangesTheType, Deed::TakesTheEditorAway, Deed::Locks,
                          Deed::Hides, Deed::Disables, Deed::Raises),
        ::testing::Bool()),
    caseName);

// ---- notifications are answered as freely as events ----

/// Does something to the row when one of its properties has changed.
struct MeddlingSite final : headless::HeadlessSite {
  using HeadlessSite::HeadlessSite;
  void propertyChanged(host::UserControl& control, std::string_view key) override {
    if (key != wanted) return;
    const auto once = std::exchange(deed, nullptr);
    if (once) once(static_cast<QRNEdit&>(control));
  }
  std::string wanted;
  std::function<void(QRNEdit&)> deed;
};

class RowNotifications : public ::testing::Test {
 protected:
  RowNotifications() { registerControls(); }
  headless::HeadlessPlatform platform;
  MeddlingSite site{platform};
};

TEST_F(RowNotifications, OfANewTypeMayLeadToAnother) {
  const auto row = host::create<QRNEdit>(site);
  site.wanted = "ValueType";
  site.deed = [](QRNEdit& changed) { changed.SetValueType(qrnTypeBoolean); };
  row->SetValueType(qrnTypeList);
  EXPECT_EQ(row->ValueType(), qrnTypeBoolean);
  EXPECT_EQ(row->CurrentEditor()->typeName(), "CheckBox");
}

TEST_F(RowNotifications, OfAValueMayTakeTheEditorAway) {
  const auto row = host::create<QRNEdit>(site);
  row->SetValueType(qrnTypeLong);
  site.wanted = "Value";
  site.deed = [](QRNEdit& changed) { changed.SetValueType(qrnTypeArray); };
  row->SetValue(Variant(5));
  EXPECT_EQ(row->CurrentEditor(), nullptr);
}

}  // namespace
}  // namespace qrn::test
