#include "detail/Connection.hpp"

#include <algorithm>
#include <limits>

#include <sqlite3.h>

#include "detail/Failure.hpp"

namespace solvane::sqlite {
namespace {

int flagsFor(Connection::Access access) {
  const int mode =
      access == Connection::Access::read ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
  return mode | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_PRIVATECACHE | SQLITE_OPEN_EXRESCODE;
}

int clamped(std::chrono::milliseconds time) {
  using Limits = std::numeric_limits<int>;
  return static_cast<int>(std::clamp<std::int64_t>(time.count(), 0, Limits::max()));
}

}  // namespace

void Connection::Close::operator()(sqlite3* handle) const noexcept { sqlite3_close_v2(handle); }

void Connection::Finalize::operator()(sqlite3_stmt* statement) const noexcept {
  sqlite3_finalize(statement);
}

Connection::Connection(const std::string& file, Access access,
                       std::chrono::milliseconds busyTimeout)
    : _file(file) {
  sqlite3* handle = nullptr;
  const int code = sqlite3_open_v2(file.c_str(), &handle, flagsFor(access), nullptr);
  _handle.reset(handle);
  if (code != SQLITE_OK) throw failureOf(code, handle, file);
  sqlite3_busy_timeout(handle, clamped(busyTimeout));
}

void Connection::execute(const char* sql) {
  const int code = sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) throw failureOf(code, handle(), _file);
}

Statement Connection::statement(std::string_view sql) {
  auto& prepared = _statements[sql];
  if (!prepared) {
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v3(handle(), sql.data(), static_cast<int>(sql.size()),
                                        SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (code != SQLITE_OK) throw failureOf(code, handle(), _file);
    prepared.reset(statement);
  }
  return Statement{prepared.get()};
}

}  // namespace solvane::sqlite
