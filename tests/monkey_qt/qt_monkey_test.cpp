#include <gtest/gtest.h>

#include "play/play.h"
#include "qt_hands.h"

namespace qrn::monkey {
namespace {

constexpr std::size_t kSteps = 500;

class QtMonkey : public testing::TestWithParam<int> {};

TEST_P(QtMonkey, BreaksNoPromiseOfAPanel) {
  EXPECT_EQ(playSeed(makeQtHands, Game::Panel, static_cast<std::uint64_t>(GetParam()), kSteps), "");
}

TEST_P(QtMonkey, BreaksNoPromiseOfAStack) {
  EXPECT_EQ(playSeed(makeQtHands, Game::Stack, static_cast<std::uint64_t>(GetParam()), kSteps), "");
}

INSTANTIATE_TEST_SUITE_P(Seed, QtMonkey, testing::Range(1, 11));

}  // namespace
}  // namespace qrn::monkey
