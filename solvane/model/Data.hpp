#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace solvane {

/// Immutable bytes with shared ownership: a thumbnail's encoded image, usually.
///
/// Copying a `Data` shares the bytes and never copies them; nothing can change them afterwards, so
/// any thread may read any copy. An empty `Data` is a value of its own, distinct from an absent one
/// (`std::optional<Data>`).
class Data {
 public:
  /// No bytes.
  Data() noexcept = default;

  /// Takes the vector over: a moved-in vector's bytes are not copied.
  Data(std::vector<std::uint8_t> bytes);

  Data(std::initializer_list<std::uint8_t> bytes) : Data(std::vector<std::uint8_t>(bytes)) {}

  /// Copies `size` bytes from `bytes`.
  Data(const void* bytes, std::size_t size);

  /// Shares `bytes`, which must stay as they are for as long as `owner` lives.
  static Data sharing(std::shared_ptr<const void> owner,
                      std::span<const std::uint8_t> bytes) noexcept;

  [[nodiscard]] const std::uint8_t* data() const noexcept { return _bytes.data(); }
  [[nodiscard]] std::size_t size() const noexcept { return _bytes.size(); }
  [[nodiscard]] bool empty() const noexcept { return _bytes.empty(); }
  [[nodiscard]] std::span<const std::uint8_t> bytes() const noexcept { return _bytes; }

  /// Equal bytes, wherever they are kept.
  friend bool operator==(const Data& left, const Data& right) noexcept;

 private:
  std::shared_ptr<const void> _owner;
  std::span<const std::uint8_t> _bytes;
};

}  // namespace solvane
