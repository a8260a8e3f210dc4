#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "detail/GroupCommit.hpp"

namespace solvane::sqlite {

/// The thread that writes. It takes all the changes that wait, commits them together, and then
/// calls their completions.
class Writer {
 public:
  Writer(std::unique_ptr<GroupCommit> commits, std::function<Date()> now,
         std::chrono::milliseconds clockCheck);
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

  ~Writer();

  /// Returns when everything that waits is made; when called from a completion, at once, and the
  /// thread makes the rest and then closes the file. Nothing is submitted afterwards.
  void finish();

  void submit(Change change);

  /// False when `timeout` passed first, or at once when called from a completion.
  [[nodiscard]] bool waitUntilIdle(std::chrono::milliseconds timeout);

 private:
  // Shared with the thread, which outlives the writer when a completion lets go of the index.
  struct State;

  [[nodiscard]] bool isOwnThread() const;

  std::shared_ptr<State> _state;
  std::thread _thread;
};

}  // namespace solvane::sqlite
