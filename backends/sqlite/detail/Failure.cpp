#include "detail/Failure.hpp"

#include <cerrno>

#include <sqlite3.h>

namespace solvane::sqlite {
namespace {

struct Explanation {
  SQLiteIndexError code;
  const char* what;
  const char* advice;
};

constexpr Explanation cannotOpen{SQLiteIndexError::cannotOpen, "cannot be opened for writing",
                                 "Choose a file in a folder that you may write to."};
constexpr Explanation notAnIndex{SQLiteIndexError::notAnIndex, "is no database",
                                 "Choose another file for the index."};
constexpr Explanation busy{SQLiteIndexError::busy, "is held by another process",
                           "Try again when that process is done."};
constexpr Explanation full{SQLiteIndexError::full, "has no room left on its disk",
                           "Free some space and try again."};
constexpr Explanation damaged{SQLiteIndexError::damaged, "is damaged",
                              "Delete the file and index everything again."};
constexpr Explanation failed{SQLiteIndexError::failed, "reports a failure",
                             "Check the disk, then try again."};

// The last system error of the database file or of its log, whichever `pointer` asks for.
int lastSystemError(sqlite3* connection, int pointer) {
  sqlite3_file* file = nullptr;
  int error = 0;
  sqlite3_file_control(connection, "main", pointer, static_cast<void*>(&file));
  if (file && file->pMethods) file->pMethods->xFileControl(file, SQLITE_FCNTL_LAST_ERRNO, &error);
  return error;
}

// A quota or a file size limit ends the room just as a full disk does.
bool isOutOfRoom(sqlite3* connection) {
  if (!connection) return false;
  for (const int pointer : {SQLITE_FCNTL_FILE_POINTER, SQLITE_FCNTL_JOURNAL_POINTER}) {
    const int error = lastSystemError(connection, pointer);
    if (error == EDQUOT || error == EFBIG) return true;
  }
  return false;
}

const Explanation& explain(int code, sqlite3* connection) {
  switch (code & 0xff) {
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return cannotOpen;
    case SQLITE_NOTADB:
      return notAnIndex;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
      return busy;
    case SQLITE_FULL:
      return full;
    case SQLITE_CORRUPT:
      return damaged;
    case SQLITE_IOERR:
      return (code == SQLITE_IOERR_WRITE || code == SQLITE_IOERR_TRUNCATE) &&
                     isOutOfRoom(connection)
                 ? full
                 : failed;
    default:
      return failed;
  }
}

}  // namespace

Failure failureOf(int code, sqlite3* connection, const std::string& file) {
  const auto& explanation = explain(code, connection);
  const char* detail = connection ? sqlite3_errmsg(connection) : sqlite3_errstr(code);
  return {explanation.code, "The search index " + file + " " + explanation.what + " (" + detail +
                                "). " + explanation.advice};
}

Failure damage(const std::string& file, const std::string& what) {
  return {SQLiteIndexError::damaged,
          "The search index " + file + " is damaged (" + what + "). " + damaged.advice};
}

}  // namespace solvane::sqlite
