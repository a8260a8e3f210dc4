#pragma once

#include <chrono>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "detail/Reader.hpp"
#include "detail/Transaction.hpp"

namespace solvane::sqlite {

/// Readers that wait for use. A call that finds none opens another, so that nobody waits.
class ReaderPool {
 public:
  ReaderPool(std::string file, std::chrono::milliseconds busyTimeout)
      : _file(std::move(file)), _busyTimeout(busyTimeout) {}

  /// What `task` returns of a reader that shows one moment of the index.
  template <class Task>
  auto read(Task&& task) -> decltype(task(std::declval<Reader&>())) {
    auto reader = take();
    auto value = [&] {
      const Transaction moment{reader->connection, Transaction::Kind::read};
      return task(*reader);
    }();
    giveBack(std::move(reader));
    return value;
  }

 private:
  [[nodiscard]] std::unique_ptr<Reader> take();
  void giveBack(std::unique_ptr<Reader> reader);

  const std::string _file;
  const std::chrono::milliseconds _busyTimeout;
  std::mutex _mutex;
  std::vector<std::unique_ptr<Reader>> _waiting;
};

}  // namespace solvane::sqlite
