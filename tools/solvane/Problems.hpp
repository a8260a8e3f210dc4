#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

namespace solvane::tool {

/// What is wrong in a file: on which line and with which key, as far as it is about one, and what
/// to do about it.
struct Problem {
  std::size_t line = 0;
  std::string key;
  std::string text;
};

/// The problems of one file. Remembers the first ones and counts the rest, so that a file that is
/// wrong from end to end neither floods the terminal nor fills the memory.
class Problems {
 public:
  static constexpr std::size_t remembered = 20;

  void add(Problem problem);

  [[nodiscard]] std::size_t count() const { return _count; }
  [[nodiscard]] bool none() const { return _count == 0; }
  [[nodiscard]] const std::vector<Problem>& first() const { return _first; }

  /// One line for each, `file:line: key: text`, and how many more there are.
  void print(std::ostream& out, const std::string& file, const std::string& prefix = {}) const;

 private:
  std::vector<Problem> _first;
  std::size_t _count = 0;
};

}  // namespace solvane::tool
