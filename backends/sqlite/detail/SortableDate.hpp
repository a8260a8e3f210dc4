#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include <solvane/model/Date.hpp>

namespace solvane::sqlite {

/// A date as bytes that compare as the dates do, exact to the nanosecond over the whole range.
class SortableDate {
 public:
  static constexpr std::size_t size = 12;

  explicit SortableDate(Date date) noexcept;

  [[nodiscard]] std::string_view bytes() const noexcept { return {_bytes.data(), size}; }

  /// The date again, or none when the bytes are not a date's.
  [[nodiscard]] static std::optional<Date> decode(std::string_view bytes) noexcept;

 private:
  std::array<char, size> _bytes{};
};

}  // namespace solvane::sqlite
