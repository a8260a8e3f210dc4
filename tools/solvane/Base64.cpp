#include "Base64.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace solvane::tool {
namespace {

constexpr std::string_view alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

Error notBase64(const std::string& why) {
  return {1, "is not base64: " + why + "; give the image's bytes in padded base64"};
}

std::size_t countPadding(std::string_view text) {
  if (text.ends_with("==")) return 2;
  return text.ends_with('=') ? 1 : 0;
}

}  // namespace

Result<Data> decodeBase64(std::string_view text) {
  if (text.size() % 4 != 0) return notBase64("its length is not a multiple of four");
  text.remove_suffix(countPadding(text));
  std::vector<std::uint8_t> bytes;
  bytes.reserve(text.size() * 3 / 4);
  std::uint32_t bits = 0;
  unsigned waiting = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto digit = alphabet.find(text[i]);
    if (digit == std::string_view::npos) {
      return notBase64("character " + std::to_string(i + 1) + " is not of its alphabet");
    }
    bits = bits << 6U | static_cast<std::uint32_t>(digit);
    waiting += 6;
    if (waiting < 8) continue;
    waiting -= 8;
    bytes.push_back(static_cast<std::uint8_t>(bits >> waiting));
    bits &= (1U << waiting) - 1;
  }
  if (bits != 0) return notBase64("its end is damaged");
  return Data{std::move(bytes)};
}

std::string encodeBase64(std::span<const std::uint8_t> bytes) {
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const auto group = bytes.subspan(i, std::min<std::size_t>(3, bytes.size() - i));
    std::uint32_t bits = 0;
    for (std::size_t k = 0; k < 3; ++k) bits = bits << 8U | (k < group.size() ? group[k] : 0U);
    for (std::size_t k = 0; k < 4; ++k) {
      text += k <= group.size() ? alphabet[bits >> (18 - 6 * k) & 0x3FU] : '=';
    }
  }
  return text;
}

}  // namespace solvane::tool
