#include "platform/common/window_table.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "host/form.h"
#include "host/text_box.h"
#include "test_control.h"

namespace qrn::test {
namespace {

using host::Message;
using host::WindowHandle;

/// Notes what it is told, and answers with the number of the message.
struct Owner : host::WindowOwner {
  explicit Owner(WindowTable& table, std::string title = {}, WindowHandle parent = 0)
      : windows(table), caption(std::move(title)), above(parent), handle(table.create(*this)) {}
  ~Owner() override { windows.destroy(handle); }

  std::intptr_t windowMessage(const Message& message) override {
    heard.push_back(static_cast<int>(message.number));
    if (answer) answer(message);
    return message.number + message.wParam + message.lParam;
  }
  bool windowEnabled() const override { return enabled; }
  WindowHandle parentWindow() const override { return above; }
  std::string_view windowTitle() const override { return caption; }
  void windowInvalidated() override { ++invalidated; }

  WindowTable& windows;
  std::string caption;
  WindowHandle above;
  WindowHandle handle;
  std::vector<int> heard;
  std::function<void(const Message&)> answer;
  bool enabled = true;
  int invalidated = 0;
};

struct CountingTable : WindowTable {
  void wake() override { ++woken; }
  int woken = 0;
};

// What an installed procedure needs has to be reached from a plain function.
thread_local host::Windows* hookWindows = nullptr;
thread_local std::intptr_t hookedProcedure = 0;
thread_local std::vector<std::string> hookHeard;

std::intptr_t hook(WindowHandle window, std::uint32_t number, std::intptr_t wParam, std::intptr_t lParam) {
  hookHeard.push_back("hook " + std::to_string(number));
  if (number == 99) return -1;  // keeps it to itself
  return hookWindows->callProcedure(hookedProcedure, window, {number, wParam, lParam}) * 10;
}

class WindowTables : public testing::Test {
 protected:
  WindowTables() {
    hookWindows = &table;
    hookHeard.clear();
  }
  /// Puts the hook in front of what is installed.
  void install(WindowHandle window) {
    hookedProcedure = table.setLong(window, host::kGwlWndProc, reinterpret_cast<std::intptr_t>(&hook));
  }

  CountingTable table;
  Owner a{table, "first"};
  std::unique_ptr<Owner> kept;
};

TEST_F(WindowTables, GiveEveryWindowItsOwnPositiveHandle) {
  const Owner b(table);
  EXPECT_GT(a.handle, 0);
  EXPECT_LE(a.handle, std::numeric_limits<std::int32_t>::max());
  EXPECT_NE(a.handle, b.handle);
  EXPECT_EQ(table.windowCount(), 2);
}

TEST_F(WindowTables, RecogniseAHandleThatIsStaleOrNeverWasOne) {
  WindowHandle stale = 0;
  {
    const Owner gone(table, "gone");
    stale = gone.handle;
    table.setProperty(stale, "p", 5);
  }
  const Owner successor(table, "successor");
  const WindowHandle beyond = a.handle + (std::intptr_t{1} << 32);
  for (const WindowHandle bad : {stale, WindowHandle{0}, WindowHandle{-1}, WindowHandle{1234567}, beyond,
                                 std::numeric_limits<WindowHandle>::max()}) {
    EXPECT_EQ(table.send(bad, {7, 1, 1}), 0) << bad;
    EXPECT_EQ(table.getLong(bad, host::kGwlStyle), 0);
    EXPECT_EQ(table.setLong(bad, host::kGwlStyle, 1), 0);
    EXPECT_EQ(table.property(bad, "p"), 0);
    EXPECT_EQ(table.removeProperty(bad, "p"), 0);
    EXPECT_EQ(table.parent(bad), 0);
    EXPECT_FALSE(table.isEnabled(bad));
    table.setProperty(bad, "p", 1);
    table.invalidate(bad);
    table.destroy(bad);
  }
  EXPECT_EQ(table.windowCount(), 2);
  EXPECT_TRUE(successor.heard.empty());
  EXPECT_EQ(table.property(successor.handle, "p"), 0);
}

TEST_F(WindowTables, GiveASlotThatIsUsedAgainAnotherHandle) {
  std::vector<WindowHandle> handles;
  for (int i = 0; i < 100; ++i) handles.push_back(Owner(table).handle);
  std::sort(handles.begin(), handles.end());
  EXPECT_EQ(std::unique(handles.begin(), handles.end()), handles.end());
  EXPECT_EQ(table.windowCount(), 1);
}

TEST_F(WindowTables, DeliverASentMessageAtOnceAndAnswerWhatTheOwnerAnswers) {
  EXPECT_EQ(table.send(a.handle, {7, 20, 300}), 327);
  EXPECT_EQ(a.heard, (std::vector<int>{7}));
}

TEST_F(WindowTables, KeepLongsOfTheirOwnForEveryWindow) {
  const Owner b(table);
  EXPECT_EQ(table.setLong(a.handle, host::kGwlStyle, 5), 0);
  EXPECT_EQ(table.setLong(a.handle, host::kGwlStyle, 6), 5);
  EXPECT_EQ(table.setLong(a.handle, host::kGwlUserData, -7), 0);
  EXPECT_EQ(table.getLong(a.handle, host::kGwlStyle), 6);
  EXPECT_EQ(table.getLong(a.handle, host::kGwlUserData), -7);
  EXPECT_EQ(table.getLong(b.handle, host::kGwlStyle), 0);
  EXPECT_EQ(table.getLong(a.handle, 12), 0);
  EXPECT_EQ(table.setLong(a.handle, 12, 5), 0);
}

TEST_F(WindowTables, CallAnInstalledProcedureInPlaceOfTheOwner) {
  install(a.handle);
  EXPECT_EQ(table.getLong(a.handle, host::kGwlWndProc), reinterpret_cast<std::intptr_t>(&hook));
  EXPECT_EQ(table.send(a.handle, {7, 1, 0}), 80) << "the hook calls the one that was there";
  EXPECT_EQ(table.send(a.handle, {99, 0, 0}), -1);
  EXPECT_EQ(hookHeard, (Heard{"hook 7", "hook 99"}));
  EXPECT_EQ(a.heard, (std::vector<int>{7}));
  table.setLong(a.handle, host::kGwlWndProc, hookedProcedure);
  EXPECT_EQ(table.send(a.handle, {7, 1, 0}), 8);
}

TEST_F(WindowTables, CallNoProcedureForNone) { EXPECT_EQ(table.callProcedure(0, a.handle, {7, 0, 0}), 0); }

TEST_F(WindowTables, ReachTheirOwnWindowsWhileThereIsAnotherTableInTheThread) {
  CountingTable other;
  Owner foreign(other);
  install(a.handle);
  EXPECT_EQ(table.send(a.handle, {7, 1, 0}), 80);
  EXPECT_EQ(a.heard, (std::vector<int>{7}));
  EXPECT_TRUE(foreign.heard.empty());
  EXPECT_EQ(other.send(foreign.handle, {8, 0, 0}), 8);
}

TEST(WindowTableLives, MayEndInAnyOrder) {
  auto first = std::make_unique<WindowTable>();
  auto second = std::make_unique<WindowTable>();
  auto third = std::make_unique<WindowTable>();
  first.reset();
  third.reset();
  auto owner = std::make_unique<Owner>(*second);
  EXPECT_EQ(second->send(owner->handle, {5, 0, 0}), 5);
  const auto bare =
      reinterpret_cast<host::Windows::Procedure>(second->getLong(owner->handle, host::kGwlWndProc));
  EXPECT_EQ(bare(owner->handle, 6, 0, 0), 6) << "the bare function finds the table that is left";
  owner.reset();
  second.reset();
  EXPECT_EQ(bare(1, 6, 0, 0), 0);
}

TEST_F(WindowTables, KeepPropertiesByName) {
  table.setProperty(a.handle, "hook", 5);
  table.setProperty(a.handle, "watcher", 6);
  table.setProperty(a.handle, "hook", 7);
  EXPECT_EQ(table.property(a.handle, "hook"), 7);
  EXPECT_EQ(table.property(a.handle, "watcher"), 6);
  EXPECT_EQ(table.property(a.handle, "none"), 0);
  EXPECT_EQ(table.removeProperty(a.handle, "hook"), 7);
  EXPECT_EQ(table.property(a.handle, "hook"), 0);
  EXPECT_EQ(table.removeProperty(a.handle, "hook"), 0);
}

TEST_F(WindowTables, AskTheOwnerForParentAndEnabledStateAndTellItToPaint) {
  Owner child(table, {}, a.handle);
  EXPECT_EQ(table.parent(child.handle), a.handle);
  EXPECT_EQ(table.parent(a.handle), 0);
  EXPECT_TRUE(table.isEnabled(child.handle));
  child.enabled = false;
  EXPECT_FALSE(table.isEnabled(child.handle));
  table.invalidate(child.handle);
  EXPECT_EQ(child.invalidated, 1);
}

TEST_F(WindowTables, FindTheFirstTopLevelWindowWithExactlyATitle) {
  const Owner child(table, "second", a.handle), top(table, "second"), later(table, "second");
  EXPECT_EQ(table.findByTitle("second"), top.handle);
  EXPECT_EQ(table.findByTitle("first"), a.handle);
  EXPECT_EQ(table.findByTitle("First"), 0);
  EXPECT_EQ(table.findByTitle("sec"), 0);
}

TEST_F(WindowTables, FindATitleEvenIfAnOwnerMakesWindowsWhenItIsAskedForItsParent) {
  struct Lazy : Owner {
    using Owner::Owner;
    WindowHandle parentWindow() const override {
      while (made.size() < 200) made.push_back(std::make_unique<Owner>(windows, "made"));
      return 0;
    }
    mutable std::vector<std::unique_ptr<Owner>> made;
  };
  const Lazy lazy(table, "lazy");
  EXPECT_EQ(table.findByTitle("lazy"), lazy.handle);
}

TEST_F(WindowTables, DeliverPostedMessagesLaterInTheOrderOfPosting) {
  Owner b(table);
  table.post(a.handle, {1, 0, 0});
  table.post(b.handle, {2, 0, 0});
  table.post(a.handle, {3, 0, 0});
  EXPECT_TRUE(a.heard.empty());
  EXPECT_TRUE(table.hasPosted());
  table.deliverPosted();
  EXPECT_EQ(a.heard, (std::vector<int>{1, 3}));
  EXPECT_EQ(b.heard, (std::vector<int>{2}));
  EXPECT_FALSE(table.hasPosted());
}

TEST_F(WindowTables, DeliverWhatIsPostedMeanwhileTheNextTime) {
  a.answer = [&](const Message& message) {
    if (message.number < 3) table.post(a.handle, {message.number + 1, 0, 0});
  };
  table.post(a.handle, {1, 0, 0});
  table.deliverPosted();
  EXPECT_EQ(a.heard, (std::vector<int>{1}));
  table.deliverPosted();
  EXPECT_EQ(a.heard, (std::vector<int>{1, 2}));
  table.deliverPosted();
  EXPECT_EQ(a.heard, (std::vector<int>{1, 2, 3}));
  table.deliverPosted();
  EXPECT_FALSE(table.hasPosted());
}

TEST_F(WindowTables, DropAMessageWhoseWindowHasGone) {
  {
    const Owner gone(table);
    table.post(gone.handle, {1, 0, 0});
  }
  const Owner successor(table);
  table.post(0, {2, 0, 0});
  table.deliverPosted();
  EXPECT_TRUE(successor.heard.empty());
}

TEST_F(WindowTables, LetAProcedureDestroyTheWindowItRunsFor) {
  auto doomed = std::make_unique<Owner>(table);
  doomed->answer = [&](const Message&) {
    // The function that runs must not be the one that goes.
    std::unique_ptr<Owner> last = std::move(doomed);
    table.destroy(last->handle);
    kept = std::move(last);
  };
  table.post(doomed->handle, {1, 0, 0});
  table.post(doomed->handle, {2, 0, 0});
  table.post(a.handle, {3, 0, 0});
  table.deliverPosted();
  EXPECT_EQ(kept->heard, (std::vector<int>{1}));
  EXPECT_EQ(a.heard, (std::vector<int>{3}));
  EXPECT_EQ(table.windowCount(), 1);
}

TEST_F(WindowTables, GoOnAfterAProcedureThatThrows) {
  a.answer = [](const Message& message) {
    if (message.number == 1) throw std::runtime_error("no");
  };
  table.post(a.handle, {1, 0, 0});
  table.post(a.handle, {2, 0, 0});
  const int woken = table.woken;
  EXPECT_THROW(table.deliverPosted(), std::runtime_error);
  EXPECT_GT(table.woken, woken) << "the loop is asked to come back for the rest";
  table.deliverPosted();
  EXPECT_EQ(a.heard, (std::vector<int>{1, 2}));
}

TEST_F(WindowTables, WakeTheLoopOnceForAQueueThatFills) {
  table.post(a.handle, {1, 0, 0});
  table.post(a.handle, {2, 0, 0});
  EXPECT_EQ(table.woken, 1);
}

class ControlWindows : public SurfaceTest {};

TEST_F(ControlWindows, AreMadeWhenTheyAreAskedForAndKept) {
  auto& box = surface().add<host::TextBox>("txt");
  EXPECT_EQ(platform.windows().windowCount(), 0);
  const std::int32_t handle = box.hwnd();
  EXPECT_GT(handle, 0);
  EXPECT_EQ(box.hwnd(), handle);
  EXPECT_EQ(box.window(), handle);
  EXPECT_EQ(platform.windows().windowCount(), 1);
  surface().controls().remove("txt");
  EXPECT_EQ(platform.windows().windowCount(), 0);
}

TEST_F(ControlWindows, HaveTheWindowOfTheirContainerAsParent) {
  auto& box = surface().add<host::TextBox>("txt");
  EXPECT_EQ(platform.windows().parent(box.window()), surface().window());
  EXPECT_EQ(platform.windows().parent(surface().window()), 0);
}

TEST_F(ControlWindows, AreEnabledAsTheirControlIs) {
  auto& box = surface().add<host::TextBox>("txt");
  EXPECT_TRUE(platform.windows().isEnabled(box.window()));
  box.SetEnabled(false);
  EXPECT_FALSE(platform.windows().isEnabled(box.window()));
}

TEST_F(ControlWindows, AnswerWhetherAPointOfTheScreenHitsThem) {
  auto& box = surface().add<host::TextBox>("txt", {10, 20, 50, 20});
  const auto hits = [&](int x, int y) {
    const auto packed = static_cast<std::intptr_t>((x & 0xFFFF) | (y & 0xFFFF) << 16);
    return platform.windows().send(box.window(), {host::wm::NcHitTest, 0, packed});
  };
  EXPECT_EQ(hits(10, 20), host::kHitClient);
  EXPECT_EQ(hits(59, 39), host::kHitClient);
  EXPECT_EQ(hits(60, 20), host::kHitNowhere);
  EXPECT_EQ(hits(-5, 25), host::kHitNowhere);
  box.SetLeft(-20);
  EXPECT_EQ(hits(-5, 25), host::kHitNowhere) << "what is clipped can't be hit";
  box.SetLeft(10);
  box.SetVisible(false);
  EXPECT_EQ(hits(15, 25), host::kHitNowhere);
}

class Forms : public testing::Test {
 protected:
  headless::HeadlessPlatform platform;
};

TEST_F(Forms, AreTopLevelWindowsThatCanBeFoundByTheirTitle) {
  const host::Form form(platform, "tooltip window");
  EXPECT_EQ(platform.windows().findByTitle("tooltip window"), form.window());
  EXPECT_EQ(platform.windows().parent(form.window()), 0);
  EXPECT_TRUE(platform.windows().isEnabled(form.window()));
}

TEST_F(Forms, RaiseThePostedKeysThatReachThem) {
  host::Form form(platform);
  Heard heard;
  const auto down = form.KeyDown.connect([&](std::int16_t& key, std::int16_t& shift) {
    heard.push_back("down " + std::to_string(key) + " " + std::to_string(shift));
  });
  const auto up = form.KeyUp.connect(
      [&](std::int16_t& key, std::int16_t&) { heard.push_back("up " + std::to_string(key)); });
  platform.windows().post(form.window(), {host::wm::KeyDown, host::key::F4, 0});
  platform.windows().post(form.window(), {host::wm::KeyUp, host::key::F4, 0});
  platform.windows().post(form.window(), {host::wm::Close, 0, 0});
  EXPECT_EQ(heard, Heard{});
  platform.processMessages();
  EXPECT_EQ(heard, (Heard{"down 115 0", "up 115"}));
}

TEST_F(Forms, MayGoInsideTheirOwnEvent) {
  auto form = std::make_unique<host::Form>(platform);
  const auto down = form->KeyDown.connect([&](std::int16_t&, std::int16_t&) { form.reset(); });
  platform.windows().post(form->window(), {host::wm::KeyDown, 65, 0});
  platform.windows().post(form->window(), {host::wm::KeyDown, 66, 0});
  platform.processMessages();
  EXPECT_EQ(platform.windows().windowCount(), 0);
}

}  // namespace
}  // namespace qrn::test
