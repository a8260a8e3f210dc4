#include <gtest/gtest.h>

#include "RandomAttributes.hpp"
#include "detail/AttributeCodec.hpp"

namespace solvane {
namespace {

using sqlite::AttributeCodec;

TEST(AttributeCodec, GivesEverySetBackExactlyButForItsThumbnail) {
  RandomAttributes random{20'240'501};
  for (int i = 0; i < 5000; ++i) {
    auto set = random.next();
    const auto decoded = AttributeCodec::decode(AttributeCodec::encode(set));
    set.thumbnailData.reset();
    ASSERT_EQ(decoded, set) << "set " << i;
  }
}

TEST(AttributeCodec, TellsEmptyFromAbsent) {
  CSSearchableItemAttributeSet empty{std::string{kUTTypeAudio}};
  empty.title = "";
  empty.keywords.emplace();
  const auto decoded = AttributeCodec::decode(AttributeCodec::encode(empty));
  ASSERT_TRUE(decoded.has_value());
  EXPECT_EQ(decoded->title, "");
  EXPECT_EQ(decoded->artist, std::nullopt);
  EXPECT_EQ(decoded->keywords, std::vector<std::string>{});
}

TEST(AttributeCodec, SpendsNothingOnWhatIsAbsent) {
  const CSSearchableItemAttributeSet bare{std::string{kUTTypeAudio}};
  EXPECT_EQ(AttributeCodec::encode(bare).size(), 1u);
}

TEST(AttributeCodec, NeverTakesOneSetForAnother) {
  RandomAttributes random{7};
  for (int i = 0; i < 2000; ++i) {
    auto left = random.next();
    auto right = random.next();
    left.thumbnailData.reset();
    right.thumbnailData.reset();
    ASSERT_EQ(AttributeCodec::encode(left) == AttributeCodec::encode(right), left == right);
  }
}

TEST(AttributeCodec, RefusesBytesThatEndInsideAnAttribute) {
  CSSearchableItemAttributeSet set{"type"};
  set.title = "title";
  const auto bytes = AttributeCodec::encode(set);
  const std::size_t afterContentType = 1 + 1 + 1 + 4;
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    const bool isWhole = size == 1 || size == afterContentType;
    ASSERT_EQ(AttributeCodec::decode(bytes.substr(0, size)).has_value(), isWhole) << size;
  }
}

TEST(AttributeCodec, RefusesAnUnknownVersionTagAndOrder) {
  EXPECT_FALSE(AttributeCodec::decode("\x02"));
  EXPECT_FALSE(AttributeCodec::decode("\x01\x63"));
  EXPECT_FALSE(AttributeCodec::decode(std::string_view{"\x01\x04\x00\x03\x00", 5}));
  EXPECT_FALSE(AttributeCodec::decode(std::string_view{"\x01\x03\x00\x03\x00", 5}));
}

TEST(AttributeCodec, RefusesLengthsAndCountsBeyondTheEnd) {
  EXPECT_FALSE(AttributeCodec::decode("\x01\x03\xff\xff\xff\xff\xff\xff\xff\xff\xff\x01"));
  EXPECT_FALSE(AttributeCodec::decode("\x01\x0a\xff\xff\xff\xff\xff\xff\xff\xff\xff\x01"));
  EXPECT_FALSE(AttributeCodec::decode("\x01\x03\xff\xff\xff\xff\xff\xff\xff\xff\xff\x7f"));
}

TEST(AttributeCodec, SurvivesAnyDamage) {
  RandomAttributes random{99};
  for (int i = 0; i < 20'000; ++i) {
    auto bytes = AttributeCodec::encode(random.next());
    bytes[random.number(bytes.size() - 1)] = static_cast<char>(random.number(255));
    bytes.resize(random.number(bytes.size()));
    const auto decoded = AttributeCodec::decode(bytes);
    // Whatever is accepted is a set of its own, which goes through unharmed.
    if (!decoded) continue;
    ASSERT_EQ(AttributeCodec::decode(AttributeCodec::encode(*decoded)), decoded);
  }
}

}  // namespace
}  // namespace solvane
