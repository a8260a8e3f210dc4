#include "detail/WriteOperations.hpp"

#include <vector>

#include "detail/AttributeCodec.hpp"
#include "detail/Connection.hpp"
#include "detail/Failure.hpp"
#include "detail/ItemReading.hpp"
#include "detail/SortableDate.hpp"

namespace solvane::sqlite {
namespace {

std::optional<SortableDate> sortable(const std::optional<Date>& date) {
  return date ? std::optional{SortableDate{*date}} : std::nullopt;
}

std::optional<std::string_view> bytesOf(const std::optional<SortableDate>& date) {
  return date ? std::optional{date->bytes()} : std::nullopt;
}

std::optional<std::string_view> bytesOf(const std::optional<Data>& data) {
  if (!data) return std::nullopt;
  return std::string_view{reinterpret_cast<const char*>(data->data()), data->size()};
}

std::optional<std::string_view> column(const Statement& row, int number) {
  if (row.isNull(number)) return std::nullopt;
  return row.bytes(number);
}

// A parameter that is not bound is NULL.
void bindOptional(Statement& statement, int parameter, std::optional<std::string_view> bytes) {
  if (bytes) statement.bindBlob(parameter, *bytes);
}

}  // namespace

WriteOperations::WriteOperations(Connection& connection, Tokenizer& tokenizer)
    : _connection(connection), _texts(connection, tokenizer) {}

void WriteOperations::index(const CSSearchableItem& item) {
  auto attributes = AttributeCodec::encode(item.attributeSet);
  const auto domain = makeDomain(item.domainIdentifier);
  {
    auto found = _connection.statement("SELECT rid, exp, attrs, thumb FROM items WHERE uid = ?1");
    found.bindBlob(1, item.uniqueIdentifier);
    if (found.step()) {
      const auto row = found.integer(0);
      if (domainOf(row) == domain) return replace(row, found, item, std::move(attributes));
      deleteRow(row, found.bytes(2));
    }
  }
  insert(domain, item, std::move(attributes));
}

void WriteOperations::insert(std::int64_t domain, const CSSearchableItem& item,
                             std::string attributes) {
  const auto row = nextRow(domain);
  const auto expiration = sortable(item.expirationDate);
  {
    auto statement = _connection.statement(
        "INSERT INTO items(rid, exp, attrs, thumb, uid) VALUES(?1, ?2, ?3, ?4, ?5)");
    statement.bind(1, row).bindBlob(5, item.uniqueIdentifier);
    bindContent(statement, item, expiration, attributes);
    statement.run();
  }
  _texts.add(row, std::move(attributes));
}

void WriteOperations::replace(std::int64_t row, Statement& found, const CSSearchableItem& item,
                              std::string attributes) {
  const auto expiration = sortable(item.expirationDate);
  const bool sameContent =
      found.bytes(2) == attributes && column(found, 3) == bytesOf(item.attributeSet.thumbnailData);
  if (sameContent) {
    if (column(found, 1) == bytesOf(expiration)) return;
    auto statement = _connection.statement("UPDATE items SET exp = ?2 WHERE rid = ?1");
    statement.bind(1, row);
    bindOptional(statement, 2, bytesOf(expiration));
    return statement.run();
  }
  _texts.remove(row, std::string{found.bytes(2)});
  auto statement =
      _connection.statement("UPDATE items SET exp = ?2, attrs = ?3, thumb = ?4 WHERE rid = ?1");
  statement.bind(1, row);
  bindContent(statement, item, expiration, attributes);
  statement.run();
  _texts.add(row, std::move(attributes));
}

void WriteOperations::bindContent(Statement& statement, const CSSearchableItem& item,
                                  const std::optional<SortableDate>& expiration,
                                  const std::string& attributes) {
  bindOptional(statement, 2, bytesOf(expiration));
  statement.bindBlob(3, attributes);
  bindOptional(statement, 4, bytesOf(item.attributeSet.thumbnailData));
}

void WriteOperations::deleteIdentifier(std::string_view identifier) {
  auto found = _connection.statement("SELECT rid, attrs FROM items WHERE uid = ?1");
  found.bindBlob(1, identifier);
  if (found.step()) deleteRow(found.integer(0), found.bytes(1));
}

void WriteOperations::deleteRow(std::int64_t row, std::string_view attributes) {
  _texts.remove(row, std::string{attributes});
  _connection.statement("DELETE FROM items WHERE rid = ?1").bind(1, row).run();
  _shrunkDomains.insert(domainOf(row));
}

void WriteOperations::deleteDomain(std::string_view domain) {
  const auto number = domainNamed(_connection, domain);
  if (!number) return;
  const auto rows = rowsOf(*number);
  {
    auto found = _connection.statement(
        "SELECT rid, attrs FROM items WHERE rid BETWEEN ?1 AND ?2 ORDER BY rid");
    found.bind(1, rows.first).bind(2, rows.last);
    while (found.step()) _texts.remove(found.integer(0), std::string{found.bytes(1)});
  }
  auto statement = _connection.statement("DELETE FROM items WHERE rid BETWEEN ?1 AND ?2");
  statement.bind(1, rows.first).bind(2, rows.last).run();
  _shrunkDomains.insert(*number);
}

void WriteOperations::purge(Date now, std::int64_t limit) {
  const SortableDate moment{now};
  std::vector<std::pair<std::int64_t, std::string>> expired;
  {
    auto found =
        _connection.statement("SELECT rid, attrs FROM items WHERE exp <= ?1 ORDER BY exp LIMIT ?2");
    found.bindBlob(1, moment.bytes()).bind(2, limit);
    while (found.step()) expired.emplace_back(found.integer(0), found.bytes(1));
  }
  for (const auto& [row, attributes] : expired) deleteRow(row, attributes);
}

void WriteOperations::finish() {
  _texts.write();
  for (const auto domain : _shrunkDomains) {
    const auto rows = rowsOf(domain);
    auto statement = _connection.statement(
        "DELETE FROM domains WHERE id = ?1 AND "
        "NOT EXISTS(SELECT 1 FROM items WHERE rid BETWEEN ?2 AND ?3)");
    statement.bind(1, domain).bind(2, rows.first).bind(3, rows.last).run();
  }
}

std::int64_t WriteOperations::makeDomain(std::string_view name) {
  if (const auto known = domainNamed(_connection, name)) return *known;
  _connection.statement("INSERT INTO domains(name) VALUES(?1)").bindBlob(1, name).run();
  const auto made = domainNamed(_connection, name);
  if (made && *made <= lastDomain) return *made;
  throw Failure{SQLiteIndexError::failed, "The search index " + _connection.file() +
                                              " cannot tell any more domains apart. Use fewer."};
}

std::int64_t WriteOperations::nextRow(std::int64_t domain) {
  const auto rows = rowsOf(domain);
  auto found = _connection.statement(
      "SELECT rid FROM items WHERE rid BETWEEN ?1 AND ?2 ORDER BY rid DESC LIMIT 1");
  found.bind(1, rows.first).bind(2, rows.last);
  if (!found.step()) return rows.first;
  if (found.integer(0) < rows.last) return found.integer(0) + 1;
  throw Failure{SQLiteIndexError::failed, "The search index " + _connection.file() +
                                              " has no row numbers left. Delete the file and "
                                              "index everything again."};
}

}  // namespace solvane::sqlite
