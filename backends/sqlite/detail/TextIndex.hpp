#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace solvane::sqlite {

class Connection;
class Tokenizer;
struct IndexedText;

/// The words of the items, within one transaction.
///
/// Changes wait, bounded, and are written in the order of their rows, because the text index is
/// slow when row numbers go backwards. A row that goes and comes back unchanged is not written.
class TextIndex {
 public:
  TextIndex(Connection& connection, Tokenizer& tokenizer)
      : _connection(connection), _tokenizer(tokenizer) {}

  /// Takes the encoded attributes of the row; to remove it, those it was added with.
  void add(std::int64_t row, std::string attributes);
  void remove(std::int64_t row, std::string attributes);

  /// Writes what waits. Before the transaction commits.
  void write();

 private:
  struct Change {
    std::optional<std::string> before;
    std::optional<std::string> after;
  };

  void write(std::int64_t row, const Change& change);
  void run(std::string_view sql, std::int64_t row, const IndexedText& text);
  [[nodiscard]] IndexedText textOf(const std::string& attributes);

  /// Counts bytes that wait, and writes when they are many.
  void account(std::size_t bytes);

  Connection& _connection;
  Tokenizer& _tokenizer;
  std::map<std::int64_t, Change> _changes;
  std::size_t _bytes = 0;
};

}  // namespace solvane::sqlite
