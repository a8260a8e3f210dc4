#include "detail/TextIndex.hpp"

#include "detail/Connection.hpp"
#include "detail/IndexedText.hpp"
#include "detail/ItemReading.hpp"
#include "detail/Tokenizer.hpp"

namespace solvane::sqlite {
namespace {

constexpr std::size_t mostWaitingBytes = std::size_t{8} << 20;

constexpr std::string_view insertText =
    "INSERT INTO texts(rowid, name, title, artist, album, other) VALUES(?1, ?2, ?3, ?4, ?5, ?6)";

// A contentless index does not know what it is to forget, and is told again.
constexpr std::string_view deleteText =
    "INSERT INTO texts(texts, rowid, name, title, artist, album, other) "
    "VALUES('delete', ?1, ?2, ?3, ?4, ?5, ?6)";

}  // namespace

void TextIndex::add(std::int64_t row, std::string attributes) {
  const auto size = attributes.size();
  _changes[row].after = std::move(attributes);
  account(size);
}

void TextIndex::remove(std::int64_t row, std::string attributes) {
  auto& change = _changes[row];
  if (change.after) {
    change.after.reset();
    return;
  }
  const auto size = attributes.size();
  change.before = std::move(attributes);
  account(size);
}

void TextIndex::account(std::size_t bytes) {
  _bytes += bytes;
  if (_bytes > mostWaitingBytes) write();
}

void TextIndex::write() {
  for (const auto& [row, change] : _changes) write(row, change);
  _changes.clear();
  _bytes = 0;
}

void TextIndex::write(std::int64_t row, const Change& change) {
  std::optional<IndexedText> before;
  std::optional<IndexedText> after;
  if (change.before) before = textOf(*change.before);
  if (change.after) after = textOf(*change.after);
  if (before == after) return;
  if (before) run(deleteText, row, *before);
  if (after) run(insertText, row, *after);
}

void TextIndex::run(std::string_view sql, std::int64_t row, const IndexedText& text) {
  auto statement = _connection.statement(sql);
  statement.bind(1, row).bindText(2, text.name).bindText(3, text.title);
  statement.bindText(4, text.artist).bindText(5, text.album).bindText(6, text.other);
  statement.run();
}

IndexedText TextIndex::textOf(const std::string& attributes) {
  return indexedTextOf(attributesIn(_connection, attributes), _tokenizer);
}

}  // namespace solvane::sqlite
