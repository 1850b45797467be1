#include <gtest/gtest.h>

#include <algorithm>

#include "headless_hands.h"
#include "play/play.h"
#include "play/shrink.h"

namespace qrn::monkey {
namespace {

TEST(Shrinking, LeavesTheTwoStepsOfAThousandThatAFailureNeeds) {
  Steps steps(1000);
  for (std::size_t i = 0; i < steps.size(); ++i) steps[i].numbers[0] = static_cast<std::uint32_t>(i);
  const auto holds = [](const Steps& tried, std::uint32_t number) {
    return std::any_of(tried.begin(), tried.end(), [&](const Step& one) { return one.numbers[0] == number; });
  };
  int asked = 0;
  const Steps few = shrunk(steps, [&](const Steps& tried) {
    ++asked;
    return holds(tried, 17) && holds(tried, 801);
  });
  EXPECT_EQ(few, (Steps{{0, {17}}, {0, {801}}}));
  EXPECT_LT(asked, 200);
}

TEST(Shrinking, MakesNumbersPlainThatDoNotMatter) {
  const Steps few = shrunk({{3, {5, 6, 7, 8}}},
                           [](const Steps& tried) { return tried.size() == 1 && tried[0].numbers[2] == 7; });
  EXPECT_EQ(few, (Steps{{3, {0, 0, 7, 0}}}));
}

TEST(Shrinking, KeepsTheOrderOfSteps) {
  Steps steps;
  for (std::uint16_t i = 0; i < 100; ++i) steps.push_back({i, {}});
  const Steps few = shrunk(steps, [](const Steps& tried) {
    return std::count_if(tried.begin(), tried.end(), [](const Step& one) { return one.action % 40 == 1; }) ==
           3;
  });
  EXPECT_EQ(few, (Steps{{1, {}}, {41, {}}, {81, {}}}));
}

/// After they have painted, these hands break a promise at the next change of size.
class ClumsyHands final : public HeadlessHands {
 public:
  void paint() override {
    HeadlessHands::paint();
    painted_ = shown();
  }
  void resize(Size size) override {
    HeadlessHands::resize(size);
    if (!painted_ || !shown()) return;
    auto& panel = static_cast<QRNDisplay&>(surface());
    panel.ControlsContainer().scrollTo(panel.sbrVertical().Value() + 7);
  }

 private:
  bool painted_ = false;
};

TEST(Shrinking, TellsTheSeedAndTheStepsThatBreakAPromise) {
  const auto clumsy = [] { return std::make_unique<ClumsyHands>(); };
  const std::string report = playSeed(clumsy, Game::Panel, 5, 2000);
  const auto tells = [&](const char* what) { return report.find(what) != std::string::npos; };
  EXPECT_TRUE(tells("seed 5, step ")) << report;
  EXPECT_TRUE(tells("the items are scrolled as the bar says")) << report;
  EXPECT_TRUE(tells("these 2 are needed")) << report;
  EXPECT_TRUE(tells("  the panel is painted\n  the window becomes 400 by 300\n")) << report;
}

}  // namespace
}  // namespace qrn::monkey
