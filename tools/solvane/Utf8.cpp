#include "Utf8.hpp"

namespace solvane::tool {
namespace {

struct Lead {
  std::size_t length;
  char32_t bits;
  char32_t smallest;
};

std::optional<Lead> readLead(unsigned char byte) {
  if (byte < 0x80) return Lead{1, byte, 0};
  if ((byte & 0xE0U) == 0xC0) return Lead{2, byte & 0x1FU, 0x80};
  if ((byte & 0xF0U) == 0xE0) return Lead{3, byte & 0x0FU, 0x800};
  if ((byte & 0xF8U) == 0xF0) return Lead{4, byte & 0x07U, 0x10000};
  return std::nullopt;
}

bool isScalarValue(char32_t codePoint) {
  return codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF);
}

}  // namespace

Utf8Character firstCharacter(std::string_view text) {
  const auto lead = readLead(static_cast<unsigned char>(text.front()));
  if (!lead) return {std::nullopt, 1};
  char32_t codePoint = lead->bits;
  for (std::size_t i = 1; i < lead->length; ++i) {
    const auto byte = i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    if ((byte & 0xC0U) != 0x80) return {std::nullopt, i};
    codePoint = codePoint << 6U | (byte & 0x3FU);
  }
  if (codePoint < lead->smallest || !isScalarValue(codePoint)) return {std::nullopt, 1};
  return {codePoint, lead->length};
}

std::optional<std::size_t> findInvalidUtf8(std::string_view text) {
  for (std::size_t position = 0; position < text.size();) {
    const auto character = firstCharacter(text.substr(position));
    if (!character.codePoint) return position;
    position += character.length;
  }
  return std::nullopt;
}

}  // namespace solvane::tool
