#include <algorithm>

#include <solvane/memory/MemoryIndex.hpp>

namespace solvane {
namespace {

void complete(CSSearchableIndex::CompletionHandler& completionHandler) {
  if (completionHandler) completionHandler(std::nullopt);
}

}  // namespace

MemoryIndex::MemoryIndex(std::function<Date()> now) : _now(std::move(now)) {}

bool MemoryIndex::isIndexingAvailable() const noexcept { return true; }

void MemoryIndex::indexSearchableItems(std::vector<CSSearchableItem> items,
                                       CompletionHandler completionHandler) {
  {
    const std::lock_guard lock{_mutex};
    dropExpired();
    for (auto& item : items) insert(std::move(item));
  }
  complete(completionHandler);
}

void MemoryIndex::deleteSearchableItemsWithIdentifiers(std::vector<std::string> identifiers,
                                                       CompletionHandler completionHandler) {
  {
    const std::lock_guard lock{_mutex};
    dropExpired();
    for (const auto& identifier : identifiers) erase(identifier);
  }
  complete(completionHandler);
}

void MemoryIndex::deleteSearchableItemsWithDomainIdentifiers(
    std::vector<std::string> domainIdentifiers, CompletionHandler completionHandler) {
  {
    const std::lock_guard lock{_mutex};
    dropExpired();
    const std::set<std::string> domains{domainIdentifiers.begin(), domainIdentifiers.end()};
    std::vector<std::string> doomed;
    for (const auto& [identifier, item] : _items) {
      if (domains.contains(item.domainIdentifier)) doomed.push_back(identifier);
    }
    for (const auto& identifier : doomed) erase(identifier);
  }
  complete(completionHandler);
}

std::optional<CSSearchableItem> MemoryIndex::find(const std::string& uniqueIdentifier) const {
  const std::lock_guard lock{_mutex};
  dropExpired();
  const auto found = _items.find(uniqueIdentifier);
  if (found == _items.end()) return std::nullopt;
  return found->second;
}

std::vector<CSSearchableItem> MemoryIndex::list() const {
  const std::lock_guard lock{_mutex};
  dropExpired();
  std::vector<CSSearchableItem> items;
  items.reserve(_items.size());
  for (const auto& [identifier, item] : _items) items.push_back(item);
  return items;
}

std::size_t MemoryIndex::size() const {
  const std::lock_guard lock{_mutex};
  dropExpired();
  return _items.size();
}

void MemoryIndex::dropExpired() const {
  const Date now = _now();
  while (!_expirations.empty() && _expirations.begin()->first <= now) {
    _items.erase(_expirations.begin()->second);
    _expirations.erase(_expirations.begin());
  }
}

void MemoryIndex::insert(CSSearchableItem item) {
  erase(item.uniqueIdentifier);
  if (item.expirationDate) _expirations.emplace(*item.expirationDate, item.uniqueIdentifier);
  auto identifier = item.uniqueIdentifier;
  _items.emplace(std::move(identifier), std::move(item));
}

void MemoryIndex::erase(const std::string& uniqueIdentifier) {
  const auto found = _items.find(uniqueIdentifier);
  if (found == _items.end()) return;
  if (const auto& date = found->second.expirationDate)
    _expirations.erase({*date, uniqueIdentifier});
  _items.erase(found);
}

}  // namespace solvane
