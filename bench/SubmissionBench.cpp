#include <solvane/service/Solvane.hpp>

#include <benchmark/benchmark.h>

#include "BenchPlatform.hpp"

namespace solvane::bench {
namespace {

// What one call costs the caller's thread when the list is moved in: the same at every length.
void submitTracks(benchmark::State& state) {
  const BenchPlatform platform;
  Solvane solvane;
  auto tracks = someTracks(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    std::vector<Track> list = tracks;
    state.SetIterationTime(secondsOf([&] { solvane.indexTracks(std::move(list)); }));
    platform.dispatch->last() = nullptr;
  }
}
BENCHMARK(submitTracks)
    ->RangeMultiplier(100)
    ->Range(1, 1'000'000)
    ->UseManualTime()
    ->Unit(benchmark::kNanosecond)
    ->MinTime(0.000'05);

}  // namespace
}  // namespace solvane::bench
