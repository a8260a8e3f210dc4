#include <solvane/service/Solvane.hpp>
#include <solvane/service/detail/tasks.hpp>

namespace solvane {

Solvane::Solvane()
    : _queue(Platform::current().dispatch->makeConcurrentQueue("dev.solvane.Solvane")) {}

void Solvane::deleteItems(std::vector<std::string> identifiers,
                          std::string (*uniqueID)(std::string)) {
  if (!detail::passesGuard(identifiers)) return;
  _queue->async([identifiers = std::move(identifiers), uniqueID]() mutable {
    detail::deleteIdentified(std::move(identifiers), uniqueID);
  });
}

// The checks are made in the task and not by the caller, on purpose: an operation that takes this
// road queues its task whatever it is given.
void Solvane::queueRemoval(std::vector<std::string> list,
                           void (*remove)(std::vector<std::string>)) {
  _queue->async([list = std::move(list), remove]() mutable {
    if (detail::passesGuard(list)) remove(std::move(list));
  });
}

void detail::deleteIdentified(std::vector<std::string> identifiers,
                              std::string (*uniqueID)(std::string)) {
  for (auto& identifier : identifiers) identifier = uniqueID(std::move(identifier));
  Platform::current().searchableIndex->deleteSearchableItemsWithIdentifiers(std::move(identifiers),
                                                                            discard);
}

}  // namespace solvane
