#include "ProgressBar.hpp"

#include <algorithm>
#include <string>
#include <utility>

namespace solvane::tool {

ProgressBar::ProgressBar(std::ostream& out, bool terminal, std::size_t total, Clock now)
    : _out(out), _terminal(terminal), _total(total), _now(std::move(now)), _begin(_now()) {}

ProgressBar::~ProgressBar() {
  if (_drawn) _out << "\r\x1b[K" << std::flush;
}

void ProgressBar::update(std::size_t done) {
  constexpr std::size_t width = 30;
  constexpr std::chrono::milliseconds unnoticed{300};
  if (!_terminal || _total == 0 || _now() - _begin < unnoticed) return;
  const auto filled = width * std::min(done, _total) / _total;
  _out << "\r\x1b[K[" << std::string(filled, '#') << std::string(width - filled, ' ') << "] "
       << done << " of " << _total << " items" << std::flush;
  _drawn = true;
}

}  // namespace solvane::tool
