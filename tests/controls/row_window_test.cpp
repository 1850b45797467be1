#include "host/windows.h"

#include "diag/DebugTrace.h"
#include "hooks/window_registry.h"
#include "host/form.h"
#include "row_fixture.h"

namespace qrn::test {
namespace {

constexpr std::intptr_t kEditUpperCase = 0x8, kComboUpperCase = 0x2000;

class RowWindows : public RowTest {
 protected:
  std::intptr_t dialogCode() {
    return platform.windows().send(row().CurrentEditor()->window(), {host::wm::GetDlgCode, 0, 0});
  }
  std::intptr_t style() {
    return platform.windows().getLong(row().CurrentEditor()->window(), host::kGwlStyle);
  }
  bool wants(std::int16_t key) { return row().input().wantsKey(key); }
};

// ---- all keys ----

TEST_F(RowWindows, AnEditorOfAnyKindAsksForAllKeys) {
  for (const auto type : {qrnTypeString, qrnTypeBoolean, qrnTypeList, qrnTypeBitfield}) {
    useType(type);
    EXPECT_EQ(dialogCode() & 4, 4) << type;
  }
}

TEST_F(RowWindows, ATextBoxKeepsItsOwnAnswerBesideAllKeys) {
  useType(qrnTypeString);
  EXPECT_EQ(dialogCode(), 0x89 | 4);
}

TEST_F(RowWindows, TheFocusedEditorKeepsEnterEscapeTabAndArrowsFromADialog) {
  useType(qrnTypeLong);
  user->focuses(row());
  for (const auto key : {host::key::Enter, host::key::Escape, host::key::Tab, host::key::Left, host::key::Up})
    EXPECT_TRUE(wants(key)) << key;
}

TEST_F(RowWindows, ARowWithoutTheFocusWantsNoKeys) {
  useType(qrnTypeLong);
  EXPECT_FALSE(wants(host::key::Enter));
}

TEST_F(RowWindows, AnEditorHasNoWindowBeforeSomebodyAsksForOne) {
  useType(qrnTypeString);
  const int windows = platform.windows().windowCount();
  row().SetValue("text");
  EXPECT_EQ(platform.windows().windowCount(), windows);
  row().CurrentEditor()->window();
  EXPECT_EQ(platform.windows().windowCount(), windows + 1);
}

TEST_F(RowWindows, TheHookGoesBeforeTheEditorDoes) {
  useType(qrnTypeString);
  dialogCode();
  useType(qrnTypeArray);
  EXPECT_EQ(row().CurrentEditor(), nullptr);
  useType(qrnTypeList);
  EXPECT_EQ(dialogCode() & 4, 4);
}

TEST_F(RowWindows, ARowThatEndsTakesItsHookAlong) {
  useType(qrnTypeString);
  dialogCode();
  row_.reset();
  EXPECT_EQ(platform.windows().windowCount(), 0);
}

// ---- upper case as a style of the window ----

TEST_F(RowWindows, UpperCaseIsAStyleOfTheTextBox) {
  useType(qrnTypeString);
  EXPECT_EQ(style() & kEditUpperCase, 0);
  row().SetValueUpperCase(true);
  EXPECT_EQ(style() & kEditUpperCase, kEditUpperCase);
  row().SetValueUpperCase(false);
  EXPECT_EQ(style() & kEditUpperCase, 0);
}

TEST_F(RowWindows, UpperCaseIsAStyleOfTheDropList) {
  row().SetValueUpperCase(true);
  useType(qrnTypeList);
  EXPECT_EQ(style() & kComboUpperCase, kComboUpperCase);
  row().SetValueUpperCase(false);
  EXPECT_EQ(style() & kComboUpperCase, 0);
}

TEST_F(RowWindows, UpperCaseLeavesOtherEditorsUntouched) {
  row().SetValueUpperCase(true);
  for (const auto type : {qrnTypeBoolean, qrnTypeBitfield}) {
    useType(type);
    EXPECT_EQ(style(), 0) << type;
  }
}

TEST_F(RowWindows, AStyleThatIsWrittenToTheWindowWorksInTheEditor) {
  useType(qrnTypeString);
  constexpr std::intptr_t kForeign = 0x40;
  const host::WindowHandle window = textBox().window();
  platform.windows().setLong(window, host::kGwlStyle, kForeign | kEditUpperCase);
  EXPECT_EQ(style(), kForeign | kEditUpperCase);
  user->focuses(row());
  user->enters("abc");
  EXPECT_EQ(textBox().Text(), "ABC");
  row().SetValueUpperCase(true);
  row().SetValueUpperCase(false);
  EXPECT_EQ(style(), kForeign) << "bits of others stay";
}

// ---- the application is left and activated again ----

TEST_F(RowWindows, LeavingTheApplicationEndsTheEditAndComingBackBeginsAnother) {
  useType(qrnTypeString);
  user->focuses(row());
  user->types("x");
  raised();
  user->switchesAway();
  EXPECT_EQ(raised(), (Events{"EndEdit(True)", "AppLostFocus"}));
  user->comesBack();
  EXPECT_EQ(raised(), (Events{"StartEdit"}));
}

TEST_F(RowWindows, ClosingTheWindowEndsTheEdit) {
  useType(qrnTypeString);
  user->focuses(row());
  raised();
  user->closes();
  EXPECT_EQ(raised(), (Events{"EndEdit(False)", "AppLostFocus"}));
}

TEST_F(RowWindows, ARowWithoutTheFocusHearsNothingOfTheApplication) {
  useType(qrnTypeString);
  user->switchesAway();
  user->comesBack();
  EXPECT_EQ(raised(), Events{});
  EXPECT_EQ(watchedWindows(), 0);
}

TEST_F(RowWindows, WatchesOnlyWhileItHasTheFocus) {
  useType(qrnTypeString);
  user->focuses(row());
  EXPECT_EQ(watchedWindows(), 1);
  row().input().setFocus(nullptr);
  EXPECT_EQ(watchedWindows(), 0);
}

TEST_F(RowWindows, ALockedRowBeginsNothingWhenTheApplicationComesBack) {
  useType(qrnTypeString);
  row().SetLocked(true);
  user->focuses(row());
  user->switchesAway();
  user->comesBack();
  EXPECT_EQ(raised(), Events{"AppLostFocus"});
}

TEST_F(RowWindows, ARowThatIsRemovedWhileTheApplicationIsLeftHearsNoMore) {
  useType(qrnTypeString);
  user->focuses(row());
  const Connection ending = row().events().EndEdit.connect([this](bool&) { row_.reset(); });
  user->switchesAway();
  EXPECT_EQ(watchedWindows(), 0);
}

TEST_F(RowWindows, AListenerThatFailsWhenTheApplicationIsLeftDoesNotWedgeTheWindow) {
  useType(qrnTypeString);
  user->focuses(row());
  raised();
  {
    const Connection failing = row().events().EndEdit.connect([](bool&) { raiseRunTimeError(kOverflow); });
    EXPECT_NO_THROW(user->switchesAway());
  }
  raised();
  user->comesBack();
  EXPECT_EQ(raised(), Events{}) << "the watcher was unhooked";
  row().input().setFocus(nullptr);
  user->focuses(row());
  EXPECT_EQ(watchedWindows(), 1) << "the next focus watches again";
}

struct Viewer final : host::AutomationObject {
  explicit Viewer(Events& log) : lines(log) {}
  std::string_view typeName() const override { return "Viewer"; }
  Variant call(std::string_view, std::span<const Variant> arguments) override {
    lines.push_back(*arguments[2].get<std::string>());
    return {};
  }
  Events& lines;
};

TEST_F(RowWindows, TracesThatTheApplicationCameBackToARowBeingEdited) {
  Events lines;
  const host::Form viewer(platform, "ZOLVEN Debug Tracer");
  platform.provideObject("ZVDebugTrace.clsDebugTrace", [&] { return std::make_shared<Viewer>(lines); });
  useType(qrnTypeString);
  user->focuses(row());
  user->switchesAway();
  EXPECT_EQ(lines, Events{});
  user->comesBack();
  EXPECT_EQ(lines, (Events{"AppGotFocus"}));
  // Of a row that can't be edited nothing begins, and nothing is traced.
  row().SetLocked(true);
  user->switchesAway();
  user->comesBack();
  EXPECT_EQ(lines, (Events{"AppGotFocus"}));
}

}  // namespace
}  // namespace qrn::test
