#pragma once

#include <exception>
#include <optional>
#include <string>
#include <utility>

#include <solvane/sqlite/SQLiteIndex.hpp>

struct sqlite3;

namespace solvane::sqlite {

/// Carries an error from the depths of the index to its public surface, and never beyond it.
class Failure : public std::exception {
 public:
  Failure(SQLiteIndexError code, std::string message)
      : _error{static_cast<int>(code), std::move(message)} {}

  [[nodiscard]] const Error& error() const noexcept { return _error; }
  [[nodiscard]] const char* what() const noexcept override { return _error.message.c_str(); }

 private:
  Error _error;
};

/// The failure with SQLite's result `code`. `connection` may be null; without it the sentence has
/// SQLite's general words for the code.
[[nodiscard]] Failure failureOf(int code, sqlite3* connection, const std::string& file);

/// The failure of a file whose content contradicts itself: `what` says where.
[[nodiscard]] Failure damage(const std::string& file, const std::string& what);

/// Runs `task`; what it throws becomes a value.
template <class Task>
std::optional<Error> errorOf(Task&& task) {
  try {
    std::forward<Task>(task)();
    return std::nullopt;
  } catch (const Failure& failure) {
    return failure.error();
  } catch (const std::exception& exception) {
    return Error{static_cast<int>(SQLiteIndexError::failed),
                 std::string{"The search index could not finish: "} + exception.what() + "."};
  }
}

/// What `task` returns, or what it throws as a value.
template <class Task>
auto resultOf(Task&& task) -> Result<decltype(task())> {
  std::optional<decltype(task())> value;
  if (auto error = errorOf([&] { value.emplace(task()); })) return *std::move(error);
  return *std::move(value);
}

}  // namespace solvane::sqlite
