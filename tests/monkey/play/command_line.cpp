#include "command_line.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "play.h"

namespace qrn::monkey {
namespace {

constexpr std::uint64_t kStepsOfASeed = 5000;

struct Wishes {
  std::uint64_t steps = 0;
  std::uint64_t seed = 1;
  bool trace = false;
  bool stack = false;

  Game game() const { return stack ? Game::Stack : Game::Panel; }
};

bool read(std::string_view text, std::uint64_t& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

// None for arguments that are not understood.
std::optional<Wishes> wishesOf(int argc, char** argv) {
  Wishes wishes;
  for (int i = 1; i < argc; ++i) {
    const std::string_view word = argv[i];
    if (word == "--trace" || word == "--stack") {
      (word == "--trace" ? wishes.trace : wishes.stack) = true;
      continue;
    }
    std::uint64_t* const number = word == "--steps"  ? &wishes.steps
                                  : word == "--seed" ? &wishes.seed
                                                     : nullptr;
    if (!number || ++i == argc || !read(argv[i], *number)) return std::nullopt;
  }
  return wishes;
}

void trace(const MakeHands& makeHands, Game game, std::uint64_t seed, std::size_t count) {
  const auto failure = play(makeHands, game, randomSteps(game, seed, count), [](const std::string& note) {
    std::printf("%s\n", note.c_str());
    std::fflush(stdout);
  });
  if (failure) std::printf("step %zu: %s\n", failure->step + 1, failure->complaint.details.c_str());
}

}  // namespace

std::optional<int> playFromCommandLine(int argc, char** argv, const MakeHands& makeHands) {
  const bool asked = std::any_of(argv + 1, argv + argc, [](const char* word) {
    return std::string_view(word) == "--steps" || std::string_view(word) == "--trace";
  });
  if (!asked) return std::nullopt;
  const auto wishes = wishesOf(argc, argv);
  if (!wishes) {
    std::fprintf(stderr, "usage: %s --steps N [--stack] [--seed S] [--trace]\n", argv[0]);
    return 2;
  }
  int failures = 0;
  std::uint64_t seed = wishes->seed;
  for (std::uint64_t done = 0; done < wishes->steps; ++seed) {
    const std::uint64_t count = std::min(kStepsOfASeed, wishes->steps - done);
    if (wishes->trace) trace(makeHands, wishes->game(), seed, count);
    const std::string report = playSeed(makeHands, wishes->game(), seed, count);
    if (!report.empty()) std::printf("%s", report.c_str()), std::fflush(stdout), ++failures;
    done += count;
  }
  std::printf("%llu steps, seeds %llu to %llu, %d of them failed\n",
              static_cast<unsigned long long>(wishes->steps), static_cast<unsigned long long>(wishes->seed),
              static_cast<unsigned long long>(seed - 1), failures);
  return failures > 0 ? 1 : 0;
}

}  // namespace qrn::monkey
