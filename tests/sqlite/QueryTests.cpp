#include <gtest/gtest.h>

#include "detail/Connection.hpp"
#include "detail/Query.hpp"
#include "detail/Tokenizer.hpp"

namespace solvane {
namespace {

using sqlite::Query;
using sqlite::Tier;
using std::chrono::milliseconds;

class QueryTest : public testing::Test {
 protected:
  Tier tier(std::string_view query, std::string_view title) {
    return Query{query, tokenizer}.tierOf(tokenizer.words(title));
  }

  sqlite::Connection connection{":memory:", sqlite::Connection::Access::write, milliseconds{0}};
  sqlite::Tokenizer tokenizer{connection};
};

TEST_F(QueryTest, IsEmptyWithoutALetterOrDigit) {
  EXPECT_TRUE((Query{"", tokenizer}.isEmpty()));
  EXPECT_TRUE((Query{"\"* ()", tokenizer}.isEmpty()));
  EXPECT_FALSE((Query{"7", tokenizer}.isEmpty()));
}

TEST_F(QueryTest, TellsHowATitleAnswersIt) {
  EXPECT_EQ(tier("so what", "So What!"), Tier::sameTitle);
  EXPECT_EQ(tier("so wh", "So What"), Tier::titleBegins);
  EXPECT_EQ(tier("so what", "So What Now"), Tier::titleBegins);
  EXPECT_EQ(tier("what so", "So What"), Tier::wordsInTitle);
  EXPECT_EQ(tier("wha", "So What"), Tier::wordsInTitle);
  EXPECT_EQ(tier("so davis", "So What"), Tier::wordsAnywhere);
  EXPECT_EQ(tier("wh so", "So What"), Tier::wordsAnywhere);
  EXPECT_EQ(tier("so", ""), Tier::wordsAnywhere);
}

TEST_F(QueryTest, AsksForTheLastWordAsABeginning) {
  const Query query{"Só \"What\"", tokenizer};
  EXPECT_EQ(query.expression(Tier::wordsAnywhere), "\"so\" AND \"what\"*");
  EXPECT_EQ(query.expression(Tier::wordsInTitle), "title : (\"so\" AND \"what\"*)");
}

}  // namespace
}  // namespace solvane
