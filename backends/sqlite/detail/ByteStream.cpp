#include "detail/ByteStream.hpp"

namespace solvane::sqlite {

void ByteWriter::number(std::uint64_t value) {
  for (; value >= 0x80; value >>= 7) byte(static_cast<std::uint8_t>(value | 0x80));
  byte(static_cast<std::uint8_t>(value));
}

void ByteWriter::signedNumber(std::int64_t value) {
  // The sign goes into the lowest bit, so that small negative numbers stay short.
  const auto bits = static_cast<std::uint64_t>(value);
  number(value < 0 ? ~(bits << 1) : bits << 1);
}

void ByteWriter::string(std::string_view bytes) {
  number(bytes.size());
  raw(bytes);
}

std::optional<std::uint8_t> ByteReader::byte() noexcept {
  if (_rest.empty()) return std::nullopt;
  const auto value = static_cast<std::uint8_t>(_rest.front());
  _rest.remove_prefix(1);
  return value;
}

std::optional<std::uint64_t> ByteReader::number() noexcept {
  std::uint64_t value = 0;
  for (unsigned shift = 0; shift < 64; shift += 7) {
    const auto digit = byte();
    if (!digit || (shift == 63 && *digit > 1)) return std::nullopt;
    value |= std::uint64_t{*digit & 0x7fu} << shift;
    if (*digit < 0x80) return value;
  }
  return std::nullopt;
}

std::optional<std::int64_t> ByteReader::signedNumber() noexcept {
  const auto bits = number();
  if (!bits) return std::nullopt;
  return static_cast<std::int64_t>((*bits & 1) != 0 ? ~(*bits >> 1) : *bits >> 1);
}

std::optional<std::string_view> ByteReader::raw(std::uint64_t size) noexcept {
  if (size > _rest.size()) return std::nullopt;
  const auto bytes = _rest.substr(0, static_cast<std::size_t>(size));
  _rest.remove_prefix(bytes.size());
  return bytes;
}

std::optional<std::string_view> ByteReader::string() noexcept {
  const auto size = number();
  return size ? raw(*size) : std::nullopt;
}

}  // namespace solvane::sqlite
