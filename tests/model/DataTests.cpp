#include <solvane/testing/printing.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

TEST(Data, IsEmptyByDefault) {
  EXPECT_TRUE(Data{}.empty());
  EXPECT_EQ(Data{}.size(), 0U);
  EXPECT_EQ(Data{}, Data{std::vector<std::uint8_t>{}});
}

TEST(Data, TakesOverTheBytesOfAVectorThatIsMovedIn) {
  std::vector<std::uint8_t> bytes{1, 2, 3};
  const auto* const where = bytes.data();
  EXPECT_EQ(Data{std::move(bytes)}.data(), where);
}

TEST(Data, SharesItsBytesWithItsCopies) {
  const Data data{1, 2, 3};
  const Data copy = data;
  EXPECT_EQ(copy.data(), data.data());
}

TEST(Data, IsUntouchedByWhatHappensToTheBufferItWasCopiedFrom) {
  std::uint8_t buffer[] = {1, 2, 3};
  const Data data{buffer, sizeof buffer};
  buffer[0] = 9;
  EXPECT_EQ(data, (Data{1, 2, 3}));
}

TEST(Data, KeepsTheOwnerOfSharedBytesAlive) {
  auto owner = std::make_shared<std::vector<std::uint8_t>>(4, std::uint8_t{7});
  const std::weak_ptr watch = owner;
  auto data = std::make_unique<Data>(Data::sharing(owner, *owner));
  owner.reset();
  EXPECT_FALSE(watch.expired());
  EXPECT_EQ(*data, (Data{7, 7, 7, 7}));
  data.reset();
  EXPECT_TRUE(watch.expired());
}

TEST(Data, ComparesByItsBytes) {
  EXPECT_EQ((Data{1, 2}), (Data{1, 2}));
  EXPECT_NE((Data{1, 2}), (Data{1, 3}));
  EXPECT_NE((Data{1, 2}), (Data{1, 2, 3}));
}

TEST(Data, OutlivesTheOriginalOfACopy) {
  auto original = std::make_unique<Data>(Data{5, 6});
  const Data copy = *original;
  original.reset();
  EXPECT_EQ(copy, (Data{5, 6}));
}

}  // namespace
}  // namespace solvane
