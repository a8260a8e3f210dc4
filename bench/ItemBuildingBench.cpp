#include <solvane/service/Solvane.hpp>

#include <benchmark/benchmark.h>

#include "AllocationCount.hpp"
#include "BenchPlatform.hpp"

namespace solvane::bench {
namespace {

constexpr std::size_t count = 20'000;

template <class Record>
std::vector<Record> records(auto make) {
  std::vector<Record> list;
  list.reserve(count);
  for (std::size_t i = 0; i < count; ++i) list.push_back(make(std::to_string(i)));
  return list;
}

// Builds the items of `list`, expiration dates included, on one thread, and copies the same records
// in between. `ratio_to_copy` compares the two within the run.
template <class Record>
void build(benchmark::State& state, const std::vector<Record>& list, auto index) {
  const BenchPlatform platform;
  Solvane solvane;
  double copying = 0;
  double building = 0;
  std::size_t copyAllocations = 0;
  std::size_t buildAllocations = 0;
  for (auto _ : state) {
    std::vector<Record> copy;
    copyAllocations -= allocationCount();
    copying += secondsOf([&] { copy = list; });
    copyAllocations += allocationCount();

    index(solvane, std::move(copy));
    buildAllocations -= allocationCount();
    const double seconds = secondsOf([&] { platform.dispatch->last()(); });
    buildAllocations += allocationCount();
    building += seconds;
    state.SetIterationTime(seconds);
    platform.index->last.clear();
    platform.dispatch->last() = nullptr;
  }
  const auto built = static_cast<double>(state.iterations()) * double{count};
  state.counters["items_per_s"] = built / building;
  state.counters["ratio_to_copy"] = building / copying;
  state.counters["allocs_per_item"] = static_cast<double>(buildAllocations) / built;
  state.counters["allocs_per_copy"] = static_cast<double>(copyAllocations) / built;
}

constexpr auto indexTracks = [](Solvane& solvane, std::vector<Track> list) {
  solvane.indexTracks(std::move(list));
};

void buildTracks(benchmark::State& state) { build<Track>(state, someTracks(count), indexTracks); }

void buildArtists(benchmark::State& state) {
  build<Artist>(state, records<Artist>([](const std::string& number) {
                  return testing::ArtistFields{.artistID = "artist/" + number,
                                               .artistName = "The Quartet Number " + number,
                                               .artistGenre = "Jazz"};
                }),
                [](Solvane& solvane, auto list) { solvane.indexArtists(std::move(list)); });
}

void buildAlbums(benchmark::State& state) {
  build<Album>(state, records<Album>([](const std::string& number) {
                 return testing::AlbumFields{.albumID = "album/" + number,
                                             .albumName = "The Collected Recordings " + number,
                                             .artistName = "An Artist of Some Fame"};
               }),
               [](Solvane& solvane, auto list) { solvane.indexAlbums(std::move(list)); });
}

void buildPlaylists(benchmark::State& state) {
  build<Playlist>(state, records<Playlist>([](const std::string& number) {
                    return testing::PlaylistFields{.playlistID = "playlist/" + number,
                                                   .playlistName = "Music for the night " + number};
                  }),
                  [](Solvane& solvane, auto list) { solvane.indexPlaylists(std::move(list)); });
}

// The same tracks, each with a megabyte of thumbnail: no byte of it is copied.
void buildTracksWithThumbnails(benchmark::State& state) {
  const Data thumbnail{std::vector<std::uint8_t>(1'000'000, std::uint8_t{7})};
  build<Track>(state, records<Track>([&](const std::string& number) {
                 return testing::TrackFields{.trackID = "track/" + number,
                                             .trackName = "The Song Number " + number,
                                             .artistName = "An Artist of Some Fame",
                                             .albumName = "The Collected Recordings",
                                             .genreName = "Jazz",
                                             .thumbnailData = thumbnail};
               }),
               indexTracks);
}

BENCHMARK(buildTracks)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(buildArtists)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(buildAlbums)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(buildPlaylists)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(buildTracksWithThumbnails)->UseManualTime()->Unit(benchmark::kMillisecond);

void readExpirationDate(benchmark::State& state) {
  const auto& calendar = *Platform::current().calendar;
  DateComponents twoWeeks;
  twoWeeks.weekOfYear = 2;
  for (auto _ : state) {
    benchmark::DoNotOptimize(calendar.dateByAddingComponents(twoWeeks, calendar.now()));
  }
}
BENCHMARK(readExpirationDate);

}  // namespace
}  // namespace solvane::bench
