#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "Base64.hpp"

namespace solvane::tool {
namespace {

using ::testing::ElementsAreArray;
using ::testing::HasSubstr;

std::string text(const Data& data) { return {data.bytes().begin(), data.bytes().end()}; }

TEST(Base64, DecodesEveryLengthOfPadding) {
  const std::vector<std::pair<std::string, std::string>> pairs{{"", ""},
                                                               {"Zg==", "f"},
                                                               {"Zm8=", "fo"},
                                                               {"Zm9v", "foo"},
                                                               {"Zm9vYg==", "foob"},
                                                               {"Zm9vYmE=", "fooba"},
                                                               {"++//", "\xFB\xEF\xFF"}};
  for (const auto& [encoded, decoded] : pairs) {
    const auto data = decodeBase64(encoded);
    ASSERT_TRUE(data) << encoded;
    EXPECT_EQ(text(*data), decoded) << encoded;
  }
}

TEST(Base64, GivesBackEveryByteItEncoded) {
  std::vector<std::uint8_t> bytes;
  for (int i = 0; i < 256; ++i) {
    const auto data = decodeBase64(encodeBase64(bytes));
    ASSERT_TRUE(data);
    EXPECT_THAT(data->bytes(), ElementsAreArray(bytes));
    bytes.push_back(static_cast<std::uint8_t>(i * 37));
  }
}

TEST(Base64, RefusesWhatIsNotStrictlyBase64) {
  for (const std::string encoded :
       {"Zg", "Zg=", "Zg===", "=", "====", "Z===", "Zm9v Yg==", "Zm9v\n", "Zm-_", "Zm=v",
        "Zg==Zg==", "Zm8\xC3", "Zh==", "Zm9="}) {
    const auto data = decodeBase64(encoded);
    ASSERT_FALSE(data) << encoded;
    EXPECT_THAT(data.error().message, HasSubstr("is not base64")) << encoded;
  }
}

TEST(Base64, NamesTheCharacterThatIsWrong) {
  EXPECT_THAT(decodeBase64("Zm9vY*==").error().message, HasSubstr("character 6"));
}

}  // namespace
}  // namespace solvane::tool
