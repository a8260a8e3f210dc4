#include <algorithm>

#include <solvane/model/Data.hpp>

namespace solvane {

Data::Data(std::vector<std::uint8_t> bytes) {
  auto owner = std::make_shared<const std::vector<std::uint8_t>>(std::move(bytes));
  _bytes = *owner;
  _owner = std::move(owner);
}

Data::Data(const void* bytes, std::size_t size)
    : Data(std::vector<std::uint8_t>(static_cast<const std::uint8_t*>(bytes),
                                     static_cast<const std::uint8_t*>(bytes) + size)) {}

Data Data::sharing(std::shared_ptr<const void> owner,
                   std::span<const std::uint8_t> bytes) noexcept {
  Data data;
  data._owner = std::move(owner);
  data._bytes = bytes;
  return data;
}

bool operator==(const Data& left, const Data& right) noexcept {
  return std::ranges::equal(left._bytes, right._bytes);
}

}  // namespace solvane
