#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>

#include <sqlite3.h>

namespace solvane {

/// Another program's view of the database file, past the index.
class RawDatabase {
 public:
  explicit RawDatabase(const std::filesystem::path& file) {
    if (sqlite3_open(file.c_str(), &_handle) != SQLITE_OK) fail();
    sqlite3_busy_timeout(_handle, 10'000);
  }
  RawDatabase(const RawDatabase&) = delete;
  RawDatabase& operator=(const RawDatabase&) = delete;
  ~RawDatabase() { sqlite3_close(_handle); }

  void execute(const std::string& sql) {
    if (sqlite3_exec(_handle, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) fail();
  }

  /// The first column of the first row.
  std::int64_t integer(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(_handle, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) fail();
    const bool hasRow = sqlite3_step(statement) == SQLITE_ROW;
    const auto value = hasRow ? sqlite3_column_int64(statement, 0) : -1;
    sqlite3_finalize(statement);
    if (!hasRow) fail();
    return value;
  }

  std::string text(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(_handle, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) fail();
    std::string value;
    if (sqlite3_step(statement) == SQLITE_ROW) {
      value = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    }
    sqlite3_finalize(statement);
    return value;
  }

 private:
  [[noreturn]] void fail() { throw std::runtime_error{sqlite3_errmsg(_handle)}; }

  sqlite3* _handle = nullptr;
};

}  // namespace solvane
