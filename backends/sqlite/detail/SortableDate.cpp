#include "detail/SortableDate.hpp"

#include <cstdint>
#include <limits>

namespace solvane::sqlite {
namespace {

// Moves the negative numbers below the positive ones in an unsigned comparison.
constexpr std::uint64_t signBit = std::uint64_t{1} << 63;

}  // namespace

SortableDate::SortableDate(Date date) noexcept {
  const auto seconds = static_cast<std::uint64_t>(date.secondsSinceEpoch()) ^ signBit;
  const auto nanoseconds = static_cast<std::uint32_t>(date.nanoseconds());
  for (std::size_t i = 0; i < 8; ++i) _bytes[i] = static_cast<char>(seconds >> (56 - 8 * i));
  for (std::size_t i = 0; i < 4; ++i) {
    _bytes[8 + i] = static_cast<char>(nanoseconds >> (24 - 8 * i));
  }
}

std::optional<Date> SortableDate::decode(std::string_view bytes) noexcept {
  if (bytes.size() != size) return std::nullopt;
  std::uint64_t seconds = 0;
  std::uint32_t nanoseconds = 0;
  for (const char byte : bytes.substr(0, 8)) {
    seconds = seconds << 8 | static_cast<unsigned char>(byte);
  }
  for (const char byte : bytes.substr(8)) {
    nanoseconds = nanoseconds << 8 | static_cast<unsigned char>(byte);
  }
  if (nanoseconds > 999'999'999) return std::nullopt;
  return Date::fromUnixTime(static_cast<std::int64_t>(seconds ^ signBit),
                            static_cast<std::int32_t>(nanoseconds));
}

}  // namespace solvane::sqlite
