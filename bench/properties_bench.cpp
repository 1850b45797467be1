#include <benchmark/benchmark.h>

#include <QObject>
#include <QString>
#include <QVariant>
#include <string>

#include "display/QRNDisplay.h"
#include "library/library.h"
#include "platform/headless/headless_platform.h"

// A property that is written again and again with another value, in a row of a panel, and one that keeps its
// value.

namespace {

class Row {
 public:
  Row() {
    qrn::registerControls();
    panel_ = qrn::host::create<qrn::QRNDisplay>(site_);
    item_ = panel_->Items().AddParameter("damping", qrn::qrnTypeDouble);
    panel_->LayoutControls(false);
    panel_->realise();
  }
  qrn::QRNEdit& operator*() { return item_->Control(); }
  qrn::clsQRNParam& item() { return *item_; }

 private:
  /// Keeps nothing of what it is told, or it would grow all the time.
  class Site final : public qrn::headless::HeadlessSite {
   public:
    using HeadlessSite::HeadlessSite;
    void propertyChanged(qrn::host::UserControl&, std::string_view) override {}
  };

  qrn::headless::HeadlessPlatform platform_;
  Site site_{platform_};
  qrn::host::Owned<qrn::QRNDisplay> panel_;
  std::shared_ptr<qrn::clsQRNParam> item_;
};

const std::string kTexts[] = {"Damping time constant", "Damping of the measured value"};

template <class Write>
void alternately(benchmark::State& state, Write&& write) {
  bool second = false;
  for (auto _ : state) write(second = !second);
}

void writeString(benchmark::State& state) {
  std::string text;
  alternately(state, [&](bool second) {
    text = kTexts[second ? 1 : 0];
    benchmark::DoNotOptimize(text.data());
  });
}
void writeQObject(benchmark::State& state) {
  QObject object;
  const QString texts[] = {QString::fromStdString(kTexts[0]), QString::fromStdString(kTexts[1])};
  alternately(state, [&](bool second) { object.setProperty("caption", texts[second ? 1 : 0]); });
}
void writeCaption(benchmark::State& state) {
  Row row;
  alternately(state, [&](bool second) { (*row).SetLabelText(kTexts[second ? 1 : 0]); });
}
void writeCaptionUnseen(benchmark::State& state) {
  Row row;
  (*row).SetRedraw(false);
  alternately(state, [&](bool second) { (*row).SetLabelText(kTexts[second ? 1 : 0]); });
}
void writeToolTip(benchmark::State& state) {
  Row row;
  alternately(state, [&](bool second) { (*row).SetLabelToolTip(kTexts[second ? 1 : 0]); });
}
void writeSame(benchmark::State& state) {
  Row row;
  (*row).SetLabelText(kTexts[0]);
  for (auto _ : state) (*row).SetLabelText(kTexts[0]);
}
void writeState(benchmark::State& state) {
  Row row;
  alternately(state, [&](bool second) {
    row.item().SetParamState(second ? qrn::qrnStateNeeded : qrn::qrnStateNormal);
  });
}
BENCHMARK(writeString)->Name("write a property/a string");
BENCHMARK(writeQObject)->Name("write a property/QObject, by its name");
BENCHMARK(writeToolTip)->Name("write a property/ours, LabelToolTip");
BENCHMARK(writeCaption)->Name("write a property/ours, LabelText");
BENCHMARK(writeCaptionUnseen)->Name("write a property/ours, without Redraw");
BENCHMARK(writeSame)->Name("write a property/ours, the same again");
BENCHMARK(writeState)->Name("write a property/ours, ParamState");

}  // namespace
