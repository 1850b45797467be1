#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <vector>

#include "display/QRNDisplay.h"
#include "library/library.h"
#include "platform/headless/headless_platform.h"

// A value that ticks in a row which is scrolled out of view, as most of a thousand do.

namespace {

class Panel {
 public:
  Panel() {
    qrn::registerControls();
    panel_ = qrn::host::create<qrn::QRNDisplay>(site_);
    panel_->SetTallContent(true);
    for (int i = 0; i < 1000; ++i) {
      items_.push_back(panel_->Items().AddParameter("", qrn::qrnTypeDouble));
      items_.back()->Control().SetValueFormat("0.000");
    }
    panel_->LayoutControls(false);
    panel_->realise();
  }
  /// None of the first hundred, which a panel may show.
  qrn::clsQRNParam& offScreen(std::size_t index) { return *items_[100 + index % 900]; }

 private:
  qrn::headless::HeadlessPlatform platform_;
  qrn::headless::HeadlessSite site_{platform_};
  qrn::host::Owned<qrn::QRNDisplay> panel_;
  std::vector<std::shared_ptr<qrn::clsQRNParam>> items_;
};

double valueOf(std::size_t tick) { return 4.0 + static_cast<double>(tick % 1600) / 100; }

// The text alone, as a program would make it that keeps its values in a table of strings.
void showPlain(benchmark::State& state) {
  std::vector<std::string> texts(1000);
  std::size_t tick = 0;
  for (auto _ : state) {
    char text[32];
    const int length = std::snprintf(text, sizeof text, "%.3f", valueOf(tick));
    texts[100 + tick % 900].assign(text, static_cast<std::size_t>(length));
    ++tick;
  }
  benchmark::DoNotOptimize(texts.data());
}

void showInRow(benchmark::State& state) {
  Panel panel;
  std::size_t tick = 0;
  for (auto _ : state) {
    panel.offScreen(tick).Control().SetValue(qrn::Variant(valueOf(tick)));
    ++tick;
  }
}

void showInItem(benchmark::State& state) {
  Panel panel;
  std::size_t tick = 0;
  for (auto _ : state) {
    panel.offScreen(tick).SetParamValue(qrn::Variant(valueOf(tick)));
    ++tick;
  }
}

BENCHMARK(showPlain)->Name("show a value off screen/snprintf into a string");
BENCHMARK(showInRow)->Name("show a value off screen/ours, of a row");
BENCHMARK(showInItem)->Name("show a value off screen/ours, of an item");

}  // namespace
