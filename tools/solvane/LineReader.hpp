#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>

namespace solvane::tool {

/// Reads a text line by line, never holding more than one line: without its line end, LF or CRLF,
/// and without the byte-order mark that some editors put before the first.
class LineReader {
 public:
  struct Line {
    /// Counted from one.
    std::size_t number = 0;
    std::string text;

    /// The line goes on beyond the longest that is read. Nothing is read after it.
    bool tooLong = false;
  };

  static constexpr std::size_t longestLine = std::size_t{32} << 20U;

  explicit LineReader(std::istream& in, std::size_t longest = longestLine)
      : _in(in), _longest(longest) {}

  /// The next line; absent at the end.
  [[nodiscard]] std::optional<Line> next();

  /// Whether reading ended early because the file could not be read on.
  [[nodiscard]] bool failed() const { return _in.bad(); }

 private:
  std::istream& _in;
  std::size_t _longest;
  std::size_t _number = 0;
  bool _ended = false;
};

}  // namespace solvane::tool
