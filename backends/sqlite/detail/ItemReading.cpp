#include "detail/ItemReading.hpp"

#include <limits>

#include "detail/AttributeCodec.hpp"
#include "detail/Connection.hpp"
#include "detail/Failure.hpp"
#include "detail/SortableDate.hpp"

namespace solvane::sqlite {
namespace {

std::optional<Date> dateIn(const Connection& connection, const Statement& row, int column) {
  if (row.isNull(column)) return std::nullopt;
  auto date = SortableDate::decode(row.bytes(column));
  if (!date) throw damage(connection.file(), "an expiration date cannot be read");
  return date;
}

// Of a row with the columns uid, name, exp, attrs, thumb.
CSSearchableItem itemOf(const Connection& connection, const Statement& row) {
  CSSearchableItem item{std::string{row.bytes(0)}, std::string{row.bytes(1)},
                        attributesIn(connection, row.bytes(3))};
  item.expirationDate = dateIn(connection, row, 2);
  if (!row.isNull(4)) {
    const auto thumbnail = row.bytes(4);
    item.attributeSet.thumbnailData = Data{thumbnail.data(), thumbnail.size()};
  }
  return item;
}

}  // namespace

CSSearchableItemAttributeSet attributesIn(const Connection& connection, std::string_view bytes) {
  auto attributes = AttributeCodec::decode(bytes);
  if (!attributes) throw damage(connection.file(), "an item's attributes cannot be read");
  return *std::move(attributes);
}

std::optional<CSSearchableItem> findItem(Connection& connection, std::string_view identifier,
                                         Date now) {
  const SortableDate moment{now};
  auto found = connection.statement(
      "SELECT uid, name, exp, attrs, thumb FROM items JOIN domains ON id = rid >> 40 "
      "WHERE uid = ?1 AND (exp IS NULL OR exp > ?2)");
  found.bindBlob(1, identifier).bindBlob(2, moment.bytes());
  if (!found.step()) return std::nullopt;
  return itemOf(connection, found);
}

CSSearchableItem itemInRow(Connection& connection, std::int64_t row) {
  auto found = connection.statement(
      "SELECT uid, name, exp, attrs, thumb FROM items JOIN domains ON id = rid >> 40 "
      "WHERE rid = ?1");
  if (!found.bind(1, row).step()) throw damage(connection.file(), "an item has no domain");
  return itemOf(connection, found);
}

std::vector<CSSearchableItem> listItems(Connection& connection, const ListOptions& options,
                                        Date now) {
  // The order is that of the indexes, so that nothing is sorted.
  auto found = connection.statement(
      "SELECT uid, name, exp, attrs, thumb FROM domains CROSS JOIN items "
      "ON rid BETWEEN id << 40 AND (id << 40) + ((1 << 40) - 1) "
      "WHERE (?1 IS NULL OR name = ?1) AND (exp IS NULL OR exp > ?2) "
      "ORDER BY name, rid LIMIT ?3 OFFSET ?4");
  const SortableDate moment{now};
  if (options.domainIdentifier) found.bindBlob(1, *options.domainIdentifier);
  found.bindBlob(2, moment.bytes()).bind(3, limitOf(options.limit));
  found.bind(4, limitOf(options.offset));
  std::vector<CSSearchableItem> items;
  while (found.step()) items.push_back(itemOf(connection, found));
  return items;
}

IndexStatistics countItems(Connection& connection, Date now) {
  const SortableDate moment{now};
  IndexStatistics statistics;
  auto counts = connection.statement(
      "SELECT name, count(*) FROM domains CROSS JOIN items "
      "ON rid BETWEEN id << 40 AND (id << 40) + ((1 << 40) - 1) "
      "WHERE exp IS NULL OR exp > ?1 GROUP BY id");
  counts.bindBlob(1, moment.bytes());
  while (counts.step()) {
    const auto count = static_cast<std::size_t>(counts.integer(1));
    statistics.itemsPerDomain.emplace(counts.bytes(0), count);
    statistics.items += count;
  }
  auto expirations = connection.statement(
      "SELECT (SELECT min(exp) FROM items WHERE exp > ?1),"
      "(SELECT max(exp) FROM items WHERE exp > ?1)");
  if (expirations.bindBlob(1, moment.bytes()).step()) {
    statistics.firstExpiration = dateIn(connection, expirations, 0);
    statistics.lastExpiration = dateIn(connection, expirations, 1);
  }
  return statistics;
}

std::optional<std::int64_t> domainNamed(Connection& connection, std::string_view name) {
  auto found = connection.statement("SELECT id FROM domains WHERE name = ?1");
  if (!found.bindBlob(1, name).step()) return std::nullopt;
  return found.integer(0);
}

std::int64_t limitOf(std::size_t count) {
  constexpr auto most = std::numeric_limits<std::int64_t>::max();
  return count < static_cast<std::size_t>(most) ? static_cast<std::int64_t>(count) : most;
}

}  // namespace solvane::sqlite
