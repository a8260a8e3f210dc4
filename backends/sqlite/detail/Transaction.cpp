#include "detail/Transaction.hpp"

#include <sqlite3.h>

#include "detail/Connection.hpp"

namespace solvane::sqlite {

Transaction::Transaction(Connection& connection, Kind kind) : _connection(connection) {
  _connection.execute(kind == Kind::read ? "BEGIN" : "BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
  // SQLite itself undoes a transaction after some failures, and then there is none to end.
  if (sqlite3_get_autocommit(_connection.handle()) == 0) {
    sqlite3_exec(_connection.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
  }
}

void Transaction::commit() { _connection.execute("COMMIT"); }

}  // namespace solvane::sqlite
