#include <gtest/gtest.h>

#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "controls/raised.h"
#include "diag/DebugTrace.h"
#include "diag/QRNErrors.h"
#include "platform/headless/headless_platform.h"
#include "runtime/conversions.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

struct Thing final : Object {
  std::string_view typeName() const override { return "Thing"; }
};

TEST(Errors, TheStandardNumbersHaveTheirTexts) {
  const std::vector<std::pair<std::uint32_t, std::string>> texts{
      {0x80040001, "Object is not initialized."},     {0x80040002, "Object is already initialized."},
      {0x80040003, "Object not in collection."},      {382, "Let/Set not supported at run time."},
      {383, "Let/Set not supported at design time."}, {393, "Get not supported at run time."},
      {394, "Get not supported at design time."},
  };
  for (const auto& [number, text] : texts) EXPECT_EQ(ErrorText(static_cast<std::int32_t>(number)), text);
}

TEST(Errors, AnyOtherNumberHasNoText) {
  for (const std::int32_t number : {0, 5, 13, 381, 384, 392, 395, kObjectError, kObjectError + 4, -1}) {
    EXPECT_EQ(ErrorText(number), "") << number;
  }
}

TEST(Errors, TheWrongKindOfObjectHasItsMessage) {
  EXPECT_EQ(kWrongKindOfObject, "The Object has the wrong kind for that action!");
}

TEST(Errors, AreRaisedWithoutSourceAndWithTheStandardTextUnlessGiven) {
  const Raised raised = raisedBy([] { RaiseError(383); });
  EXPECT_EQ(raised.number, 383);
  EXPECT_EQ(raised.source, "");
  EXPECT_EQ(raised.description, "Let/Set not supported at design time.");
}

TEST(Errors, AnUnknownNumberIsRaisedWithAnEmptyDescription) {
  const Raised raised = raisedBy([] { RaiseError(12345); });
  EXPECT_EQ(raised.number, 12345);
  EXPECT_EQ(raised.description, "");
}

TEST(Errors, AnObjectStandsForItsTypeName) {
  const Raised raised = raisedBy([] { RaiseError(1, Thing(), Variant(std::make_shared<Thing>())); });
  EXPECT_EQ(raised.source, "Thing");
  EXPECT_EQ(raised.description, "Thing");
}

TEST(Errors, AnythingElseStandsForItsText) {
  const Raised raised = raisedBy([] { RaiseError(1, Variant(std::int32_t{42}), Variant(true)); });
  EXPECT_EQ(raised.source, "42");
  EXPECT_EQ(raised.description, CStr(Variant(true)));
}

TEST(Errors, AGivenDescriptionReplacesTheStandardTextEvenWhenEmpty) {
  EXPECT_EQ(raisedBy([] { RaiseError(394, "source", "mine"); }).description, "mine");
  EXPECT_EQ(raisedBy([] { RaiseError(394, "source", ""); }).description, "");
}

TEST(Errors, ARowIsNamedByItsType) {
  registerControls();
  headless::HeadlessPlatform platform;
  headless::HeadlessSite site(platform);
  const auto row = host::create<QRNEdit>(site);
  const Raised raised = raisedBy([&] { RaiseError(394, *row); });
  EXPECT_EQ(raised.number, 394);
  EXPECT_EQ(raised.source, "QRNEdit");
  EXPECT_EQ(raised.description, "Get not supported at design time.");
}

// ---- the trace ----

class ViewerWindow final : public host::WindowOwner {
 public:
  explicit ViewerWindow(std::string title) : title_(std::move(title)) {}
  std::intptr_t windowMessage(const host::Message&) override { return 0; }
  bool windowEnabled() const override { return true; }
  host::WindowHandle parentWindow() const override { return 0; }
  std::string_view windowTitle() const override { return title_; }
  void windowInvalidated() override {}

 private:
  std::string title_;
};

struct Shown {
  std::string method, source, message;
  std::int32_t level = 0;
};

class Viewer final : public host::AutomationObject {
 public:
  Viewer(std::vector<Shown>& lines, int& alive, std::exception_ptr broken)
      : lines_(lines), alive_(alive), broken_(std::move(broken)) {
    ++alive_;
  }
  ~Viewer() override { --alive_; }
  std::string_view typeName() const override { return "Viewer"; }
  Variant call(std::string_view method, std::span<const Variant> arguments) override {
    if (broken_) std::rethrow_exception(broken_);
    lines_.push_back({std::string(method), CStr(arguments[0]), CStr(arguments[2]), CLng(arguments[1])});
    return {};
  }

 private:
  std::vector<Shown>& lines_;
  int& alive_;
  std::exception_ptr broken_;
};

class Trace : public ::testing::Test {
 protected:
  Trace() {
    platform.provideObject("ZVDebugTrace.clsDebugTrace", [this]() -> std::shared_ptr<host::AutomationObject> {
      ++made;
      if (refuses) raiseRunTimeError(kCannotCreateObject);
      return std::make_shared<Viewer>(lines, alive, broken);
    });
  }
  void openWindow(std::string title) {
    window_ = std::make_unique<ViewerWindow>(std::move(title));
    platform.windows().create(*window_);
  }

  headless::HeadlessPlatform platform;
  std::vector<Shown> lines;
  int made = 0;
  int alive = 0;
  bool refuses = false;
  std::exception_ptr broken;

 private:
  std::unique_ptr<ViewerWindow> window_;
};

TEST_F(Trace, MakesNoObjectWhenNoViewerRuns) {
  DebugTrace("Close Page done", 1);
  EXPECT_EQ(made, 0);
}

TEST_F(Trace, MakesNoObjectForAWindowOfAnotherTitle) {
  openWindow("ZOLVEN Debug Tracer 2");
  DebugTrace("Close Page done", 1);
  EXPECT_EQ(made, 0);
}

TEST_F(Trace, ShowsSourceLevelAndMessage) {
  openWindow("ZOLVEN Debug Tracer");
  DebugTrace("AppGotFocus", 3);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].method, "ShowData");
  EXPECT_EQ(lines[0].source, "headless: ");
  EXPECT_EQ(lines[0].level, 3);
  EXPECT_EQ(lines[0].message, "AppGotFocus");
}

TEST_F(Trace, MakesAndReleasesAnObjectForEachLine) {
  openWindow("ZOLVEN Debug Tracer");
  DebugTrace("one", 1);
  DebugTrace("two", 1);
  EXPECT_EQ(made, 2);
  EXPECT_EQ(alive, 0);
}

TEST_F(Trace, SkipsTheLineWhenTheViewerCannotBeMade) {
  openWindow("ZOLVEN Debug Tracer");
  refuses = true;
  EXPECT_EQ(raisedBy([] { DebugTrace("AppGotFocus", 1); }).number, 0);
  EXPECT_EQ(made, 1);
}

TEST_F(Trace, SkipsTheLineWhateverTheViewerFailsWith) {
  openWindow("ZOLVEN Debug Tracer");
  for (const auto& failure : {std::make_exception_ptr(RunTimeError(438, "Viewer", "No such method")),
                              std::make_exception_ptr(std::logic_error("no run-time error"))}) {
    broken = failure;
    EXPECT_NO_THROW(DebugTrace("AppGotFocus", 1));
    EXPECT_EQ(alive, 0);
  }
}

TEST(TraceWithoutPlatform, DoesNothing) {
  EXPECT_EQ(raisedBy([] { DebugTrace("nobody listens", 1); }).number, 0);
}

}  // namespace
}  // namespace qrn::test
