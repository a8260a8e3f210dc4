#include "Problems.hpp"

#include <utility>

#include "Printable.hpp"

namespace solvane::tool {

void Problems::add(Problem problem) {
  ++_count;
  if (_first.size() < remembered) _first.push_back(std::move(problem));
}

void Problems::print(std::ostream& out, const std::string& file, const std::string& prefix) const {
  for (const auto& [line, key, text] : _first) {
    out << printable(file) << ':';
    if (line != 0) out << line << ':';
    out << ' ' << prefix;
    if (!key.empty()) out << printable(key) << ": ";
    out << printable(text) << '\n';
  }
  if (_count > _first.size()) {
    out << printable(file) << ": and " << _count - _first.size() << " more\n";
  }
}

}  // namespace solvane::tool
