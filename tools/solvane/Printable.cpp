#include "Printable.hpp"

#include "Utf8.hpp"

namespace solvane::tool {
namespace {

bool isControl(char32_t codePoint) {
  return codePoint < 0x20 || (codePoint >= 0x7F && codePoint <= 0x9F);
}

bool turnsDirection(char32_t codePoint) {
  return (codePoint >= 0x202A && codePoint <= 0x202E) ||
         (codePoint >= 0x2066 && codePoint <= 0x2069);
}

std::string escape(char32_t codePoint) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string result = "\\u";
  for (const unsigned shift : {12U, 8U, 4U, 0U}) result += digits[codePoint >> shift & 0xFU];
  return result;
}

template <class MustEscape>
std::string escaped(std::string_view text, MustEscape mustEscape) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const auto [codePoint, length] = firstCharacter(text);
    if (!codePoint) {
      result += "\uFFFD";
    } else if (mustEscape(*codePoint)) {
      result += escape(*codePoint);
    } else {
      result += text.substr(0, length);
    }
    text.remove_prefix(length);
  }
  return result;
}

}  // namespace

std::string printable(std::string_view text) {
  return escaped(text, [](char32_t c) { return isControl(c) || turnsDirection(c); });
}

std::string printableJson(std::string_view json) {
  return escaped(json, [](char32_t c) { return c >= 0x20 && (isControl(c) || turnsDirection(c)); });
}

}  // namespace solvane::tool
