#include "step.h"

#include <random>

#include "actions.h"

namespace qrn::monkey {

Steps randomSteps(Game game, std::uint64_t seed, std::size_t count) {
  // Action numbers with as many places as the action has weight.
  std::vector<std::uint16_t> lots;
  for (std::uint16_t i = 0; i < actions(game).size(); ++i)
    lots.insert(lots.end(), actions(game)[i].weight, i);

  std::mt19937_64 random(seed);
  Steps steps(count);
  for (Step& step : steps) {
    step.action = lots[random() % lots.size()];
    for (std::uint32_t& number : step.numbers) number = static_cast<std::uint32_t>(random());
  }
  return steps;
}

}  // namespace qrn::monkey
