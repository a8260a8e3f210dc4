#pragma once

#include <cstdint>
#include <string_view>

struct sqlite3_stmt;

namespace solvane::sqlite {

/// One use of a prepared statement, which it gives back reset and without its bindings.
///
/// What is bound is not copied, and must stay until the use ends. Parameters count from 1, columns
/// from 0. Everything throws `Failure` when SQLite reports one.
class Statement {
 public:
  explicit Statement(sqlite3_stmt* borrowed) noexcept : _statement(borrowed) {}
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  ~Statement();

  Statement& bind(int parameter, std::int64_t value);
  Statement& bindBlob(int parameter, std::string_view bytes);
  Statement& bindText(int parameter, std::string_view text);

  /// Whether there is a row, the next one.
  [[nodiscard]] bool step();

  /// Steps to the end and leaves the statement ready for other bindings.
  void run();

  /// Ready for another run; the bindings stay.
  void reset();

  [[nodiscard]] bool isNull(int column) const;
  [[nodiscard]] std::int64_t integer(int column) const;

  /// The bytes of a blob or text, valid until the next step.
  [[nodiscard]] std::string_view bytes(int column) const;

 private:
  void check(int code) const;

  sqlite3_stmt* _statement;
};

}  // namespace solvane::sqlite
