#include "detail/Tokenizer.hpp"

#include <algorithm>
#include <array>

#include <sqlite3.h>

#include "detail/Connection.hpp"
#include "detail/Failure.hpp"

namespace solvane::sqlite {
namespace {

// SQLite counts a tokenizer's input with an int.
constexpr std::size_t longestText = std::numeric_limits<int>::max();

fts5_api* textSearchOf(Connection& connection) {
  fts5_api* api = nullptr;
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(connection.handle(), "SELECT fts5(?1)", -1, &statement, nullptr) ==
      SQLITE_OK) {
    sqlite3_bind_pointer(statement, 1, static_cast<void*>(&api), "fts5_api_ptr", nullptr);
    sqlite3_step(statement);
  }
  sqlite3_finalize(statement);
  return api;
}

struct Collector {
  std::vector<std::string> words;
  std::size_t limit;
  bool outOfMemory = false;
};

// Called by C code, through which nothing may be thrown.
int collect(void* context, int, const char* token, int size, int, int) noexcept {
  auto& collector = *static_cast<Collector*>(context);
  if (collector.words.size() == collector.limit) return SQLITE_DONE;
  try {
    collector.words.emplace_back(token, static_cast<std::size_t>(size));
    return SQLITE_OK;
  } catch (const std::bad_alloc&) {
    collector.outOfMemory = true;
    return SQLITE_NOMEM;
  }
}

}  // namespace

struct Tokenizer::Unicode {
  Unicode() = default;
  Unicode(const Unicode&) = delete;
  Unicode& operator=(const Unicode&) = delete;
  ~Unicode() {
    if (instance) functions.xDelete(instance);
  }

  fts5_tokenizer functions{};
  Fts5Tokenizer* instance = nullptr;
};

Tokenizer::Tokenizer(Connection& connection)
    : _unicode(std::make_unique<Unicode>()), _file(connection.file()) {
  auto* api = textSearchOf(connection);
  if (!api) {
    throw Failure{SQLiteIndexError::failed,
                  "This program's SQLite has no full-text search (FTS5). Install one that has."};
  }
  void* context = nullptr;
  std::array<const char*, 2> arguments{"remove_diacritics", "2"};
  int code = api->xFindTokenizer(api, "unicode61", &context, &_unicode->functions);
  if (code == SQLITE_OK) {
    code = _unicode->functions.xCreate(context, arguments.data(), 2, &_unicode->instance);
  }
  if (code != SQLITE_OK) throw failureOf(code, nullptr, _file);
}

Tokenizer::Tokenizer(Tokenizer&&) noexcept = default;
Tokenizer::~Tokenizer() = default;

std::vector<std::string> Tokenizer::words(std::string_view text, std::size_t limit) {
  Collector collector{{}, limit};
  const auto size = static_cast<int>(std::min(text.size(), longestText));
  const int code = _unicode->functions.xTokenize(
      _unicode->instance, &collector, FTS5_TOKENIZE_DOCUMENT, text.data(), size, &collect);
  if (collector.outOfMemory) throw std::bad_alloc{};
  if (code != SQLITE_OK && code != SQLITE_DONE) throw failureOf(code, nullptr, _file);
  return std::move(collector.words);
}

}  // namespace solvane::sqlite
