#pragma once

#include <cstdint>

namespace solvane::sqlite {

/// An item's row number has the number of its domain in the high bits and a sequence in the low
/// ones, so that a domain is one range of rows and newer items of a domain have higher numbers.
inline constexpr int sequenceBits = 40;
inline constexpr std::int64_t lastDomain = (std::int64_t{1} << (63 - sequenceBits)) - 1;

struct RowRange {
  std::int64_t first = 0;
  std::int64_t last = INT64_MAX;
};

[[nodiscard]] constexpr RowRange rowsOf(std::int64_t domain) {
  const auto first = domain << sequenceBits;
  return {first, first + ((std::int64_t{1} << sequenceBits) - 1)};
}

[[nodiscard]] constexpr std::int64_t domainOf(std::int64_t row) { return row >> sequenceBits; }

}  // namespace solvane::sqlite
