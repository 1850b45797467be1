#include <benchmark/benchmark.h>
#include <fnmatch.h>

#include <QRegularExpression>
#include <QString>
#include <regex>
#include <string>
#include <vector>

#include "runtime/like.h"

// A typed text against a pattern, as a row looks at its characters. The same pattern in each notation.

namespace {

constexpr const char* kLike = "[A-Z][A-Z]-###*[!0-9]";
constexpr const char* kGlob = "[A-Z][A-Z]-[0-9][0-9][0-9]*[!0-9]";
constexpr const char* kRegular = "^[A-Z][A-Z]-[0-9]{3}.*[^0-9]$";

const std::vector<std::string>& texts() {
  static const std::vector<std::string> made = {"PT-101 inlet", "TT-2",     "FI-330 flow of the second line",
                                                "pt-101 inlet", "LC-451 7", "QX-999x"};
  return made;
}

template <class Each, class Matches>
void eachText(benchmark::State& state, const std::vector<Each>& values, Matches&& matches) {
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(matches(values[next]));
    next = (next + 1) % values.size();
  }
}

void matchGlob(benchmark::State& state) {
  eachText(state, texts(), [](const std::string& text) { return fnmatch(kGlob, text.c_str(), 0) == 0; });
}
void matchOurs(benchmark::State& state) {
  const qrn::LikePattern pattern(kLike);
  eachText(state, texts(), [&](const std::string& text) { return pattern.matches(text); });
}
void matchOursOnce(benchmark::State& state) {
  eachText(state, texts(), [](const std::string& text) { return qrn::Like(text, kLike); });
}
void matchQt(benchmark::State& state) {
  const QRegularExpression pattern{QString(kRegular)};
  std::vector<QString> values;
  for (const std::string& text : texts()) values.push_back(QString::fromStdString(text));
  eachText(state, values, [&](const QString& text) { return pattern.match(text).hasMatch(); });
}
void matchRegex(benchmark::State& state) {
  const std::regex pattern(kRegular);
  eachText(state, texts(), [&](const std::string& text) { return std::regex_match(text, pattern); });
}
BENCHMARK(matchGlob)->Name("match a pattern/fnmatch");
BENCHMARK(matchOurs)->Name("match a pattern/ours, LikePattern");
BENCHMARK(matchOursOnce)->Name("match a pattern/ours, Like");
BENCHMARK(matchQt)->Name("match a pattern/QRegularExpression");
BENCHMARK(matchRegex)->Name("match a pattern/std::regex");

}  // namespace
