#include "detail/Writer.hpp"

#include <algorithm>
#include <utility>

#include <solvane/posix/BackgroundSignals.hpp>

namespace solvane::sqlite {
namespace {

using std::chrono::milliseconds;

// Expired items that cannot be removed now are not to keep the thread busy.
constexpr milliseconds pauseAfterFailure{1000};

// Longer than anyone waits, and short enough for every clock's arithmetic.
constexpr milliseconds forever = std::chrono::hours{24 * 365};

std::thread startThread(auto body) {
  const BackgroundSignals background;
  return std::thread{std::move(body)};
}

milliseconds pauseUntil(std::optional<Date> next, Date now, milliseconds longestPause) {
  if (!next) return forever;
  if (*next <= now) return milliseconds{0};
  // Unsigned: the two may lie further apart than a signed difference can say.
  const auto seconds = static_cast<std::uint64_t>(next->secondsSinceEpoch()) -
                       static_cast<std::uint64_t>(now.secondsSinceEpoch());
  if (seconds > std::uint64_t{24} * 60 * 60) return longestPause;
  const std::chrono::nanoseconds pause =
      std::chrono::seconds{seconds} +
      std::chrono::nanoseconds{next->nanoseconds() - now.nanoseconds()};
  return std::min(longestPause, std::chrono::ceil<milliseconds>(pause));
}

}  // namespace

struct Writer::State {
  State(std::unique_ptr<GroupCommit> groupCommit, std::function<Date()> clock,
        milliseconds clockCheckInterval)
      : commits(std::move(groupCommit)), now(std::move(clock)), clockCheck(clockCheckInterval) {}

  void run();

  [[nodiscard]] bool isClosing();

  /// What waits, after a pause of at most this length if nothing does; none when all is done.
  [[nodiscard]] std::optional<std::vector<Change>> take(milliseconds pause);
  void make(std::vector<Change> changes);

  /// Returns how long to wait for the next expiration.
  [[nodiscard]] milliseconds purge() const;

  /// The thread's own.
  std::unique_ptr<GroupCommit> commits;
  std::function<Date()> now;
  milliseconds clockCheck;

  std::mutex mutex;
  std::condition_variable handedOver;
  std::condition_variable completed;
  std::vector<Change> waiting;
  std::uint64_t handedOverCount = 0;
  std::uint64_t completedCount = 0;
  bool closing = false;
};

void Writer::State::run() {
  auto pause = milliseconds{0};
  while (auto changes = take(pause)) {
    if (!changes->empty()) make(*std::move(changes));
    // A host that has let go of the index may have let go of its clock as well.
    pause = isClosing() ? milliseconds{0} : purge();
  }
}

bool Writer::State::isClosing() {
  const std::lock_guard lock{mutex};
  return closing;
}

std::optional<std::vector<Change>> Writer::State::take(milliseconds pause) {
  std::unique_lock lock{mutex};
  handedOver.wait_for(lock, pause, [&] { return closing || !waiting.empty(); });
  if (closing && waiting.empty()) return std::nullopt;
  return std::exchange(waiting, {});
}

void Writer::State::make(std::vector<Change> changes) {
  auto results = commits->commit(changes, now());
  for (std::size_t i = 0; i < changes.size(); ++i) {
    if (changes[i].completion) changes[i].completion(std::move(results[i]));
    // What the completion holds is let go of before anyone hears that it has run.
    changes[i].completion = nullptr;
    {
      const std::lock_guard lock{mutex};
      ++completedCount;
    }
    completed.notify_all();
  }
}

milliseconds Writer::State::purge() const {
  const auto present = now();
  auto next = commits->nextExpiration();
  if (next && *next <= present) {
    if (!commits->purge(present)) return pauseAfterFailure;
    next = commits->nextExpiration();
  }
  return pauseUntil(next, present, clockCheck);
}

Writer::Writer(std::unique_ptr<GroupCommit> commits, std::function<Date()> now,
               milliseconds clockCheck)
    : _state(std::make_shared<State>(std::move(commits), std::move(now), clockCheck)),
      _thread(startThread([state = _state] { state->run(); })) {}

Writer::~Writer() { finish(); }

void Writer::finish() {
  {
    const std::lock_guard lock{_state->mutex};
    _state->closing = true;
  }
  _state->handedOver.notify_all();
  if (!_thread.joinable()) return;
  if (isOwnThread()) {
    _thread.detach();
  } else {
    _thread.join();
  }
}

bool Writer::isOwnThread() const { return _thread.get_id() == std::this_thread::get_id(); }

void Writer::submit(Change change) {
  {
    const std::lock_guard lock{_state->mutex};
    _state->waiting.push_back(std::move(change));
    ++_state->handedOverCount;
  }
  _state->handedOver.notify_one();
}

bool Writer::waitUntilIdle(milliseconds timeout) {
  if (isOwnThread()) return false;
  std::unique_lock lock{_state->mutex};
  const auto all = _state->handedOverCount;
  return _state->completed.wait_for(lock, std::clamp(timeout, milliseconds{0}, forever),
                                    [&] { return _state->completedCount >= all; });
}

}  // namespace solvane::sqlite
