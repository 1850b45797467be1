#include <memory>

#include "hooks/clsQRNEDitSubClass.h"
#include "runtime/errors.h"
#include "window_fixture.h"

namespace qrn::test {
namespace {

class EditHook : public WindowTest {
 protected:
  std::intptr_t ownProcedure = procedureOf(top.handle);
  clsQRNEDitSubClass hook;
};

TEST_F(EditHook, StartsWithoutAWindow) { EXPECT_EQ(hook.hwnd(), 0); }

TEST_F(EditHook, AddsAllKeysToWhatTheWindowWantsItself) {
  hook.SetHwnd(top.handle);
  EXPECT_EQ(send(top.handle, host::wm::GetDlgCode), (1000 + 135) | 4);
  EXPECT_EQ(heard, (Heard{"window 135 0"}));
}

TEST_F(EditHook, PassesEveryOtherMessageThroughUnchanged) {
  hook.SetHwnd(top.handle);
  EXPECT_EQ(send(top.handle, host::wm::KeyDown, 65), 1256);
  EXPECT_EQ(send(top.handle, host::wm::Close), 1016);
}

TEST_F(EditHook, WithoutAWindowPutsThePreviousProcedureBack) {
  hook.SetHwnd(top.handle);
  EXPECT_NE(procedureOf(top.handle), ownProcedure);
  hook.SetHwnd(0);
  EXPECT_EQ(procedureOf(top.handle), ownProcedure);
  EXPECT_EQ(hook.hwnd(), 0);
  EXPECT_EQ(send(top.handle, host::wm::GetDlgCode), 1135);
}

TEST_F(EditHook, ASecondWindowIsNotTaken) {
  hook.SetHwnd(top.handle);
  hook.SetHwnd(child.handle);
  EXPECT_EQ(hook.hwnd(), top.handle);
  EXPECT_EQ(procedureOf(child.handle), ownProcedure);
  EXPECT_EQ(send(child.handle, host::wm::GetDlgCode), 1135);
}

TEST_F(EditHook, TakesAnotherWindowAfterTheFirstIsFree) {
  hook.SetHwnd(top.handle);
  hook.SetHwnd(0);
  hook.SetHwnd(child.handle);
  EXPECT_EQ(hook.hwnd(), child.handle);
  EXPECT_EQ(send(child.handle, host::wm::GetDlgCode), 1135 | 4);
}

TEST_F(EditHook, EndsWithTheObject) {
  {
    clsQRNEDitSubClass brief;
    brief.SetHwnd(top.handle);
  }
  EXPECT_EQ(procedureOf(top.handle), ownProcedure);
}

TEST_F(EditHook, AWindowKnowsItsOwnHook) {
  clsQRNEDitSubClass other;
  hook.SetHwnd(top.handle);
  other.SetHwnd(child.handle);
  EXPECT_NE(platform.windows().getLong(top.handle, host::kGwlUserData),
            platform.windows().getLong(child.handle, host::kGwlUserData));
}

TEST_F(EditHook, AProcedureThatIsCalledAfterItsHookHasGoneAnswersNothing) {
  hook.SetHwnd(top.handle);
  hook.SetHwnd(0);
  EXPECT_EQ(clsQRNEDitSubClass::EditHookProc(top.handle, host::wm::GetDlgCode, 0, 0), 0);
}

std::intptr_t failing(WindowHandle, std::uint32_t, std::intptr_t, std::intptr_t) {
  raiseRunTimeError(kOverflow);
}

TEST_F(EditHook, AnErrorOfTheEditorEndsInTheHook) {
  platform.windows().setLong(top.handle, host::kGwlWndProc, reinterpret_cast<std::intptr_t>(&failing));
  hook.SetHwnd(top.handle);
  EXPECT_EQ(send(top.handle, host::wm::GetDlgCode), 0);
}

std::unique_ptr<clsQRNEDitSubClass> dying;

std::intptr_t ending(WindowHandle, std::uint32_t, std::intptr_t, std::intptr_t) {
  dying.reset();
  return 128;
}

TEST_F(EditHook, MayDieInsideTheMessageThatItPassesOn) {
  platform.windows().setLong(top.handle, host::kGwlWndProc, reinterpret_cast<std::intptr_t>(&ending));
  dying = std::make_unique<clsQRNEDitSubClass>();
  dying->SetHwnd(top.handle);
  EXPECT_EQ(send(top.handle, host::wm::GetDlgCode), 132);
  EXPECT_EQ(dying, nullptr);
}

TEST_F(EditHook, AWindowThatHasGoneTakesNothingAlong) {
  auto brief = std::make_unique<Window>(platform.windows(), heard);
  hook.SetHwnd(brief->handle);
  brief.reset();
  hook.SetHwnd(0);
  EXPECT_EQ(hook.hwnd(), 0);
}

}  // namespace
}  // namespace qrn::test
