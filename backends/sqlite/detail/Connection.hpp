#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "detail/Statement.hpp"

struct sqlite3;

namespace solvane::sqlite {

/// An open database file with its prepared statements. One thread at a time.
class Connection {
 public:
  enum class Access { read, write };

  /// Opens a file that exists; throws `Failure` as every operation here.
  Connection(const std::string& file, Access access, std::chrono::milliseconds busyTimeout);

  /// Runs statements that give no rows, or whose rows do not matter.
  void execute(const char* sql);

  /// A use of the statement `sql`, a literal, which is prepared once. One use at a time.
  [[nodiscard]] Statement statement(std::string_view sql);

  [[nodiscard]] sqlite3* handle() const noexcept { return _handle.get(); }
  [[nodiscard]] const std::string& file() const noexcept { return _file; }

 private:
  struct Close {
    void operator()(sqlite3* handle) const noexcept;
  };
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const noexcept;
  };

  std::string _file;
  std::unique_ptr<sqlite3, Close> _handle;
  std::unordered_map<std::string_view, std::unique_ptr<sqlite3_stmt, Finalize>> _statements;
};

}  // namespace solvane::sqlite
