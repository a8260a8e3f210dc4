#include "Publisher.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <utility>
#include <variant>

#include <solvane/platform/Platform.hpp>
#include <solvane/posix/PosixDispatch.hpp>

namespace solvane::tool {
namespace {

constexpr std::size_t chunkSize = 1000;

using Domain = std::optional<std::string>;

void submit(Solvane& service, std::vector<Track> tracks, const Domain& domainID) {
  service.indexTracks(std::move(tracks), domainID);
}
void submit(Solvane& service, std::vector<Artist> artists, const Domain& /*domainID*/) {
  service.indexArtists(std::move(artists));
}
void submit(Solvane& service, std::vector<Album> albums, const Domain& /*domainID*/) {
  service.indexAlbums(std::move(albums));
}
void submit(Solvane& service, std::vector<Playlist> playlists, const Domain& /*domainID*/) {
  service.indexPlaylists(std::move(playlists));
}

}  // namespace

Publisher::Publisher(std::shared_ptr<CSSearchableIndex> index)
    : _index(std::make_shared<OutcomeIndex>(std::move(index))) {
  Platform::install({.searchableIndex = _index});
  _service = std::make_shared<Solvane>();
}

// The platform keeps what was installed until the process ends; the file is to be closed now.
Publisher::~Publisher() { _index->detach(); }

Outcome Publisher::wait() {
  PosixDispatch::waitUntilIdle();
  return _index->wait();
}

Outcome Publisher::publish(std::vector<PublicationGroup>&& groups,
                           const std::function<void(std::size_t)>& progress) {
  Outcome outcome;
  std::size_t sent = 0;
  const auto publishGroup = [&]<class Entity>(std::vector<Entity>& records, const Domain& domain) {
    for (auto begin = records.begin(); begin != records.end() && outcome.errors.empty();) {
      const auto end = begin + std::min<std::ptrdiff_t>(chunkSize, records.end() - begin);
      std::vector<Entity> chunk(std::move_iterator{begin}, std::move_iterator{end});
      sent += chunk.size();
      submit(*_service, std::move(chunk), domain);
      outcome = wait();
      progress(outcome.publishedItems);
      begin = end;
    }
  };
  for (auto& [records, domainID] : groups) {
    std::visit([&, &domain = domainID](auto& list) { publishGroup(list, domain); }, records);
  }
  if (outcome.errors.empty() && outcome.publishedItems != sent) {
    outcome.errors.push_back({1, "The index does not accept items at the moment."});
  }
  return outcome;
}

std::size_t countRecords(const std::vector<PublicationGroup>& groups) {
  std::size_t count = 0;
  for (const auto& group : groups) {
    count += std::visit([](const auto& list) { return list.size(); }, group.records);
  }
  return count;
}

}  // namespace solvane::tool
