#include "detail/Schema.hpp"

#include <cstdint>
#include <string>

#include "detail/Connection.hpp"
#include "detail/Failure.hpp"
#include "detail/Transaction.hpp"

namespace solvane::sqlite {
namespace {

constexpr std::int64_t applicationID = 0x536f6c76;  // "Solv"
constexpr std::int64_t formatVersion = 1;

// The thumbnail comes last, in a column of its own, so that whoever reads the columns before it
// does not read its pages.
constexpr const char* createTables = R"(
  CREATE TABLE domains(id INTEGER PRIMARY KEY, name BLOB NOT NULL UNIQUE);
  CREATE TABLE items(
    rid INTEGER PRIMARY KEY,
    uid BLOB NOT NULL UNIQUE,
    exp BLOB,
    attrs BLOB NOT NULL,
    thumb BLOB);
  CREATE INDEX items_by_expiration ON items(exp) WHERE exp IS NOT NULL;
  CREATE VIRTUAL TABLE texts USING fts5(
    name, title, artist, album, other,
    content='', columnsize=0, detail=column, prefix='1 2 3 4',
    tokenize='unicode61 remove_diacritics 2');
  INSERT INTO texts(texts, rank) VALUES('pgsz', 1000);
)";

void create(Connection& connection) {
  connection.execute(createTables);
  const auto identity = "PRAGMA application_id = " + std::to_string(applicationID) +
                        "; PRAGMA user_version = " + std::to_string(formatVersion);
  connection.execute(identity.c_str());
}

enum class Identity { empty, ours };

std::int64_t number(Connection& connection, std::string_view sql) {
  auto statement = connection.statement(sql);
  return statement.step() ? statement.integer(0) : 0;
}

Identity identify(Connection& connection) {
  const auto application = number(connection, "PRAGMA application_id");
  const auto version = number(connection, "PRAGMA user_version");
  const auto tables = number(connection, "SELECT count(*) FROM sqlite_schema");
  const auto subject = "The file " + connection.file();
  if (application == 0 && version == 0 && tables == 0) return Identity::empty;
  if (application != applicationID) {
    throw Failure{SQLiteIndexError::notAnIndex, subject +
                                                    " is a database of something else. "
                                                    "Choose another file for the index."};
  }
  if (version > formatVersion) {
    throw Failure{SQLiteIndexError::newerFormat,
                  subject +
                      " is a search index that a newer version of this library wrote. "
                      "Update this program, or choose another file."};
  }
  return Identity::ours;
}

// As of one moment: another process may be making the tables.
Identity identifyAtOnce(Connection& connection) {
  const Transaction moment{connection, Transaction::Kind::read};
  return identify(connection);
}

void proveTables(Connection& connection) {
  constexpr std::string_view ourTables =
      "SELECT count(*) FROM sqlite_schema WHERE name IN ('domains', 'items', 'texts')";
  if (number(connection, "PRAGMA user_version") != formatVersion ||
      number(connection, ourTables) != 3) {
    throw damage(connection.file(), "its tables are missing");
  }
}

}  // namespace

void prepareSchema(Connection& connection) {
  if (identifyAtOnce(connection) == Identity::empty) {
    connection.execute("PRAGMA page_size = 8192; PRAGMA journal_mode = WAL");
    Transaction transaction{connection, Transaction::Kind::write};
    // Another process may have been quicker.
    if (identify(connection) == Identity::empty) create(connection);
    transaction.commit();
  }
  proveTables(connection);
}

void prepareForWriting(Connection& connection) {
  connection.execute(
      "PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; PRAGMA secure_delete = ON;"
      "PRAGMA cache_size = -32768; PRAGMA wal_autocheckpoint = 1000");
}

}  // namespace solvane::sqlite
