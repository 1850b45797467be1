#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "hooks/frmPostCode.h"
#include "runtime/conversions.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

using Codes = std::vector<std::int32_t>;

/// Notes the codes that arrive; a listener may do something at any of them.
struct Target final : host::CallTarget {
  void Callback(Variant& Code) override {
    codes.push_back(CLng(Code));
    // A copy, as the target itself may go inside.
    if (const auto call = listener) call();
  }
  Anchor& anchor() override { return anchor_; }

  Codes codes;
  std::function<void()> listener;
  Anchor anchor_;
};

class PostCode : public PanelTest {
 protected:
  void deliver() { platform.processMessages(); }

  std::unique_ptr<frmPostCode> form = std::make_unique<frmPostCode>(platform);
  std::unique_ptr<Target> target = std::make_unique<Target>();
};

TEST_F(PostCode, CallsBackOnlyFromTheMessageLoopAndOnce) {
  form->PostThisCode(*target, Variant(7));
  EXPECT_EQ(target->codes, Codes{});
  deliver();
  EXPECT_EQ(target->codes, Codes{7});
  deliver();
  EXPECT_EQ(target->codes, Codes{7});
}

TEST_F(PostCode, ArrivesInTheOrderOfTheMessageQueue) {
  Target second;
  frmPostCode other(platform);
  std::string order;
  target->listener = [&] { order += "first "; };
  second.listener = [&] { order += "second "; };
  form->PostThisCode(*target, Variant(1));
  other.PostThisCode(second, Variant(2));
  deliver();
  EXPECT_EQ(order, "first second ");
}

TEST_F(PostCode, CancelledNoCallHappens) {
  form->PostThisCode(*target, Variant(7));
  form->CancelPostCode();
  deliver();
  EXPECT_EQ(target->codes, Codes{});
}

TEST_F(PostCode, CancelledItHasNoWindowAndCanBeUsedAgain) {
  const int windows = platform.windows().windowCount();
  form->PostThisCode(*target, Variant(7));
  EXPECT_EQ(platform.windows().windowCount(), windows + 1);
  form->CancelPostCode();
  form->CancelPostCode();
  EXPECT_EQ(platform.windows().windowCount(), windows);
  form->PostThisCode(*target, Variant(8));
  deliver();
  EXPECT_EQ(target->codes, Codes{8});
}

TEST_F(PostCode, PostedAgainBeforeItArrivesTheLastTargetAndCodeCount) {
  Target second;
  form->PostThisCode(*target, Variant(1));
  form->PostThisCode(second, Variant(2));
  form->PostThisCode(second, Variant(3));
  deliver();
  EXPECT_EQ(target->codes, Codes{});
  EXPECT_EQ(second.codes, Codes{3});
}

TEST_F(PostCode, ATargetThatHasGoneIsNotCalled) {
  form->PostThisCode(*target, Variant(7));
  target.reset();
  deliver();
}

TEST_F(PostCode, TheFormMayGoBeforeOrInsideTheCall) {
  form->PostThisCode(*target, Variant(7));
  form.reset();
  deliver();
  EXPECT_EQ(target->codes, Codes{});

  form = std::make_unique<frmPostCode>(platform);
  target->listener = [&] { form.reset(); };
  form->PostThisCode(*target, Variant(8));
  deliver();
  EXPECT_EQ(target->codes, Codes{8});
}

TEST_F(PostCode, TheTargetMayGoInsideTheCall) {
  target->listener = [&] { target.reset(); };
  form->PostThisCode(*target, Variant(8));
  deliver();
  EXPECT_EQ(target, nullptr);
}

TEST_F(PostCode, CancellingInsideTheCallIsHarmless) {
  target->listener = [&] { form->CancelPostCode(); };
  form->PostThisCode(*target, Variant(7));
  deliver();
  EXPECT_EQ(target->codes, Codes{7});
}

TEST_F(PostCode, WhatTheCallPostsArrivesAfterIt) {
  target->listener = [&] {
    if (target->codes.size() < 3) form->PostThisCode(*target, Variant(9));
  };
  form->PostThisCode(*target, Variant(7));
  deliver();
  EXPECT_EQ(target->codes, (Codes{7, 9, 9}));
}

TEST_F(PostCode, OtherKeysOfItsWindowCallNobody) {
  form->PostThisCode(*target, Variant(7));
  const host::WindowHandle window = platform.windows().findByTitle("");
  ASSERT_NE(window, 0);
  platform.windows().send(window, {host::wm::KeyUp, host::key::Escape, 0});
  platform.windows().send(window, {host::wm::KeyDown, host::key::Cancel, 0});
  EXPECT_EQ(target->codes, Codes{});
  platform.windows().send(window, {host::wm::KeyUp, host::key::Cancel, 0});
  EXPECT_EQ(target->codes, Codes{7});
}

// ---- a panel as the target ----

TEST_F(PostCode, OfAPanelArrivesAsAClickOnItsFooter) {
  form->PostThisCode(panel(), Variant("2"));
  EXPECT_EQ(events(), Events{});
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(2)"}));
}

TEST_F(PostCode, OfAPanelIgnoresACodeThatIsNoNumber) {
  form->PostThisCode(panel(), Variant("two"));
  deliver();
  EXPECT_EQ(events(), Events{});
}

TEST_F(PostCode, OfAPanelThatHasGoneReachesNobody) {
  form->PostThisCode(panel(), Variant(2));
  panel_.reset();
  deliver();
}

}  // namespace
}  // namespace qrn::test
