#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <solvane/platform/CSSearchableIndex.hpp>
#include <solvane/sqlite/Result.hpp>

namespace solvane {

/// What went wrong: the `code` of an `Error` that a `SQLiteIndex` reports.
enum class SQLiteIndexError : int {
  cannotOpen = 1,   ///< The file or its folder cannot be opened, made or written.
  notAnIndex = 2,   ///< The file is a database of something else, or no database at all.
  newerFormat = 3,  ///< A newer version of this library wrote the file.
  busy = 4,         ///< Another process kept the file locked for longer than we wait.
  full = 5,         ///< No room is left on the disk.
  damaged = 6,      ///< The file's content contradicts itself.
  failed = 7,       ///< Anything else the database reports.
};

/// One search result.
struct SearchHit {
  CSSearchableItem item;

  /// Higher is better; comparable within one search only.
  double score = 0;
};

struct SearchOptions {
  /// Only items of this domain, compared whole; absent: of every domain.
  std::optional<std::string> domainIdentifier{};

  /// At most this many hits.
  std::size_t limit = 20;
};

struct ListOptions {
  /// Only items of this domain, compared whole; absent: of every domain.
  std::optional<std::string> domainIdentifier{};

  /// At most this many items, after the first `offset` ones.
  std::size_t limit = 100;
  std::size_t offset = 0;
};

/// A count of what the index shows at one moment. Expired items are not counted.
struct IndexStatistics {
  std::size_t items = 0;
  std::map<std::string, std::size_t> itemsPerDomain;

  /// When the next item and when the last item expires; absent when none does.
  std::optional<Date> firstExpiration;
  std::optional<Date> lastExpiration;

  /// Size of the database file and its write-ahead log together.
  std::uintmax_t bytesOnDisk = 0;
};

/// The on-device search index where the system has none: one SQLite file, searched as one types.
///
///     auto index = solvane::SQLiteIndex::open("/home/ann/.local/share/player/index.db");
///     if (!index) return fail(index.error().message);
///     solvane::Platform::install({.searchableIndex = *index});
///     ...
///     auto hits = (*index)->search("so wh");
///
/// A completion without an error means that the change is committed to disk. Changes are made in
/// the order in which they are handed over, each whole or not at all, by one writer thread that
/// commits everything that is waiting together; completions run on that thread. Reading never waits
/// for the writer and shows what was last committed. An item past its expiration date is invisible
/// at once, and removed from the file soon after. Several processes may share the file.
///
/// Every operation may be called from any thread. Nothing here throws or prints. Errors have the
/// codes of `SQLiteIndexError`.
class SQLiteIndex final : public CSSearchableIndex {
 public:
  struct Options {
    /// The present moment, by which items expire. Called from any thread, until the last
    /// completion has run. Does not throw.
    std::function<Date()> now = &Date::now;

    /// How often to look whether `now` was set forward, while items wait for their expiration. Only
    /// the moment depends on it at which an expired item leaves the file; it is invisible at once.
    std::chrono::milliseconds clockCheck{30'000};

    /// How long to wait for another process that holds the file.
    std::chrono::milliseconds busyTimeout{5000};
  };

  /// Opens the index, and makes it, readable by its user alone, with the folders above it where
  /// they do not exist.
  static Result<std::shared_ptr<SQLiteIndex>> open(const std::filesystem::path& file,
                                                   Options options);
  static Result<std::shared_ptr<SQLiteIndex>> open(const std::filesystem::path& file);

  /// Makes the changes that are still waiting, then closes the file. An index that is let go of in
  /// one of its completions does so after the destructor has returned.
  ~SQLiteIndex() override;

  /// True: an open index accepts items.
  [[nodiscard]] bool isIndexingAvailable() const noexcept override;

  void indexSearchableItems(std::vector<CSSearchableItem> items,
                            CompletionHandler completionHandler) override;
  void deleteSearchableItemsWithIdentifiers(std::vector<std::string> identifiers,
                                            CompletionHandler completionHandler) override;
  void deleteSearchableItemsWithDomainIdentifiers(std::vector<std::string> domainIdentifiers,
                                                  CompletionHandler completionHandler) override;

  /// Finds what has all the words, across title, artist, album, genre, keywords and description,
  /// the last word as the beginning of one; accents and case do not matter. Best first: an item
  /// named exactly so, then names that begin so, then the rest; at equal rank an artist before
  /// albums, tracks and playlists, shorter names before longer ones, newer items before older ones.
  /// Any text gets an answer; one without a letter or digit has no hits, and words after the 64th
  /// do not narrow the search any more.
  [[nodiscard]] Result<std::vector<SearchHit>> search(std::string_view words,
                                                      const SearchOptions& options = {}) const;

  /// The item with this identifier, if the index shows one.
  [[nodiscard]] Result<std::optional<CSSearchableItem>> find(
      std::string_view uniqueIdentifier) const;

  /// Items in the order of their domains' names, then of their entry into the domain, in which one
  /// that is replaced keeps its place.
  [[nodiscard]] Result<std::vector<CSSearchableItem>> list(const ListOptions& options = {}) const;

  [[nodiscard]] Result<IndexStatistics> statistics() const;

  /// Waits until every change handed over before this call is made and its completion has run.
  /// False when `timeout` passed first, or at once when called from a completion.
  bool waitUntilIdle(std::chrono::milliseconds timeout = std::chrono::minutes{10}) const;

 private:
  class Implementation;
  explicit SQLiteIndex(std::unique_ptr<Implementation> implementation);

  std::unique_ptr<Implementation> _implementation;
};

}  // namespace solvane
