#include "LineReader.hpp"

#include <string_view>

namespace solvane::tool {

std::optional<LineReader::Line> LineReader::next() {
  if (_ended) return std::nullopt;
  Line line{++_number, {}, false};
  int byte = _in.get();
  if (byte == std::istream::traits_type::eof()) return std::nullopt;
  for (; byte != std::istream::traits_type::eof() && byte != '\n'; byte = _in.get()) {
    if (line.text.size() == _longest) {
      _ended = line.tooLong = true;
      return line;
    }
    line.text += static_cast<char>(byte);
  }
  if (line.text.ends_with('\r')) line.text.pop_back();
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (_number == 1 && line.text.starts_with(byteOrderMark)) {
    line.text.erase(0, byteOrderMark.size());
  }
  return line;
}

}  // namespace solvane::tool
