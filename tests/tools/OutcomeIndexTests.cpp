#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "OutcomeIndex.hpp"

namespace solvane::tool {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// An index that answers when it is told to.
class WaitingIndex final : public CSSearchableIndex {
 public:
  bool available = true;
  std::vector<std::string> calls;
  std::vector<CompletionHandler> answers;

  [[nodiscard]] bool isIndexingAvailable() const noexcept override { return available; }
  void indexSearchableItems(std::vector<CSSearchableItem> items,
                            CompletionHandler completionHandler) override {
    std::string call = "index";
    for (const auto& item : items) call += ' ' + item.uniqueIdentifier;
    keep(std::move(call), std::move(completionHandler));
  }
  void deleteSearchableItemsWithIdentifiers(std::vector<std::string> identifiers,
                                            CompletionHandler completionHandler) override {
    keep("delete " + identifiers.at(0), std::move(completionHandler));
  }
  void deleteSearchableItemsWithDomainIdentifiers(std::vector<std::string> domainIdentifiers,
                                                  CompletionHandler completionHandler) override {
    keep("clear " + domainIdentifiers.at(0), std::move(completionHandler));
  }

 private:
  void keep(std::string call, CompletionHandler completionHandler) {
    calls.push_back(std::move(call));
    answers.push_back(std::move(completionHandler));
  }
};

CSSearchableItem item(const std::string& identifier, std::optional<Date> expiration = {}) {
  CSSearchableItem result{identifier, "tracks", CSSearchableItemAttributeSet{"public.audio"}};
  result.expirationDate = expiration;
  return result;
}

class OutcomeIndexTest : public ::testing::Test {
 protected:
  std::shared_ptr<WaitingIndex> _target = std::make_shared<WaitingIndex>();
  OutcomeIndex _index{_target};
};

TEST_F(OutcomeIndexTest, PassesEveryOperationOn) {
  _index.indexSearchableItems({item("1"), item("2")}, {});
  _index.deleteSearchableItemsWithIdentifiers({"3"}, {});
  _index.deleteSearchableItemsWithDomainIdentifiers({"tracks"}, {});
  EXPECT_THAT(_target->calls, ElementsAre("index 1 2", "delete 3", "clear tracks"));
  for (auto& answer : _target->answers) answer(std::nullopt);
}

TEST_F(OutcomeIndexTest, IsAvailableWhenTheOtherIs) {
  EXPECT_TRUE(_index.isIndexingAvailable());
  _target->available = false;
  EXPECT_FALSE(_index.isIndexingAvailable());
}

TEST_F(OutcomeIndexTest, GivesTheAnswerToWhoeverAskedForIt) {
  std::optional<Error> heard;
  _index.deleteSearchableItemsWithIdentifiers({"1"},
                                              [&](std::optional<Error> error) { heard = error; });
  _target->answers.at(0)(Error{5, "The disk is full."});
  EXPECT_EQ(heard, (Error{5, "The disk is full."}));
}

TEST_F(OutcomeIndexTest, CountsItemsThatWereTakenAndTheirFirstExpiration) {
  _index.indexSearchableItems(
      {item("1", Date::fromUnixTime(30)), item("2", Date::fromUnixTime(20))}, {});
  _index.indexSearchableItems({item("3"), item("4", Date::fromUnixTime(40))}, {});
  _index.indexSearchableItems({item("5", Date::fromUnixTime(10))}, {});
  _target->answers.at(0)(std::nullopt);
  _target->answers.at(1)(std::nullopt);
  _target->answers.at(2)(Error{6, "The index is damaged."});
  const auto outcome = _index.wait();
  EXPECT_EQ(outcome.publishedItems, 4U);
  EXPECT_EQ(outcome.firstExpiration, Date::fromUnixTime(20));
  EXPECT_THAT(outcome.errors, ElementsAre(Error{6, "The index is damaged."}));
}

TEST_F(OutcomeIndexTest, RemovalsCountAsNoItems) {
  _index.deleteSearchableItemsWithIdentifiers({"1"}, {});
  _target->answers.at(0)(std::nullopt);
  const auto outcome = _index.wait();
  EXPECT_EQ(outcome.publishedItems, 0U);
  EXPECT_EQ(outcome.firstExpiration, std::nullopt);
  EXPECT_THAT(outcome.errors, IsEmpty());
}

TEST_F(OutcomeIndexTest, WaitsForAnswersThatComeFromAnotherThread) {
  for (int i = 0; i < 100; ++i) _index.indexSearchableItems({item("1")}, {});
  std::thread writer{[this] {
    for (auto& answer : _target->answers) answer(std::nullopt);
  }};
  EXPECT_EQ(_index.wait().publishedItems, 100U);
  writer.join();
}

TEST_F(OutcomeIndexTest, LetsGoOfTheOtherIndexAndIsClosedFromThenOn) {
  const std::weak_ptr<WaitingIndex> target = _target;
  _target.reset();
  _index.detach();
  EXPECT_TRUE(target.expired());
  EXPECT_FALSE(_index.isIndexingAvailable());
  _index.indexSearchableItems({item("1")}, {});
  EXPECT_EQ(_index.wait().errors.size(), 1U);
  EXPECT_EQ(_index.wait().publishedItems, 0U);
}

}  // namespace
}  // namespace solvane::tool
