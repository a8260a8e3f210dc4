#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <solvane/platform/CSSearchableIndex.hpp>
#include <solvane/service/Solvane.hpp>

#include "OutcomeIndex.hpp"
#include "PublicationPlan.hpp"

namespace solvane::tool {

/// The library's service, working on one index, and what came of it. Installs the index as the
/// platform's for its lifetime; one at a time in a process.
class Publisher {
 public:
  explicit Publisher(std::shared_ptr<CSSearchableIndex> index);
  Publisher(const Publisher&) = delete;
  Publisher& operator=(const Publisher&) = delete;
  ~Publisher();

  [[nodiscard]] Solvane& service() { return *_service; }

  /// Publishes the records in operations of some thousand each, one after the other, and after each
  /// tells `progress` how many items are done. Ends early when one fails. An error in the outcome
  /// also stands for an index that takes nothing.
  [[nodiscard]] Outcome publish(std::vector<PublicationGroup>&& groups,
                                const std::function<void(std::size_t)>& progress);

  /// Waits until everything the service was told is done.
  [[nodiscard]] Outcome wait();

 private:
  std::shared_ptr<OutcomeIndex> _index;
  std::shared_ptr<Solvane> _service;
};

/// How many records there are.
[[nodiscard]] std::size_t countRecords(const std::vector<PublicationGroup>& groups);

}  // namespace solvane::tool
