#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace solvane::tool {

/// The first character of a text.
struct Utf8Character {
  /// Absent when the bytes are not UTF-8.
  std::optional<char32_t> codePoint;

  /// How many bytes it takes up, at least one.
  std::size_t length = 1;
};

/// Reads the first character of `text`, which is not empty. Overlong forms, surrogates and
/// everything above U+10FFFF are not UTF-8.
[[nodiscard]] Utf8Character firstCharacter(std::string_view text);

/// Where the first byte stands that is not UTF-8, counted from zero; absent when all is well.
[[nodiscard]] std::optional<std::size_t> findInvalidUtf8(std::string_view text);

}  // namespace solvane::tool
