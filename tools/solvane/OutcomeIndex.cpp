#include "OutcomeIndex.hpp"

#include <utility>

namespace solvane::tool {
namespace {

std::optional<Date> earliest(std::optional<Date> left, std::optional<Date> right) {
  if (!left || !right) return left ? left : right;
  return *left < *right ? left : right;
}

}  // namespace

OutcomeIndex::OutcomeIndex(std::shared_ptr<CSSearchableIndex> target)
    : _target(std::move(target)) {}

std::shared_ptr<CSSearchableIndex> OutcomeIndex::target() const {
  const std::lock_guard lock{_mutex};
  return _target;
}

bool OutcomeIndex::isIndexingAvailable() const noexcept {
  const auto index = target();
  return index && index->isIndexingAvailable();
}

template <class Operation>
void OutcomeIndex::forward(Batch batch, CompletionHandler completionHandler, Operation operation) {
  const auto index = target();
  {
    const std::lock_guard lock{_mutex};
    ++_pending;
  }
  CompletionHandler answer = [this, batch, completion = std::move(completionHandler)](
                                 const std::optional<Error>& error) mutable {
    // The service's own completion first: once `finish` has run, nobody waits for this one.
    if (completion) completion(error);
    finish(batch, error);
  };
  if (!index) return answer(Error{1, "The index is closed."});
  operation(*index, std::move(answer));
}

void OutcomeIndex::indexSearchableItems(std::vector<CSSearchableItem> items,
                                        CompletionHandler completionHandler) {
  Batch batch{items.size(), std::nullopt};
  for (const auto& item : items) {
    batch.firstExpiration = earliest(batch.firstExpiration, item.expirationDate);
  }
  forward(batch, std::move(completionHandler), [&](auto& index, auto answer) {
    index.indexSearchableItems(std::move(items), std::move(answer));
  });
}

void OutcomeIndex::deleteSearchableItemsWithIdentifiers(std::vector<std::string> identifiers,
                                                        CompletionHandler completionHandler) {
  forward({}, std::move(completionHandler), [&](auto& index, auto answer) {
    index.deleteSearchableItemsWithIdentifiers(std::move(identifiers), std::move(answer));
  });
}

void OutcomeIndex::deleteSearchableItemsWithDomainIdentifiers(
    std::vector<std::string> domainIdentifiers, CompletionHandler completionHandler) {
  forward({}, std::move(completionHandler), [&](auto& index, auto answer) {
    index.deleteSearchableItemsWithDomainIdentifiers(std::move(domainIdentifiers),
                                                     std::move(answer));
  });
}

void OutcomeIndex::finish(const Batch& batch, const std::optional<Error>& error) {
  const std::lock_guard lock{_mutex};
  if (error) {
    _outcome.errors.push_back(*error);
  } else {
    _outcome.publishedItems += batch.items;
    _outcome.firstExpiration = earliest(_outcome.firstExpiration, batch.firstExpiration);
  }
  --_pending;
  // Under the lock, so that whoever waits cannot let go of this object in between.
  _changed.notify_all();
}

Outcome OutcomeIndex::wait() {
  std::unique_lock lock{_mutex};
  _changed.wait(lock, [this] { return _pending == 0; });
  return _outcome;
}

void OutcomeIndex::detach() {
  std::shared_ptr<CSSearchableIndex> released;
  const std::lock_guard lock{_mutex};
  released = std::move(_target);
}

}  // namespace solvane::tool
