#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include <solvane/model/Date.hpp>
#include <solvane/platform/Error.hpp>

#include "detail/Change.hpp"
#include "detail/Connection.hpp"
#include "detail/Tokenizer.hpp"

namespace solvane::sqlite {

/// The connection that writes: it makes many changes with one commit, because bringing a commit to
/// the disk costs more than most changes.
class GroupCommit {
 public:
  /// Opens the file and makes it an index if it is empty; throws `Failure`.
  GroupCommit(const std::string& file, std::chrono::milliseconds busyTimeout);

  /// Makes the changes in their order and removes what has expired. Returns what became of each.
  /// A change that cannot be made does not keep the others from being made.
  [[nodiscard]] std::vector<std::optional<Error>> commit(const std::vector<Change>& changes,
                                                         Date now);

  /// When the next item expires, or has expired without having been removed yet.
  [[nodiscard]] std::optional<Date> nextExpiration();

  /// Removes some of what has expired. False when that failed.
  [[nodiscard]] bool purge(Date now);

 private:
  using Results = std::vector<std::optional<Error>>;

  void commitTogether(const std::vector<Change>& changes, Date now);
  void commitAlone(const Change& change);

  Connection _connection;
  Tokenizer _tokenizer;
};

}  // namespace solvane::sqlite
