#include <solvane/service/Solvane.hpp>

#include <benchmark/benchmark.h>

#include "BenchPlatform.hpp"

namespace solvane::bench {
namespace {

double secondsToSubmit(Solvane& solvane, const std::vector<Track>& tracks) {
  std::vector<Track> list = tracks;
  return secondsOf([&] { solvane.indexTracks(std::move(list)); });
}

// What one call costs the caller's thread when the list is moved in, beside the same with one
// record. A long list's first lines have left the cache by the time it is handed over.
void submitTracks(benchmark::State& state) {
  const BenchPlatform platform;
  Solvane solvane;
  const auto one = someTracks(1);
  const auto many = someTracks(static_cast<std::size_t>(state.range(0)));
  double forOne = 0;
  double forMany = 0;
  for (auto _ : state) {
    forOne += secondsToSubmit(solvane, one);
    platform.dispatch->last() = nullptr;
    const double seconds = secondsToSubmit(solvane, many);
    platform.dispatch->last() = nullptr;
    forMany += seconds;
    state.SetIterationTime(seconds);
  }
  state.counters["ratio_to_one"] = forMany / forOne;
}
BENCHMARK(submitTracks)
    ->RangeMultiplier(100)
    ->Range(1, 1'000'000)
    ->UseManualTime()
    ->Unit(benchmark::kNanosecond)
    ->Iterations(20);

}  // namespace
}  // namespace solvane::bench
