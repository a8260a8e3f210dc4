#include <atomic>
#include <map>
#include <random>
#include <thread>

#include <solvane/posix/PosixCalendar.hpp>
#include <solvane/posix/PosixDispatch.hpp>
#include <solvane/service/Solvane.hpp>

#include <support/RecordedPlatform.hpp>

namespace solvane {
namespace {

using Strings = std::vector<std::string>;

// A host's threads, each issuing random operations and noting what must arrive: a list under the
// name of its first element, which no other list has.
class HostThread {
 public:
  HostThread(unsigned number, std::shared_ptr<Solvane> solvane)
      : _random(number), _number(number), _solvane(std::move(solvane)) {}

  void issue(int count) {
    for (int i = 0; i < count; ++i) issueOne();
  }

  [[nodiscard]] const std::map<std::string, Strings>& expected() const { return _expected; }
  [[nodiscard]] std::size_t clearings() const { return _clearings; }
  [[nodiscard]] std::size_t singles() const { return _singles; }
  [[nodiscard]] std::size_t callbacks() const { return _callbacks; }

 private:
  void issueOne() {
    const Strings names = newList();
    switch (_random() % 16) {
      case 0:
        return _solvane->indexTracks(records<Track, testing::TrackFields>(names));
      case 1:
        return _solvane->indexTracks(objects<SearchAPITrack>(names, &SearchAPITrack::setTrackID),
                                     "domain");
      case 2:
        return _solvane->indexArtists(records<Artist, testing::ArtistFields>(names));
      case 3:
        return _solvane->indexArtists(
            objects<SearchAPIArtist>(names, &SearchAPIArtist::setArtistID));
      case 4:
        return _solvane->indexAlbums(records<Album, testing::AlbumFields>(names));
      case 5:
        return _solvane->indexAlbums(objects<SearchAPIAlbum>(names, &SearchAPIAlbum::setAlbumID));
      case 6:
        return _solvane->indexPlaylists(records<Playlist, testing::PlaylistFields>(names));
      case 7:
        return _solvane->deleteTracks(names);
      case 8:
        return _solvane->deleteAlbums(names);
      case 9:
        return _solvane->removePlaylists(names);
      case 10:
        return _solvane->deleteAllItemsWithDomains(names);
      case 11:
        return _solvane->deleteArtists(names);
      case 12:
        return _solvane->indexPlaylists(
            objects<SearchAPIPlaylist>(names, &SearchAPIPlaylist::setPlaylistID));
      case 13:
        return clearPlaylists(names.front());
      case 14:
        return issueOneArtist(names.front(), true);
      default:
        return issueOneArtist(names.front(), false);
    }
  }

  void issueOneArtist(const std::string& name, bool asObject) {
    _expected[name] = {name};
    ++_singles;
    const auto count = [this, name](const std::string& identifier) {
      if (identifier == name) ++_callbacks;
    };
    if (asObject) {
      const auto artist = std::make_shared<SearchAPIArtist>();
      artist->setArtistID(name);
      _solvane->indexArtist(artist, count);
    } else {
      _solvane->indexArtist(Artist{testing::ArtistFields{.artistID = name}}, count);
    }
  }

  // Its list is always the same, so it is counted.
  void clearPlaylists(const std::string& unused) {
    _expected.erase(unused);
    ++_clearings;
    _solvane->deleteAllPlaylists();
  }

  Strings newList() {
    Strings names;
    const auto prefix = std::to_string(_number) + "/" + std::to_string(_next++) + "/";
    for (std::size_t i = 0, size = 1 + _random() % 20; i < size; ++i) {
      names.push_back(prefix + std::to_string(i));
    }
    _expected[names.front()] = names;
    return names;
  }

  template <class Record, class Fields>
  static std::vector<Record> records(const Strings& names) {
    std::vector<Record> list;
    for (const auto& name : names) list.push_back(Record{Fields{name}});
    return list;
  }

  template <class Object>
  static std::vector<std::shared_ptr<Object>> objects(
      const Strings& names, void (Object::*setIdentifier)(std::optional<std::string>)) {
    std::vector<std::shared_ptr<Object>> list;
    for (const auto& name : names) {
      list.push_back(std::make_shared<Object>());
      ((*list.back()).*setIdentifier)(name);
    }
    return list;
  }

  std::mt19937 _random;
  unsigned _number;
  std::shared_ptr<Solvane> _solvane;
  std::map<std::string, Strings> _expected;
  std::size_t _next = 0;
  std::size_t _singles = 0;
  std::size_t _clearings = 0;
  std::atomic<std::size_t> _callbacks = 0;
};

class Conformance : public RecordedPlatform {};

TEST_F(Conformance, OfManyThreadsAtOnceDeliversEveryListExactlyOnceWholeAndInOrder) {
  const testing::ScopedPlatform posix{{.calendar = std::make_shared<PosixCalendar>(),
                                       .dispatch = std::make_shared<PosixDispatch>()}};
  const auto solvane = std::make_shared<Solvane>();
  std::vector<std::unique_ptr<HostThread>> hosts;
  for (unsigned number = 0; number < 8; ++number) {
    hosts.push_back(std::make_unique<HostThread>(number, solvane));
  }
  {
    std::vector<std::jthread> threads;
    for (const auto& host : hosts) threads.emplace_back([&host] { host->issue(500); });
  }
  ASSERT_TRUE(PosixDispatch::waitUntilIdle(std::chrono::minutes{2}));

  std::map<std::string, Strings> arrived;
  std::size_t arrivedClearings = 0;
  for (const auto& call : index->calls()) {
    Strings names = call.strings;
    if (names == Strings{"playlists"}) {
      ++arrivedClearings;
      continue;
    }
    for (const auto& item : call.items) names.push_back(item.uniqueIdentifier);
    ASSERT_FALSE(names.empty());
    EXPECT_TRUE(arrived.emplace(names.front(), names).second) << names.front() << " came twice";
  }
  std::map<std::string, Strings> expected;
  std::size_t clearings = 0;
  for (const auto& host : hosts) {
    expected.insert(host->expected().begin(), host->expected().end());
    EXPECT_EQ(host->callbacks(), host->singles());
    clearings += host->clearings();
  }
  EXPECT_EQ(expected.size() + clearings, 4000U);
  EXPECT_EQ(arrivedClearings, clearings);
  EXPECT_EQ(arrived, expected);
}

}  // namespace
}  // namespace solvane
