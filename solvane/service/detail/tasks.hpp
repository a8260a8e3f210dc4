#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <solvane/detail/structified.hpp>
#include <solvane/platform/Platform.hpp>
#include <solvane/service/Solvane.hpp>

/// What the operations of the service share besides the conversion: the guard and the tasks.
namespace solvane::detail {

/// Emptiness first: an empty list asks the platform nothing.
template <class Element>
bool passesGuard(const std::vector<Element>& list) {
  return !list.empty() && Platform::current().searchableIndex->isIndexingAvailable();
}

/// Lets a compiler make an item where a container puts it: moving one is not free.
template <class Builder>
struct InPlace {
  operator CSSearchableItem() const { return build(); }
  Builder build;
};

/// The library reports no platform error to anyone.
inline void discard(const std::optional<Error>& /*error*/) {}

/// Removes the items that the entities with these catalogue identifiers have in the index.
void deleteIdentified(std::vector<std::string> identifiers, std::string (*uniqueID)(std::string));

}  // namespace solvane::detail

namespace solvane {

template <class Record, class Builder>
void Solvane::indexRecords(std::vector<Record> records, Builder buildItem) {
  if (!detail::passesGuard(records)) return;
  // The task holds the service but never touches it, so that one on the stack is safe as well.
  _queue->async([records = std::move(records), buildItem = std::move(buildItem),
                 service = weak_from_this().lock()] {
    std::vector<CSSearchableItem> items;
    items.reserve(records.size());
    for (const Record& record : records) {
      const auto build = [&] { return buildItem(record); };
      items.emplace_back(detail::InPlace<decltype(build)>{build});
    }
    Platform::current().searchableIndex->indexSearchableItems(std::move(items), detail::discard);
  });
}

}  // namespace solvane
