#include <utility>

#include <solvane/service/Solvane.hpp>

#include <benchmark/benchmark.h>

#include "BenchPlatform.hpp"

namespace solvane::bench {
namespace {

// What one call costs the caller's thread when the list is moved in, beside the same with one
// record. The two take turns at going first: making a long list throws everything out of the
// caches, and whoever goes first pays for that.
void submitTracks(benchmark::State& state) {
  const BenchPlatform platform;
  Solvane solvane;
  const auto one = someTracks(1);
  const auto many = someTracks(static_cast<std::size_t>(state.range(0)));
  const auto submit = [&](std::vector<Track>& list) {
    const double seconds = secondsOf([&] { solvane.indexTracks(std::move(list)); });
    return std::pair{seconds, std::move(platform.dispatch->last())};
  };
  double forOne = 0;
  double forMany = 0;
  bool oneFirst = false;
  for (auto _ : state) {
    auto shortList = one;
    auto longList = many;
    oneFirst = !oneFirst;
    const auto first = submit(oneFirst ? shortList : longList);
    const auto second = submit(oneFirst ? longList : shortList);
    forOne += oneFirst ? first.first : second.first;
    const double seconds = oneFirst ? second.first : first.first;
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
