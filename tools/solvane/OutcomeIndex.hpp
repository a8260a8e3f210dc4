#pragma once

#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include <solvane/model/Date.hpp>
#include <solvane/platform/CSSearchableIndex.hpp>

namespace solvane::tool {

/// What became of the changes that went through an `OutcomeIndex`.
struct Outcome {
  /// Items of index operations that were made without an error.
  std::size_t publishedItems = 0;

  /// The earliest expiration date among them.
  std::optional<Date> firstExpiration;

  /// One for each operation that failed, of whatever sort.
  std::vector<Error> errors;
};

/// Passes everything on to another index and keeps what that one answers, since the service, which
/// stands in between, discards it.
class OutcomeIndex final : public CSSearchableIndex {
 public:
  explicit OutcomeIndex(std::shared_ptr<CSSearchableIndex> target);

  [[nodiscard]] bool isIndexingAvailable() const noexcept override;
  void indexSearchableItems(std::vector<CSSearchableItem> items,
                            CompletionHandler completionHandler) override;
  void deleteSearchableItemsWithIdentifiers(std::vector<std::string> identifiers,
                                            CompletionHandler completionHandler) override;
  void deleteSearchableItemsWithDomainIdentifiers(std::vector<std::string> domainIdentifiers,
                                                  CompletionHandler completionHandler) override;

  /// Waits until every operation that was begun is answered, and tells of all until now.
  [[nodiscard]] Outcome wait();

  /// Lets go of the other index, so that it can be closed while this one, installed as the
  /// platform's, lives on. From then on it is unavailable and every operation fails.
  void detach();

 private:
  struct Batch {
    std::size_t items = 0;
    std::optional<Date> firstExpiration;
  };

  [[nodiscard]] std::shared_ptr<CSSearchableIndex> target() const;
  template <class Operation>
  void forward(Batch batch, CompletionHandler completionHandler, Operation operation);
  void finish(const Batch& batch, const std::optional<Error>& error);

  mutable std::mutex _mutex;
  std::condition_variable _changed;
  std::shared_ptr<CSSearchableIndex> _target;
  std::size_t _pending = 0;
  Outcome _outcome;
};

}  // namespace solvane::tool
