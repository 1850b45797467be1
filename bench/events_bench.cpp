#include <benchmark/benchmark.h>

#include <QSignalMapper>
#include <functional>
#include <vector>

#include "base/event.h"

// Telling listeners of something, by an argument that they may change.

namespace {

// Nothing that a compiler could see through.
void listen(std::int32_t& item) { benchmark::DoNotOptimize(item); }

template <int Count>
void tellFunctions(benchmark::State& state) {
  const std::vector<std::function<void(std::int32_t&)>> listeners(Count, listen);
  std::int32_t item = 1;
  for (auto _ : state) {
    for (const auto& listener : listeners) listener(item);
  }
}
template <int Count>
void tellOurs(benchmark::State& state) {
  qrn::Event<std::int32_t&> event;
  std::vector<qrn::Connection> connections;
  for (int i = 0; i < Count; ++i) connections.push_back(event.connect(listen));
  std::int32_t item = 1;
  for (auto _ : state) event.raise(item);
}
template <int Count>
void tellQt(benchmark::State& state) {
  QSignalMapper sender;
  for (int i = 0; i < Count; ++i) {
    QObject::connect(&sender, &QSignalMapper::mappedInt, [](int item) { listen(item); });
  }
  for (auto _ : state) emit sender.mappedInt(1);
}
BENCHMARK(tellFunctions<1>)->Name("tell one listener/a function in a vector");
BENCHMARK(tellOurs<1>)->Name("tell one listener/ours");
BENCHMARK(tellQt<1>)->Name("tell one listener/Qt signal");
BENCHMARK(tellFunctions<10>)->Name("tell ten listeners/functions in a vector");
BENCHMARK(tellOurs<10>)->Name("tell ten listeners/ours");
BENCHMARK(tellQt<10>)->Name("tell ten listeners/Qt signal");

void connectOurs(benchmark::State& state) {
  qrn::Event<std::int32_t&> event;
  for (auto _ : state) {
    const qrn::Connection connection = event.connect(listen);
    benchmark::DoNotOptimize(&connection);
  }
}
void connectQt(benchmark::State& state) {
  QSignalMapper sender;
  for (auto _ : state) {
    const auto connection =
        QObject::connect(&sender, &QSignalMapper::mappedInt, [](int item) { listen(item); });
    QObject::disconnect(connection);
  }
}
BENCHMARK(connectQt)->Name("connect and disconnect/Qt signal");
BENCHMARK(connectOurs)->Name("connect and disconnect/ours");

}  // namespace
