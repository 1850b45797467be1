#include "play.h"

#include <exception>
#include <sstream>

#include "actions.h"
#include "meddling.h"
#include "rules.h"
#include "runtime/errors.h"
#include "shrink.h"

namespace qrn::monkey {
namespace {

constexpr Size kFirstSize{400, 300};

// A host may be told of its mistakes. A user makes none that anybody has to hear of; only what a listener
// raised on purpose comes out there.
void makeStep(Stage& stage, const Step& step) {
  const Actions& all = actions(stage.game());
  const Action& action = all[step.action % all.size()];
  if (action.needs == Needs::Panel && !stage.panel()) return;
  Numbers numbers(step);
  try {
    action.make(stage, numbers);
  } catch (const RunTimeError& error) {
    stage.note("    raised ", error.number(), " (", error.source(), "): ", error.description());
    stage.errorCame();
    if (action.actor == Actor::User && error.number() != kListenersError)
      stage.complain("what a user does raises no error",
                     std::string(action.name) + ": " + error.source() + ": " + error.description());
  } catch (const std::exception& error) {
    stage.complain("only run-time errors are raised", std::string(action.name) + ": " + error.what());
  }
  const std::string uncaught = stage.hands().uncaughtError();
  if (!uncaught.empty() && action.actor == Actor::User)
    stage.complain("what a user does raises no error", uncaught);
}

}  // namespace

std::optional<Failure> play(const MakeHands& makeHands, Game game, const Steps& steps,
                            const Stage::Notes& notes) {
  const auto hands = makeHands();
  Stage stage(*hands, game, notes);
  for (std::size_t i = 0; i < steps.size(); ++i) {
    if (!stage.surface()) stage.open(kFirstSize, true);
    beforeStep(stage);
    makeStep(stage, steps[i]);
    checkRules(stage);
    if (stage.complaint()) return Failure{i, *stage.complaint()};
  }
  return std::nullopt;
}

std::string playSeed(const MakeHands& makeHands, Game game, std::uint64_t seed, std::size_t count) {
  Steps steps = randomSteps(game, seed, count);
  const auto failure = play(makeHands, game, steps);
  if (!failure) return {};
  steps.resize(failure->step + 1);
  const std::string& rule = failure->complaint.rule;
  const Steps few = shrunk(steps, [&](const Steps& tried) {
    const auto again = play(makeHands, game, tried);
    return again && again->complaint.rule == rule;
  });
  std::ostringstream report;
  report << "seed " << seed << ", step " << failure->step + 1 << ": broken: " << rule << "\n  "
         << failure->complaint.details << "\nof " << steps.size() << " steps these " << few.size()
         << " are needed, on a " << (game == Game::Stack ? "stack" : "panel") << " of " << kFirstSize.width
         << " by " << kFirstSize.height << ":\n";
  const auto last =
      play(makeHands, game, few, [&](const std::string& note) { report << "  " << note << "\n"; });
  if (last) report << "  -> " << last->complaint.details << "\n";
  return report.str();
}

}  // namespace qrn::monkey
