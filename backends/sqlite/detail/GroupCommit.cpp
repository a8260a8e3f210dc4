#include "detail/GroupCommit.hpp"

#include <algorithm>
#include <thread>

#include <sqlite3.h>

#include "detail/Failure.hpp"
#include "detail/Schema.hpp"
#include "detail/SortableDate.hpp"
#include "detail/Transaction.hpp"
#include "detail/WriteOperations.hpp"

namespace solvane::sqlite {
namespace {

// Few enough that the changes that come meanwhile wait for a moment only.
constexpr std::int64_t mostPurgedAtOnce = 1000;

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds pauseBetweenAttempts{5};
constexpr milliseconds longestWait = std::chrono::hours{24};

bool isBusy(const Error& error) { return error.code == static_cast<int>(SQLiteIndexError::busy); }

Connection attemptToOpen(const std::string& file, milliseconds busyTimeout) {
  Connection connection{file, Connection::Access::write, busyTimeout};
  // SQLite opens a file that may not be written all the same, and fails with the first change.
  if (sqlite3_db_readonly(connection.handle(), "main") != 0) {
    throw failureOf(SQLITE_READONLY, nullptr, file);
  }
  prepareSchema(connection);
  prepareForWriting(connection);
  return connection;
}

// SQLite gives up at once where two that wait for each other would wait for ever, as when two
// processes make the same file.
Connection openIndex(const std::string& file, milliseconds busyTimeout) {
  const auto end = steady_clock::now() + std::min(busyTimeout, longestWait);
  while (true) {
    try {
      return attemptToOpen(file, busyTimeout);
    } catch (const Failure& failure) {
      if (!isBusy(failure.error()) || steady_clock::now() >= end) throw;
    }
    std::this_thread::sleep_for(pauseBetweenAttempts);
  }
}

struct Apply {
  WriteOperations& operations;

  void operator()(const IndexItems& change) const {
    for (const auto& item : change.items) operations.index(item);
  }
  void operator()(const DeleteIdentifiers& change) const {
    for (const auto& identifier : change.identifiers) operations.deleteIdentifier(identifier);
  }
  void operator()(const DeleteDomains& change) const {
    for (const auto& domain : change.domains) operations.deleteDomain(domain);
  }
};

}  // namespace

GroupCommit::GroupCommit(const std::string& file, std::chrono::milliseconds busyTimeout)
    : _connection(openIndex(file, busyTimeout)), _tokenizer(_connection) {}

std::vector<std::optional<Error>> GroupCommit::commit(const std::vector<Change>& changes,
                                                      Date now) {
  const auto error = errorOf([&] { commitTogether(changes, now); });
  if (!error) return Results(changes.size());
  // Everyone has waited for the lock once, and would wait for it again, one after the other.
  if (isBusy(*error)) return Results(changes.size(), error);
  Results results;
  results.reserve(changes.size());
  for (const auto& change : changes) {
    results.push_back(errorOf([&] { commitAlone(change); }));
  }
  return results;
}

void GroupCommit::commitTogether(const std::vector<Change>& changes, Date now) {
  Transaction transaction{_connection, Transaction::Kind::write};
  WriteOperations operations{_connection, _tokenizer};
  for (const auto& change : changes) std::visit(Apply{operations}, change.operation);
  operations.purge(now, mostPurgedAtOnce);
  operations.finish();
  transaction.commit();
}

void GroupCommit::commitAlone(const Change& change) {
  Transaction transaction{_connection, Transaction::Kind::write};
  WriteOperations operations{_connection, _tokenizer};
  std::visit(Apply{operations}, change.operation);
  operations.finish();
  transaction.commit();
}

std::optional<Date> GroupCommit::nextExpiration() {
  std::optional<Date> next;
  // What cannot be read is the next change's to report.
  const auto ignored = errorOf([&] {
    auto found = _connection.statement("SELECT min(exp) FROM items WHERE exp IS NOT NULL");
    if (found.step() && !found.isNull(0)) next = SortableDate::decode(found.bytes(0));
  });
  return ignored ? std::nullopt : next;
}

bool GroupCommit::purge(Date now) {
  return !errorOf([&] { commitTogether({}, now); });
}

}  // namespace solvane::sqlite
