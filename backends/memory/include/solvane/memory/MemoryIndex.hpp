#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <solvane/platform/CSSearchableIndex.hpp>

namespace solvane {

/// A search index in the memory of this process: always available, gone when the process ends.
///
/// Changes are made, and their completions called, on the caller's thread before the operation
/// returns. From its expiration date on an item is invisible, and the next use of the index drops
/// it. Any thread.
class MemoryIndex final : public CSSearchableIndex {
 public:
  /// `now` tells the present moment, by which items expire; it is called from any thread, and does
  /// not call the index.
  explicit MemoryIndex(std::function<Date()> now = &Date::now);

  [[nodiscard]] bool isIndexingAvailable() const noexcept override;
  void indexSearchableItems(std::vector<CSSearchableItem> items,
                            CompletionHandler completionHandler) override;
  void deleteSearchableItemsWithIdentifiers(std::vector<std::string> identifiers,
                                            CompletionHandler completionHandler) override;
  void deleteSearchableItemsWithDomainIdentifiers(std::vector<std::string> domainIdentifiers,
                                                  CompletionHandler completionHandler) override;

  /// The item with this identifier, if there is one.
  [[nodiscard]] std::optional<CSSearchableItem> find(const std::string& uniqueIdentifier) const;

  /// Every item, in the order of the identifiers' bytes.
  [[nodiscard]] std::vector<CSSearchableItem> list() const;

  [[nodiscard]] std::size_t size() const;

 private:
  void dropExpired() const;
  void insert(CSSearchableItem item);
  void erase(const std::string& uniqueIdentifier);

  std::function<Date()> _now;
  mutable std::mutex _mutex;
  mutable std::map<std::string, CSSearchableItem> _items;
  mutable std::set<std::pair<Date, std::string>> _expirations;
};

}  // namespace solvane
