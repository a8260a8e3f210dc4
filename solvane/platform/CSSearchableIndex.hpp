#pragma once

#include <optional>
#include <string>
#include <vector>

#include <solvane/platform/CSSearchableItem.hpp>
#include <solvane/platform/Error.hpp>
#include <solvane/platform/UniqueFunction.hpp>

namespace solvane {

/// The device's search index, as the library sees it.
///
/// The library calls every operation from several threads at once, and reads availability on the
/// host's own thread: implementations are thread-safe, answer availability without waiting, and do
/// not throw. Each of the three changes calls its completion exactly once, on a thread of the
/// implementation's choosing (the caller's included, and possibly before the operation returns),
/// holding no lock that an operation of the same index needs: a completion may call the index
/// again. The library itself ignores every error it is given.
class CSSearchableIndex {
 public:
  /// Receives the error, or none when the change is made; does not throw. May be empty: nobody
  /// wants to know.
  using CompletionHandler = UniqueFunction<void(std::optional<Error>)>;

  CSSearchableIndex() = default;
  CSSearchableIndex(const CSSearchableIndex&) = delete;
  CSSearchableIndex& operator=(const CSSearchableIndex&) = delete;
  virtual ~CSSearchableIndex() = default;

  /// Whether the index can accept items at the moment.
  [[nodiscard]] virtual bool isIndexingAvailable() const noexcept = 0;

  /// Adds the items, each replacing what stood under its identifier in whatever domain. Of items
  /// that share an identifier, the last of the list stays.
  virtual void indexSearchableItems(std::vector<CSSearchableItem> items,
                                    CompletionHandler completionHandler) = 0;

  /// Removes the items with these identifiers from every domain. Unknown ones are no error.
  virtual void deleteSearchableItemsWithIdentifiers(std::vector<std::string> identifiers,
                                                    CompletionHandler completionHandler) = 0;

  /// Removes every item whose domain is one of these, compared whole and byte for byte.
  virtual void deleteSearchableItemsWithDomainIdentifiers(
      std::vector<std::string> domainIdentifiers, CompletionHandler completionHandler) = 0;
};

}  // namespace solvane
