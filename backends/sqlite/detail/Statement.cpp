#include "detail/Statement.hpp"

#include <sqlite3.h>

#include "detail/Failure.hpp"

namespace solvane::sqlite {
namespace {

// SQLite takes a null pointer for NULL, and we mean bytes of length nought.
const char* start(std::string_view bytes) { return bytes.data() ? bytes.data() : ""; }

}  // namespace

Statement::~Statement() {
  sqlite3_reset(_statement);
  sqlite3_clear_bindings(_statement);
}

void Statement::check(int code) const {
  if (code == SQLITE_OK) return;
  auto* connection = sqlite3_db_handle(_statement);
  throw failureOf(code, connection, sqlite3_db_filename(connection, "main"));
}

Statement& Statement::bind(int parameter, std::int64_t value) {
  check(sqlite3_bind_int64(_statement, parameter, value));
  return *this;
}

Statement& Statement::bindBlob(int parameter, std::string_view bytes) {
  check(sqlite3_bind_blob64(_statement, parameter, start(bytes), bytes.size(), SQLITE_STATIC));
  return *this;
}

Statement& Statement::bindText(int parameter, std::string_view text) {
  check(sqlite3_bind_text64(_statement, parameter, start(text), text.size(), SQLITE_STATIC,
                            SQLITE_UTF8));
  return *this;
}

bool Statement::step() {
  const int code = sqlite3_step(_statement);
  if (code == SQLITE_ROW) return true;
  if (code != SQLITE_DONE) check(code);
  return false;
}

void Statement::run() {
  while (step()) {
  }
  reset();
}

void Statement::reset() { check(sqlite3_reset(_statement)); }

bool Statement::isNull(int column) const {
  return sqlite3_column_type(_statement, column) == SQLITE_NULL;
}

std::int64_t Statement::integer(int column) const {
  return sqlite3_column_int64(_statement, column);
}

std::string_view Statement::bytes(int column) const {
  const void* first = sqlite3_column_blob(_statement, column);
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(_statement, column));
  return {static_cast<const char*>(first), size};
}

}  // namespace solvane::sqlite
