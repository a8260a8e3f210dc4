#include "detail/ReaderPool.hpp"

namespace solvane::sqlite {
namespace {

constexpr std::size_t mostWaiting = 4;

}  // namespace

std::unique_ptr<Reader> ReaderPool::take() {
  {
    const std::lock_guard lock{_mutex};
    if (!_waiting.empty()) {
      auto reader = std::move(_waiting.back());
      _waiting.pop_back();
      return reader;
    }
  }
  return std::make_unique<Reader>(_file, _busyTimeout);
}

void ReaderPool::giveBack(std::unique_ptr<Reader> reader) {
  const std::lock_guard lock{_mutex};
  if (_waiting.size() < mostWaiting) _waiting.push_back(std::move(reader));
}

}  // namespace solvane::sqlite
