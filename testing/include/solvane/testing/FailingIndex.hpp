#pragma once

#include <utility>

#include <solvane/testing/RecordingIndex.hpp>

namespace solvane::testing {

/// A search index that is available, records what it is asked, and fails at it.
class FailingIndex final : public RecordingIndex {
 public:
  explicit FailingIndex(Error error = {.code = 1, .message = "the index fails, as it was told to"})
      : _error(std::move(error)) {}

 protected:
  [[nodiscard]] std::optional<Error> outcome() const override { return _error; }

 private:
  Error _error;
};

}  // namespace solvane::testing
