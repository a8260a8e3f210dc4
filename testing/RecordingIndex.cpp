#include <utility>

#include <solvane/testing/RecordingIndex.hpp>

namespace solvane::testing {

std::vector<RecordingIndex::Call> RecordingIndex::calls() const {
  const std::lock_guard lock{_mutex};
  return _calls;
}

std::vector<CSSearchableItem> RecordingIndex::items() const {
  std::vector<CSSearchableItem> items;
  for (const auto& call : calls()) items.insert(items.end(), call.items.begin(), call.items.end());
  return items;
}

void RecordingIndex::holdCompletions() {
  const std::lock_guard lock{_mutex};
  _holding = true;
}

void RecordingIndex::releaseCompletions() {
  std::vector<CompletionHandler> released;
  {
    const std::lock_guard lock{_mutex};
    _holding = false;
    released.swap(_held);
  }
  for (auto& completionHandler : released) completionHandler(outcome());
}

bool RecordingIndex::isIndexingAvailable() const noexcept {
  ++_availabilityQuestions;
  return _available;
}

void RecordingIndex::indexSearchableItems(std::vector<CSSearchableItem> items,
                                          CompletionHandler completionHandler) {
  record({Operation::index, std::move(items), {}}, std::move(completionHandler));
}

void RecordingIndex::deleteSearchableItemsWithIdentifiers(std::vector<std::string> identifiers,
                                                          CompletionHandler completionHandler) {
  record({Operation::deleteIdentifiers, {}, std::move(identifiers)}, std::move(completionHandler));
}

void RecordingIndex::deleteSearchableItemsWithDomainIdentifiers(
    std::vector<std::string> domainIdentifiers, CompletionHandler completionHandler) {
  record({Operation::deleteDomains, {}, std::move(domainIdentifiers)},
         std::move(completionHandler));
}

void RecordingIndex::record(Call call, CompletionHandler completionHandler) {
  {
    const std::lock_guard lock{_mutex};
    _calls.push_back(std::move(call));
    if (!completionHandler) return;
    if (_holding) {
      _held.push_back(std::move(completionHandler));
      return;
    }
  }
  completionHandler(outcome());
}

}  // namespace solvane::testing
