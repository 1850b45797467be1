#include <benchmark/benchmark.h>

#include <QString>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "runtime/conversions.h"

// Values on their way from one type to another. The name before the slash is the work, the one behind it who
// does it.

namespace {

using Values = std::vector<double>;
constexpr int kDigits = 15;  // that a double shows

const Values& numbers() {
  static const Values made = [] {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> size(-3, 6), sign(-1, 1);
    Values result(4096);
    for (double& one : result) one = std::copysign(std::pow(10, size(random)), sign(random));
    return result;
  }();
  return made;
}

const std::vector<std::string>& wholeTexts() {
  static const std::vector<std::string> made = [] {
    std::vector<std::string> result;
    for (const double number : numbers()) result.push_back(std::to_string(std::lround(number * 100)));
    return result;
  }();
  return made;
}

template <class Each, class Work>
void eachOf(benchmark::State& state, const std::vector<Each>& values, Work&& work) {
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(work(values[next]));
    next = (next + 1) % values.size();
  }
}

void textToChars(benchmark::State& state) {
  std::array<char, 64> buffer;
  eachOf(state, numbers(), [&](double number) {
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::general, kDigits);
    return std::string(buffer.data(), end.ptr);
  });
}
void textOurs(benchmark::State& state) {
  eachOf(state, numbers(), [](double number) { return qrn::CStr(qrn::Variant(number)); });
}
void textSnprintf(benchmark::State& state) {
  std::array<char, 64> buffer;
  eachOf(state, numbers(), [&](double number) {
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.*g", kDigits, number);
    return std::string(buffer.data(), static_cast<std::size_t>(length));
  });
}
void textQString(benchmark::State& state) {
  eachOf(state, numbers(), [](double number) { return QString::number(number, 'g', kDigits); });
}
BENCHMARK(textToChars)->Name("a double as text/to_chars");
BENCHMARK(textOurs)->Name("a double as text/ours, CStr");
BENCHMARK(textSnprintf)->Name("a double as text/snprintf");
BENCHMARK(textQString)->Name("a double as text/QString");

void wholeFromChars(benchmark::State& state) {
  eachOf(state, wholeTexts(), [](const std::string& text) {
    std::int32_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
  });
}
void wholeOurs(benchmark::State& state) {
  const std::vector<qrn::Variant> values(wholeTexts().begin(), wholeTexts().end());
  eachOf(state, values, [](const qrn::Variant& value) { return qrn::CLng(value); });
}
void wholeStrtol(benchmark::State& state) {
  eachOf(state, wholeTexts(), [](const std::string& text) { return std::strtol(text.c_str(), nullptr, 10); });
}
void wholeQString(benchmark::State& state) {
  std::vector<QString> values;
  for (const std::string& text : wholeTexts()) values.push_back(QString::fromStdString(text));
  eachOf(state, values, [](const QString& text) { return text.toInt(); });
}
BENCHMARK(wholeFromChars)->Name("read a whole number/from_chars");
BENCHMARK(wholeOurs)->Name("read a whole number/ours, CLng");
BENCHMARK(wholeStrtol)->Name("read a whole number/strtol");
BENCHMARK(wholeQString)->Name("read a whole number/QString");

void roundLrint(benchmark::State& state) {
  eachOf(state, numbers(), [](double number) { return static_cast<std::int32_t>(std::lrint(number)); });
}
void roundOurs(benchmark::State& state) {
  const std::vector<qrn::Variant> values(numbers().begin(), numbers().end());
  eachOf(state, values, [](const qrn::Variant& value) { return qrn::CLng(value); });
}
BENCHMARK(roundLrint)->Name("a double as a whole number/lrint");
BENCHMARK(roundOurs)->Name("a double as a whole number/ours, CLng");

}  // namespace
