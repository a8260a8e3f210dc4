#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include <solvane/model/Data.hpp>
#include <solvane/sqlite/Result.hpp>

namespace solvane::tool {

/// The bytes that `text` stands for. Strict: the standard alphabet, padded to a multiple of four,
/// without blanks, and with nothing left over in the last character.
[[nodiscard]] Result<Data> decodeBase64(std::string_view text);

[[nodiscard]] std::string encodeBase64(std::span<const std::uint8_t> bytes);

}  // namespace solvane::tool
