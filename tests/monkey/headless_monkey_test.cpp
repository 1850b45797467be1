#include <gtest/gtest.h>

#include "headless_hands.h"
#include "play/play.h"

namespace qrn::monkey {
namespace {

constexpr std::size_t kSteps = 5000;

class HeadlessMonkey : public testing::TestWithParam<int> {};

TEST_P(HeadlessMonkey, BreaksNoPromiseOfAPanel) {
  EXPECT_EQ(playSeed(makeHeadlessHands, Game::Panel, static_cast<std::uint64_t>(GetParam()), kSteps), "");
}

TEST_P(HeadlessMonkey, BreaksNoPromiseOfAStack) {
  EXPECT_EQ(playSeed(makeHeadlessHands, Game::Stack, static_cast<std::uint64_t>(GetParam()), kSteps), "");
}

INSTANTIATE_TEST_SUITE_P(Seed, HeadlessMonkey, testing::Range(1, 21));

TEST(HeadlessMonkey, DoesTheSameWithTheSameSeed) {
  for (const Game game : {Game::Panel, Game::Stack}) {
    const auto told = [game] {
      std::string all;
      play(makeHeadlessHands, game, randomSteps(game, 7, 300),
           [&](const std::string& note) { all += note + "\n"; });
      return all;
    };
    EXPECT_EQ(told(), told());
  }
}

}  // namespace
}  // namespace qrn::monkey
