#include <solvane/testing/CapturedLog.hpp>
#include <solvane/testing/FailingIndex.hpp>
#include <solvane/testing/FixedCalendar.hpp>
#include <solvane/testing/ManualQueue.hpp>
#include <solvane/testing/RecordingIndex.hpp>
#include <solvane/testing/ScopedPlatform.hpp>
#include <solvane/testing/printing.hpp>

#include <gtest/gtest.h>

namespace solvane::testing {
namespace {

TEST(RecordingIndex, RecordsEveryChangeInTheOrderOfArrival) {
  RecordingIndex index;
  const CSSearchableItem item{"a", "tracks", CSSearchableItemAttributeSet{"type"}};
  index.indexSearchableItems({item}, nullptr);
  index.deleteSearchableItemsWithIdentifiers({"b"}, nullptr);
  index.deleteSearchableItemsWithDomainIdentifiers({"c"}, nullptr);
  const auto calls = index.calls();
  ASSERT_EQ(calls.size(), 3U);
  EXPECT_EQ(calls[0].operation, RecordingIndex::Operation::index);
  EXPECT_EQ(calls[0].items, std::vector{item});
  EXPECT_EQ(calls[1].operation, RecordingIndex::Operation::deleteIdentifiers);
  EXPECT_EQ(calls[1].strings, std::vector<std::string>{"b"});
  EXPECT_EQ(calls[2].operation, RecordingIndex::Operation::deleteDomains);
  EXPECT_EQ(calls[2].strings, std::vector<std::string>{"c"});
}

TEST(RecordingIndex, CountsTheQuestionsAfterItsAvailability) {
  RecordingIndex index;
  EXPECT_TRUE(index.isIndexingAvailable());
  index.setAvailable(false);
  EXPECT_FALSE(index.isIndexingAvailable());
  EXPECT_EQ(index.availabilityQuestions(), 2U);
}

TEST(RecordingIndex, HoldsCompletionsUntilTheyAreReleased) {
  RecordingIndex index;
  int completions = 0;
  const auto count = [&](const std::optional<Error>& error) { completions += error ? 0 : 1; };
  index.holdCompletions();
  index.deleteSearchableItemsWithIdentifiers({"a"}, count);
  EXPECT_EQ(completions, 0);
  index.releaseCompletions();
  EXPECT_EQ(completions, 1);
  index.deleteSearchableItemsWithIdentifiers({"a"}, count);
  EXPECT_EQ(completions, 2);
}

TEST(FailingIndex, RecordsAndGivesItsError) {
  FailingIndex index{{.code = 5, .message = "no"}};
  std::optional<Error> given;
  index.deleteSearchableItemsWithIdentifiers({"a"}, [&](auto error) { given = std::move(error); });
  EXPECT_EQ(given, (Error{.code = 5, .message = "no"}));
  EXPECT_EQ(index.calls().size(), 1U);
  EXPECT_TRUE(index.isIndexingAvailable());
}

TEST(ManualQueue, RunsTasksOnlyWhenToldAndThoseTheySubmitToo) {
  ManualQueue dispatch;
  const auto queue = dispatch.makeConcurrentQueue("label");
  std::vector<int> runs;
  queue->async([&] {
    runs.push_back(1);
    queue->async([&] { runs.push_back(3); });
  });
  queue->async([&] { runs.push_back(2); });
  EXPECT_TRUE(runs.empty());
  EXPECT_EQ(dispatch.waiting(), 2U);
  EXPECT_EQ(dispatch.runAll(), 3U);
  EXPECT_EQ(runs, (std::vector{1, 2, 3}));
  EXPECT_EQ(dispatch.labels(), std::vector<std::string>{"label"});
}

TEST(FixedCalendar, StandsStillUntilItIsMoved) {
  using namespace std::chrono_literals;
  FixedCalendar calendar;
  const Date start = calendar.now();
  EXPECT_EQ(calendar.now(), start);
  calendar.advance(5s);
  EXPECT_EQ(calendar.now(), start + 5s);
  calendar.setNow(Date{});
  EXPECT_EQ(calendar.now(), Date{});
}

TEST(FixedCalendar, AddsWeeksUnlessItYieldsNoDate) {
  FixedCalendar calendar;
  DateComponents week;
  week.weekOfYear = 1;
  EXPECT_EQ(calendar.dateByAddingComponents(week, Date{}), Date::fromUnixTime(7 * 86'400));
  calendar.yieldNoDate();
  EXPECT_EQ(calendar.dateByAddingComponents(week, Date{}), std::nullopt);
}

TEST(CapturedLog, GivesItsLinesToWhoClaimsThemFirst) {
  CapturedLog log;
  log.write("one");
  log.write("two");
  EXPECT_EQ(log.claim(), (std::vector<std::string>{"one", "two"}));
  EXPECT_TRUE(log.claim().empty());
}

TEST(ScopedPlatform, PutsThePlatformBeforeItBackInForce) {
  const auto before = Platform::current().calendar;
  {
    const ScopedPlatform scoped{{.calendar = std::make_shared<FixedCalendar>()}};
    EXPECT_NE(Platform::current().calendar, before);
  }
  EXPECT_EQ(Platform::current().calendar, before);
}

}  // namespace
}  // namespace solvane::testing
