#include <solvane/memory/MemoryIndex.hpp>
#include <solvane/testing/FixedCalendar.hpp>
#include <solvane/testing/printing.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

using namespace std::chrono_literals;

class MemoryIndexTest : public ::testing::Test {
 protected:
  CSSearchableItem item(const std::string& identifier,
                        std::optional<std::chrono::seconds> lifetime = std::nullopt) {
    CSSearchableItem made{identifier, "domain", CSSearchableItemAttributeSet{"type"}};
    if (lifetime) made.expirationDate = clock.now() + *lifetime;
    return made;
  }

  testing::FixedCalendar clock;
  MemoryIndex index{[this] { return clock.now(); }};
};

TEST_F(MemoryIndexTest, ListsItemsInTheOrderOfTheirIdentifiers) {
  index.indexSearchableItems({item("b"), item("a")}, nullptr);
  EXPECT_EQ(index.list(), (std::vector{item("a"), item("b")}));
}

TEST_F(MemoryIndexTest, DropsAnItemAtItsExpirationDateAndReleasesWhatItHeld) {
  auto owner = std::make_shared<std::vector<std::uint8_t>>(8);
  const std::weak_ptr watch = owner;
  {
    auto expiring = item("a", 10s);
    expiring.attributeSet.thumbnailData = Data::sharing(owner, *owner);
    owner.reset();
    index.indexSearchableItems({std::move(expiring)}, nullptr);
  }
  clock.advance(10s);
  EXPECT_FALSE(watch.expired());
  EXPECT_EQ(index.size(), 0U);
  EXPECT_TRUE(watch.expired());
}

TEST_F(MemoryIndexTest, ForgetsTheExpirationDateOfAReplacedItem) {
  index.indexSearchableItems({item("a", 10s)}, nullptr);
  index.indexSearchableItems({item("a", 20s)}, nullptr);
  clock.advance(10s);
  EXPECT_TRUE(index.find("a").has_value());
  clock.advance(10s);
  EXPECT_FALSE(index.find("a").has_value());
}

TEST_F(MemoryIndexTest, LetsACompletionChangeTheIndex) {
  index.indexSearchableItems({item("a")}, [this](const auto& error) {
    EXPECT_FALSE(error.has_value());
    index.deleteSearchableItemsWithIdentifiers({"a"}, nullptr);
  });
  EXPECT_EQ(index.size(), 0U);
}

}  // namespace
}  // namespace solvane
