#pragma once

#include <chrono>
#include <future>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include <solvane/sqlite/SQLiteIndex.hpp>

#include <gtest/gtest.h>

#include "RawDatabase.hpp"
#include "support/TemporaryFolder.hpp"

namespace solvane {

/// The moment at which the tests with a clock of their own begin.
inline constexpr Date noon = Date::fromUnixTime(1'700'000'000, 123'456'789);

/// A clock that a test sets; any thread reads it.
class SettableClock {
 public:
  [[nodiscard]] Date now() const {
    const std::lock_guard lock{_mutex};
    return _now;
  }
  void set(Date now) {
    const std::lock_guard lock{_mutex};
    _now = now;
  }

 private:
  mutable std::mutex _mutex;
  Date _now = noon;
};

inline CSSearchableItem makeItem(std::string identifier, std::string domain,
                                 std::optional<std::string> title = std::nullopt) {
  CSSearchableItemAttributeSet attributes{std::string{kUTTypeAudio}};
  attributes.title = std::move(title);
  return {std::move(identifier), std::move(domain), std::move(attributes)};
}

inline CSSearchableItem makeTrack(std::string title) {
  auto identifier = "track " + title;
  return makeItem(std::move(identifier), "tracks", std::move(title));
}

/// Makes the change and waits for what the completion says.
template <class Change>
std::optional<Error> waitFor(Change&& change) {
  std::promise<std::optional<Error>> promise;
  auto future = promise.get_future();
  change([&](std::optional<Error> error) { promise.set_value(std::move(error)); });
  return future.get();
}

inline std::optional<Error> put(SQLiteIndex& index, std::vector<CSSearchableItem> items) {
  return waitFor([&](CSSearchableIndex::CompletionHandler completion) {
    index.indexSearchableItems(std::move(items), std::move(completion));
  });
}

inline std::optional<Error> removeItems(SQLiteIndex& index, std::vector<std::string> identifiers) {
  return waitFor([&](CSSearchableIndex::CompletionHandler completion) {
    index.deleteSearchableItemsWithIdentifiers(std::move(identifiers), std::move(completion));
  });
}

inline std::optional<Error> removeDomains(SQLiteIndex& index, std::vector<std::string> domains) {
  return waitFor([&](CSSearchableIndex::CompletionHandler completion) {
    index.deleteSearchableItemsWithDomainIdentifiers(std::move(domains), std::move(completion));
  });
}

/// An empty index in a folder of its own, with a clock that stands at noon.
class SQLiteIndexTest : public ::testing::Test {
 protected:
  [[nodiscard]] std::filesystem::path file() const { return folder.path() / "index.db"; }

  [[nodiscard]] SQLiteIndex::Options options() const {
    SQLiteIndex::Options chosen;
    chosen.now = [this] { return clock.now(); };
    chosen.clockCheck = std::chrono::milliseconds{10};
    return chosen;
  }

  [[nodiscard]] std::shared_ptr<SQLiteIndex> open() const { return open(options()); }

  [[nodiscard]] std::shared_ptr<SQLiteIndex> open(SQLiteIndex::Options chosen) const {
    auto opened = SQLiteIndex::open(file(), std::move(chosen));
    if (!opened) throw std::runtime_error{opened.error().message};
    return *opened;
  }

  /// The identifiers of the hits, best first; a failure is one identifier, its message.
  [[nodiscard]] static std::vector<std::string> found(SQLiteIndex& index, std::string_view words,
                                                      const SearchOptions& search = {}) {
    const auto hits = index.search(words, search);
    if (!hits) return {hits.error().message};
    std::vector<std::string> identifiers;
    for (const auto& hit : *hits) identifiers.push_back(hit.item.uniqueIdentifier);
    return identifiers;
  }

  [[nodiscard]] static std::vector<std::string> listed(SQLiteIndex& index,
                                                       const ListOptions& list = {}) {
    const auto items = index.list(list);
    if (!items) return {items.error().message};
    std::vector<std::string> identifiers;
    for (const auto& item : *items) identifiers.push_back(item.uniqueIdentifier);
    return identifiers;
  }

  TemporaryFolder folder;
  SettableClock clock;
};

}  // namespace solvane
