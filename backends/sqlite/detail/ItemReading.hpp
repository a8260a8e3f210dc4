#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include <solvane/sqlite/SQLiteIndex.hpp>

namespace solvane::sqlite {

class Connection;

/// The attributes in an item's `attrs`, which are damaged if they cannot be read.
[[nodiscard]] CSSearchableItemAttributeSet attributesIn(const Connection& connection,
                                                        std::string_view bytes);

/// The item with this identifier, unless it has expired by `now`.
[[nodiscard]] std::optional<CSSearchableItem> findItem(Connection& connection,
                                                       std::string_view identifier, Date now);

/// The item in this row, of which it is known that there is one.
[[nodiscard]] CSSearchableItem itemInRow(Connection& connection, std::int64_t row);

[[nodiscard]] std::vector<CSSearchableItem> listItems(Connection& connection,
                                                      const ListOptions& options, Date now);

/// Everything but the size on the disk.
[[nodiscard]] IndexStatistics countItems(Connection& connection, Date now);

/// The number of the domain, if there is one of this name.
[[nodiscard]] std::optional<std::int64_t> domainNamed(Connection& connection,
                                                      std::string_view name);

/// `count` for SQL, which knows smaller numbers only.
[[nodiscard]] std::int64_t limitOf(std::size_t count);

}  // namespace solvane::sqlite
