#include <solvane/model/identifiers.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

TEST(Identifiers, AreEqualForEqualArgumentsOfEveryKind) {
  EXPECT_EQ(String::track("same"), "same");
  EXPECT_EQ(String::artist("same"), String::track("same"));
  EXPECT_EQ(String::album("same"), String::track("same"));
  EXPECT_EQ(String::playlist("same"), String::track("same"));
}

TEST(Identifiers, ComeBackByteForByte) {
  using namespace std::string_literals;
  for (const auto& identifier :
       {"  blanks  "s, "UPPER lower"s, "Größe/日本"s, "nul\0inside"s, "\xFF\xFE not text"s}) {
    EXPECT_EQ(String::track(identifier), identifier);
    EXPECT_EQ(String::artist(identifier), identifier);
    EXPECT_EQ(String::album(identifier), identifier);
    EXPECT_EQ(String::playlist(identifier), identifier);
  }
}

TEST(Identifiers, OfTheEmptyStringAreEmpty) {
  EXPECT_EQ(String::track(""), "");
  EXPECT_EQ(String::artist(""), "");
  EXPECT_EQ(String::album(""), "");
  EXPECT_EQ(String::playlist(""), "");
}

}  // namespace
}  // namespace solvane
