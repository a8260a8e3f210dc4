#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace solvane::sqlite {

/// Appends numbers and strings to bytes.
class ByteWriter {
 public:
  void byte(std::uint8_t value) { _bytes.push_back(static_cast<char>(value)); }
  void number(std::uint64_t value);
  void signedNumber(std::int64_t value);
  void raw(std::string_view bytes) { _bytes.append(bytes); }
  void string(std::string_view bytes);

  [[nodiscard]] std::string take() && { return std::move(_bytes); }

 private:
  std::string _bytes;
};

/// Reads what `ByteWriter` wrote. Each reader gives none where the bytes end too early or say
/// something that the writer never does.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) noexcept : _rest(bytes) {}

  [[nodiscard]] bool atEnd() const noexcept { return _rest.empty(); }
  [[nodiscard]] std::size_t remaining() const noexcept { return _rest.size(); }

  [[nodiscard]] std::optional<std::uint8_t> byte() noexcept;
  [[nodiscard]] std::optional<std::uint64_t> number() noexcept;
  [[nodiscard]] std::optional<std::int64_t> signedNumber() noexcept;
  [[nodiscard]] std::optional<std::string_view> raw(std::uint64_t size) noexcept;
  [[nodiscard]] std::optional<std::string_view> string() noexcept;

 private:
  std::string_view _rest;
};

}  // namespace solvane::sqlite
