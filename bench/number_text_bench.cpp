#include <benchmark/benchmark.h>

#include <QLocale>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "runtime/conversions.h"
#include "runtime/format.h"

// A number on its way to the screen with three decimals, and back. The name before the slash is the work, the
// one behind it who does it.

namespace {

constexpr int kDecimals = 3;

// Measured values of all sizes, not one that a branch predictor learns by heart.
const std::vector<double>& numbers() {
  static const std::vector<double> made = [] {
    std::mt19937 random(20240517);
    std::uniform_real_distribution<double> size(-3, 6), sign(-1, 1);
    std::vector<double> result(4096);
    for (double& one : result) one = std::copysign(std::pow(10, size(random)), sign(random));
    return result;
  }();
  return made;
}

const std::vector<std::string>& texts() {
  static const std::vector<std::string> made = [] {
    std::vector<std::string> result;
    for (const double number : numbers()) {
      char text[64];
      std::snprintf(text, sizeof text, "%.*f", kDecimals, number);
      result.emplace_back(text);
    }
    return result;
  }();
  return made;
}

template <class Values, class Work>
void eachOf(benchmark::State& state, const Values& values, Work&& work) {
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(work(values[next]));
    next = (next + 1) % values.size();
  }
}

void formatOurs(benchmark::State& state) {
  const qrn::CompiledFormat format("0.000");
  eachOf(state, numbers(), [&](double number) { return format.apply(qrn::Variant(number)); });
}
void formatToChars(benchmark::State& state) {
  std::array<char, 64> buffer;
  eachOf(state, numbers(), [&](double number) {
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::fixed, kDecimals);
    return std::string(buffer.data(), end.ptr);
  });
}
void formatSnprintf(benchmark::State& state) {
  std::array<char, 64> buffer;
  eachOf(state, numbers(), [&](double number) {
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.*f", kDecimals, number);
    return std::string(buffer.data(), static_cast<std::size_t>(length));
  });
}
void formatQLocale(benchmark::State& state) {
  const QLocale locale(QLocale::C);
  eachOf(state, numbers(), [&](double number) { return locale.toString(number, 'f', kDecimals); });
}
BENCHMARK(formatToChars)->Name("format 0.000/to_chars");
BENCHMARK(formatOurs)->Name("format 0.000/ours");
BENCHMARK(formatSnprintf)->Name("format 0.000/snprintf");
BENCHMARK(formatQLocale)->Name("format 0.000/QLocale");

void readOurs(benchmark::State& state) {
  eachOf(state, texts(), [](const std::string& text) { return qrn::doubleFromText(text); });
}
void readOursFromVariant(benchmark::State& state) {
  std::vector<qrn::Variant> values(texts().begin(), texts().end());
  eachOf(state, values, [](const qrn::Variant& value) { return qrn::CDbl(value); });
}
void readFromChars(benchmark::State& state) {
  eachOf(state, texts(), [](const std::string& text) {
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
  });
}
void readStrtod(benchmark::State& state) {
  eachOf(state, texts(), [](const std::string& text) { return std::strtod(text.c_str(), nullptr); });
}
void readQLocale(benchmark::State& state) {
  const QLocale locale(QLocale::C);
  std::vector<QString> values;
  for (const std::string& text : texts()) values.push_back(QString::fromStdString(text));
  eachOf(state, values, [&](const QString& text) { return locale.toDouble(text); });
}
BENCHMARK(readFromChars)->Name("read a double/from_chars");
BENCHMARK(readOurs)->Name("read a double/ours");
BENCHMARK(readOursFromVariant)->Name("read a double/ours, from a Variant");
BENCHMARK(readStrtod)->Name("read a double/strtod");
BENCHMARK(readQLocale)->Name("read a double/QLocale");

}  // namespace
