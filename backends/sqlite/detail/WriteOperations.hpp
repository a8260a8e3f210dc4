#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string_view>

#include <solvane/platform/CSSearchableItem.hpp>

#include "detail/RowNumber.hpp"
#include "detail/TextIndex.hpp"

namespace solvane::sqlite {

class Connection;
class Statement;
class Tokenizer;

/// What can be changed in the index, within one write transaction. After a failure the transaction
/// must be undone.
class WriteOperations {
 public:
  WriteOperations(Connection& connection, Tokenizer& tokenizer);

  void index(const CSSearchableItem& item);
  void deleteIdentifier(std::string_view identifier);
  void deleteDomain(std::string_view domain);

  /// Removes up to `limit` of the items that have expired, the longest expired ones first.
  void purge(Date now, std::int64_t limit);

  /// Writes what is left to write. Once, before the transaction commits.
  void finish();

 private:
  void insert(std::int64_t domain, const CSSearchableItem& item, std::string attributes);
  void replace(std::int64_t row, Statement& found, const CSSearchableItem& item,
               std::string attributes);
  void deleteRow(std::int64_t row, std::string_view attributes);
  void bindContent(Statement& statement, const CSSearchableItem& item,
                   const std::optional<class SortableDate>& expiration,
                   const std::string& attributes);

  [[nodiscard]] std::int64_t makeDomain(std::string_view name);
  [[nodiscard]] std::int64_t nextRow(std::int64_t domain);

  Connection& _connection;
  TextIndex _texts;

  /// Domains that lost items, and may be empty now.
  std::set<std::int64_t> _shrunkDomains;
};

}  // namespace solvane::sqlite
