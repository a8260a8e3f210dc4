#include <utility>

#include <solvane/sqlite/SQLiteIndex.hpp>

#include "detail/Change.hpp"
#include "detail/Failure.hpp"
#include "detail/GroupCommit.hpp"
#include "detail/IndexFile.hpp"
#include "detail/ItemReading.hpp"
#include "detail/ReaderPool.hpp"
#include "detail/Search.hpp"
#include "detail/Writer.hpp"

namespace solvane {

class SQLiteIndex::Implementation {
 public:
  Implementation(const std::string& path, const Options& options)
      : file(path),
        now(options.now ? options.now : &Date::now),
        writer(std::make_unique<sqlite::GroupCommit>(path, options.busyTimeout), now,
               options.clockCheck),
        readers(path, options.busyTimeout) {}

  /// What `task` reads of the index as it is at one moment, or why it cannot.
  template <class Task>
  auto read(Task&& task) {
    return sqlite::resultOf(
        [&] { return readers.read([&](sqlite::Reader& reader) { return task(reader, now()); }); });
  }

  const std::string file;
  const std::function<Date()> now;
  sqlite::Writer writer;

  // Closed before the writer, which tidies the file up only if it closes it last.
  sqlite::ReaderPool readers;
};

Result<std::shared_ptr<SQLiteIndex>> SQLiteIndex::open(const std::filesystem::path& file,
                                                       Options options) {
  return sqlite::resultOf([&] {
    auto implementation = std::make_unique<Implementation>(sqlite::prepareFile(file), options);
    return std::shared_ptr<SQLiteIndex>{new SQLiteIndex{std::move(implementation)}};
  });
}

Result<std::shared_ptr<SQLiteIndex>> SQLiteIndex::open(const std::filesystem::path& file) {
  return open(file, Options{});
}

SQLiteIndex::SQLiteIndex(std::unique_ptr<Implementation> implementation)
    : _implementation(std::move(implementation)) {}

// The last completions may still read, so the readers stay until they have run.
SQLiteIndex::~SQLiteIndex() { _implementation->writer.finish(); }

bool SQLiteIndex::isIndexingAvailable() const noexcept { return true; }

void SQLiteIndex::indexSearchableItems(std::vector<CSSearchableItem> items,
                                       CompletionHandler completionHandler) {
  _implementation->writer.submit(
      {sqlite::IndexItems{std::move(items)}, std::move(completionHandler)});
}

void SQLiteIndex::deleteSearchableItemsWithIdentifiers(std::vector<std::string> identifiers,
                                                       CompletionHandler completionHandler) {
  _implementation->writer.submit(
      {sqlite::DeleteIdentifiers{std::move(identifiers)}, std::move(completionHandler)});
}

void SQLiteIndex::deleteSearchableItemsWithDomainIdentifiers(
    std::vector<std::string> domainIdentifiers, CompletionHandler completionHandler) {
  _implementation->writer.submit(
      {sqlite::DeleteDomains{std::move(domainIdentifiers)}, std::move(completionHandler)});
}

Result<std::vector<SearchHit>> SQLiteIndex::search(std::string_view words,
                                                   const SearchOptions& options) const {
  return _implementation->read([&](sqlite::Reader& reader, Date now) {
    return sqlite::Search{reader, words, options, now}.run();
  });
}

Result<std::optional<CSSearchableItem>> SQLiteIndex::find(std::string_view uniqueIdentifier) const {
  return _implementation->read([&](sqlite::Reader& reader, Date now) {
    return sqlite::findItem(reader.connection, uniqueIdentifier, now);
  });
}

Result<std::vector<CSSearchableItem>> SQLiteIndex::list(const ListOptions& options) const {
  return _implementation->read([&](sqlite::Reader& reader, Date now) {
    return sqlite::listItems(reader.connection, options, now);
  });
}

Result<IndexStatistics> SQLiteIndex::statistics() const {
  return _implementation->read([&](sqlite::Reader& reader, Date now) {
    auto statistics = sqlite::countItems(reader.connection, now);
    statistics.bytesOnDisk = sqlite::bytesOnDisk(_implementation->file);
    return statistics;
  });
}

bool SQLiteIndex::waitUntilIdle(std::chrono::milliseconds timeout) const {
  return _implementation->writer.waitUntilIdle(timeout);
}

}  // namespace solvane
