#include <cstdio>
#include <filesystem>
#include <string>

#include <solvane/posix/PosixDispatch.hpp>
#include <solvane/solvane.hpp>
#include <solvane/sqlite/SQLiteIndex.hpp>
#include <solvane/testing/fields.hpp>

#include <unistd.h>

using namespace std::chrono;

int main() {
  const auto folder =
      std::filesystem::temp_directory_path() / ("solvane-consumer-" + std::to_string(::getpid()));
  bool found = false;
  if (auto index = solvane::SQLiteIndex::open(folder / "index.db")) {
    solvane::Platform::install({.searchableIndex = *index});
    solvane::Solvane{}.indexTracks(
        {solvane::Track{"track/42", "So What", 545.0, 1, "Miles Davis", "Kind of Blue",
                        sys_days{1959y / 8 / 17}, "Jazz", std::nullopt},
         solvane::testing::TrackFields{.trackID = "track/43", .trackName = "Blue in Green"}});
    solvane::PosixDispatch::waitUntilIdle();
    (*index)->waitUntilIdle();
    const auto hits = (*index)->search("so wh");
    found = hits && hits->size() == 1 && hits->front().item.uniqueIdentifier == "track/42";
  }
  std::filesystem::remove_all(folder);
  std::puts(found ? "found" : "not found");
  return found ? 0 : 1;
}
