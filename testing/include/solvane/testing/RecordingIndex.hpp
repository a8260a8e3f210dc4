#pragma once

#include <atomic>
#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

#include <solvane/platform/CSSearchableIndex.hpp>

namespace solvane::testing {

/// A search index that keeps nothing but a record of what it was asked, for tests. Any thread.
///
///     auto index = std::make_shared<solvane::testing::RecordingIndex>();
///     solvane::testing::ScopedPlatform platform{{.searchableIndex = index}};
///     ...
///     EXPECT_EQ(index->calls().size(), 1U);
class RecordingIndex : public CSSearchableIndex {
 public:
  enum class Operation { index, deleteIdentifiers, deleteDomains };

  struct Call {
    Operation operation;
    std::vector<CSSearchableItem> items;  ///< what `index` was given
    std::vector<std::string> strings;     ///< what the deletions were given
  };

  /// Whether the index says that it is available; it says so from the start.
  void setAvailable(bool available) { _available = available; }

  /// The changes asked for, in the order of their arrival.
  [[nodiscard]] std::vector<Call> calls() const;

  /// The items of all `index` calls, one after the other.
  [[nodiscard]] std::vector<CSSearchableItem> items() const;

  /// How often it was asked whether it is available.
  [[nodiscard]] std::size_t availabilityQuestions() const { return _availabilityQuestions; }

  /// Completions are called on the caller's thread, without an error; or, from now on, not before
  /// `releaseCompletions`.
  void holdCompletions();
  void releaseCompletions();

  [[nodiscard]] bool isIndexingAvailable() const noexcept override;
  void indexSearchableItems(std::vector<CSSearchableItem> items,
                            CompletionHandler completionHandler) override;
  void deleteSearchableItemsWithIdentifiers(std::vector<std::string> identifiers,
                                            CompletionHandler completionHandler) override;
  void deleteSearchableItemsWithDomainIdentifiers(std::vector<std::string> domainIdentifiers,
                                                  CompletionHandler completionHandler) override;

 protected:
  /// What completions are given; none unless overridden.
  [[nodiscard]] virtual std::optional<Error> outcome() const { return std::nullopt; }

 private:
  void record(Call call, CompletionHandler completionHandler);

  std::atomic<bool> _available = true;
  mutable std::atomic<std::size_t> _availabilityQuestions = 0;
  mutable std::mutex _mutex;
  std::vector<Call> _calls;
  bool _holding = false;
  std::vector<CompletionHandler> _held;
};

}  // namespace solvane::testing
