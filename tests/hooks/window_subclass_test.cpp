#include <memory>
#include <optional>
#include <stdexcept>

#include "hooks/clsSubClass.h"
#include "hooks/clsWndSubClass.h"
#include "hooks/window_registry.h"
#include "runtime/errors.h"
#include "window_fixture.h"

namespace qrn::test {
namespace {

/// A watcher that notes under its name what it hears, and does something then.
struct Watcher {
  Watcher(std::string name, Heard& log) {
    got = application.AppGotFocus.connect([this, name, &log] {
      log.push_back(name + " got");
      if (then) then();
    });
    lost = application.AppLostFocus.connect([this, name, &log] {
      log.push_back(name + " lost");
      if (then) then();
    });
  }
  clsSubClass application;
  std::function<void()> then;
  Connection got, lost;
};

class WindowWatching : public WindowTest {
 protected:
  void leaveApplication() { send(top.handle, host::wm::ActivateApp, 0); }

  std::intptr_t ownProcedure = procedureOf(top.handle);
  Watcher a{"a", heard}, b{"b", heard};
};

TEST_F(WindowWatching, TellsEveryWatcherInOrderAndThenTheWindow) {
  a.application.SetHwnd(top.handle);
  b.application.SetHwnd(top.handle);
  EXPECT_EQ(send(top.handle, host::wm::ActivateApp, 1), 1000 + 28);
  EXPECT_EQ(heard, (Heard{"a got", "b got", "window 28 1"}));
}

TEST_F(WindowWatching, HearsOfTheApplicationBeingLeftAndOfTheWindowClosing) {
  a.application.SetHwnd(top.handle);
  b.application.SetHwnd(top.handle);
  leaveApplication();
  send(top.handle, host::wm::Close);
  EXPECT_EQ(heard, (Heard{"a lost", "b lost", "window 28 0", "a lost", "b lost", "window 16 0"}));
}

TEST_F(WindowWatching, OtherMessagesOnlyPassThrough) {
  a.application.SetHwnd(top.handle);
  EXPECT_EQ(send(top.handle, host::wm::Activate, 1), 1006);
  EXPECT_EQ(send(top.handle, host::wm::KeyDown, 65), 1000 + 256);
  EXPECT_EQ(heard, (Heard{"window 6 1", "window 256 65"}));
}

TEST_F(WindowWatching, SharesOneHookAndPutsTheFirstProcedureBackAfterTheLastWatcher) {
  a.application.SetHwnd(top.handle);
  const std::intptr_t hooked = procedureOf(top.handle);
  EXPECT_NE(hooked, ownProcedure);
  EXPECT_EQ(platform.windows().property(top.handle, "OldWindowProc"), ownProcedure);
  EXPECT_NE(platform.windows().property(top.handle, "ObjectPointer"), 0);
  b.application.SetHwnd(top.handle);
  EXPECT_EQ(procedureOf(top.handle), hooked);
  EXPECT_EQ(watchedWindows(), 1);
  a.application.SetHwnd(0);
  EXPECT_EQ(procedureOf(top.handle), hooked);
  b.application.SetHwnd(0);
  EXPECT_EQ(procedureOf(top.handle), ownProcedure);
  EXPECT_EQ(platform.windows().property(top.handle, "OldWindowProc"), 0);
  EXPECT_EQ(platform.windows().property(top.handle, "ObjectPointer"), 0);
  EXPECT_EQ(watchedWindows(), 0);
}

TEST_F(WindowWatching, ClimbsFromAChildToItsTopLevelWindow) {
  const Window grandchild(platform.windows(), heard, child.handle);
  a.application.SetHwnd(grandchild.handle);
  EXPECT_EQ(a.application.hwnd(), top.handle);
  leaveApplication();
  EXPECT_EQ(heard, (Heard{"a lost", "window 28 0"}));
}

TEST_F(WindowWatching, AnotherWindowTakesThePlaceOfTheOneBefore) {
  const Window other(platform.windows(), heard);
  a.application.SetHwnd(top.handle);
  a.application.SetHwnd(other.handle);
  EXPECT_EQ(procedureOf(top.handle), ownProcedure);
  leaveApplication();
  send(other.handle, host::wm::ActivateApp, 1);
  EXPECT_EQ(heard, (Heard{"window 28 0", "a got", "window 28 1"}));
}

TEST_F(WindowWatching, EndsWithTheWatcher) {
  {
    clsSubClass brief;
    brief.SetHwnd(top.handle);
    EXPECT_NE(procedureOf(top.handle), ownProcedure);
  }
  EXPECT_EQ(procedureOf(top.handle), ownProcedure);
}

TEST_F(WindowWatching, AWatcherThatFailsIsTheLastThatHearsAnything) {
  a.application.SetHwnd(top.handle);
  b.application.SetHwnd(top.handle);
  a.then = [] { raiseRunTimeError(kOverflow); };
  // The window itself still gets the message.
  leaveApplication();
  EXPECT_EQ(heard, (Heard{"a lost", "window 28 0"}));
  EXPECT_EQ(procedureOf(top.handle), ownProcedure);
  EXPECT_EQ(platform.windows().property(top.handle, "OldWindowProc"), 0);
  leaveApplication();
  EXPECT_EQ(heard.size(), 3u);
}

TEST_F(WindowWatching, AnyFailureUnhooksNotOnlyRunTimeErrors) {
  a.application.SetHwnd(top.handle);
  a.then = [] { throw std::logic_error("a mistake of the listener"); };
  EXPECT_NO_THROW(leaveApplication());
  EXPECT_EQ(procedureOf(top.handle), ownProcedure);
}

std::intptr_t failing(WindowHandle, std::uint32_t, std::intptr_t, std::intptr_t) {
  throw std::logic_error("a mistake behind the hook");
}

TEST_F(WindowWatching, AProcedureThatFailsBehindTheHookUnhooksToo) {
  const auto broken = reinterpret_cast<std::intptr_t>(&failing);
  platform.windows().setLong(top.handle, host::kGwlWndProc, broken);
  a.application.SetHwnd(top.handle);
  EXPECT_NO_THROW(EXPECT_EQ(send(top.handle, host::wm::Close), 0));
  EXPECT_EQ(heard, (Heard{"a lost"}));
  EXPECT_EQ(procedureOf(top.handle), broken);
}

TEST_F(WindowWatching, StartsAgainOnceTheWatchersOfAFailureHaveAllLeft) {
  a.application.SetHwnd(top.handle);
  a.then = [] { raiseRunTimeError(kOverflow); };
  leaveApplication();
  a.then = nullptr;
  heard.clear();
  b.application.SetHwnd(top.handle);
  leaveApplication();
  EXPECT_EQ(heard, (Heard{"window 28 0"})) << "the broken watcher still holds the place";
  a.application.SetHwnd(0);
  b.application.SetHwnd(0);
  b.application.SetHwnd(top.handle);
  leaveApplication();
  EXPECT_EQ(heard, (Heard{"window 28 0", "b lost", "window 28 0"}));
}

TEST_F(WindowWatching, AWatcherMayRemoveAllFromInsideItsEvent) {
  a.application.SetHwnd(top.handle);
  b.application.SetHwnd(top.handle);
  a.then = [&] {
    b.application.SetHwnd(0);
    a.application.SetHwnd(0);
  };
  EXPECT_EQ(send(top.handle, host::wm::ActivateApp, 0), 1028);
  EXPECT_EQ(heard, (Heard{"a lost", "window 28 0"}));
  EXPECT_EQ(procedureOf(top.handle), ownProcedure);
  EXPECT_EQ(watchedWindows(), 0);
}

TEST_F(WindowWatching, AWatcherMayDieInsideItsEvent) {
  auto dying = std::make_unique<clsSubClass>();
  std::optional<Connection> connection(dying->AppLostFocus.connect([&] { dying.reset(); }));
  dying->SetHwnd(top.handle);
  b.application.SetHwnd(top.handle);
  leaveApplication();
  EXPECT_EQ(heard, (Heard{"b lost", "window 28 0"}));
}

TEST_F(WindowWatching, TheWindowMayGoInsideTheEvent) {
  auto brief = std::make_unique<Window>(platform.windows(), heard);
  const WindowHandle handle = brief->handle;
  a.application.SetHwnd(handle);
  a.then = [&] { brief.reset(); };
  EXPECT_EQ(send(handle, host::wm::Close), 0);
  EXPECT_EQ(heard, (Heard{"a lost"}));
  a.application.SetHwnd(0);
  EXPECT_EQ(watchedWindows(), 0);
}

TEST_F(WindowWatching, AWatcherThatJoinsInsideAnEventHearsTheNextMessage) {
  a.application.SetHwnd(top.handle);
  a.then = [&] { b.application.SetHwnd(top.handle); };
  leaveApplication();
  EXPECT_EQ(heard, (Heard{"a lost", "window 28 0"}));
}

TEST_F(WindowWatching, ReachesEveryTopLevelWindowWhenTheApplicationIsLeft) {
  const Window other(platform.windows(), heard);
  a.application.SetHwnd(top.handle);
  b.application.SetHwnd(other.handle);
  platform.windows().applicationActivated(false);
  EXPECT_EQ(heard, (Heard{"a lost", "window 28 0", "b lost", "window 28 0"}));
}

TEST(WindowWatchers, OutliveThePlatform) {
  clsSubClass watcher;
  {
    headless::HeadlessPlatform platform;
    Heard heard;
    const Window window(platform.windows(), heard);
    watcher.SetHwnd(window.handle);
  }
  watcher.SetHwnd(0);
  EXPECT_EQ(watcher.hwnd(), 0);
  EXPECT_EQ(watchedWindows(), 0);
}

/// Wants all that there is to hear, and changes a message on its way.
struct Curious final : clsSubClass {
  Curious() { reportWindowActivation_ = reportEveryMessage_ = true; }
  void WindowProc(WindowHandle& hwnd, std::uint32_t& msg, std::intptr_t& wParam,
                  std::intptr_t& lParam) override {
    clsSubClass::WindowProc(hwnd, msg, wParam, lParam);
    if (msg == host::wm::KeyDown) wParam = 'B';
  }
};

TEST_F(WindowWatching, CanReportWindowActivationAndEveryMessage) {
  Curious curious;
  const Connection on = curious.WindowActivated.connect([&] { heard.push_back("active"); });
  const Connection off = curious.WindowDeactivated.connect([&] { heard.push_back("inactive"); });
  const Connection any =
      curious.MessageArrived.connect([&](WindowHandle&, std::uint32_t& msg, std::intptr_t&, std::intptr_t&) {
        heard.push_back("message " + std::to_string(msg));
      });
  curious.SetHwnd(top.handle);
  send(top.handle, host::wm::Activate, 2);
  send(top.handle, host::wm::Activate, 0);
  EXPECT_EQ(heard, (Heard{"message 6", "active", "window 6 2", "message 6", "inactive", "window 6 0"}));
}

TEST_F(WindowWatching, PassesAMessageOnTheWayAWatcherLeftIt) {
  Curious curious;
  curious.SetHwnd(top.handle);
  send(top.handle, host::wm::KeyDown, 'A');
  EXPECT_EQ(heard, (Heard{"window 256 66"}));
}

TEST_F(WindowWatching, AnObjectCountsItsWatchersAndForgetsThemOneByOne) {
  const auto window = std::make_shared<clsWndSubClass>();
  EXPECT_EQ(window->hwnd(), 0);
  window->Add(a.application, top.handle);
  window->Add(b.application, top.handle);
  window->Add(a.application, top.handle);
  EXPECT_EQ(window->Count(), 3);
  EXPECT_EQ(window->hwnd(), top.handle);
  window->Remove(a.application);
  EXPECT_EQ(window->Count(), 1);
  window->Remove(b.application);
  EXPECT_EQ(window->Count(), 0);
  EXPECT_EQ(window->hwnd(), 0);
}

TEST_F(WindowWatching, AnObjectThatDiesUnhooksItsWindow) {
  auto window = std::make_shared<clsWndSubClass>();
  window->Add(a.application, top.handle);
  window.reset();
  EXPECT_EQ(procedureOf(top.handle), ownProcedure);
}

}  // namespace
}  // namespace qrn::test
