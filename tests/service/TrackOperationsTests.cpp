#include <thread>

#include <solvane/service/Solvane.hpp>

#include <support/RecordedPlatform.hpp>
#include <support/log.hpp>

namespace solvane {
namespace {

using testing::TrackFields;
using Strings = std::vector<std::string>;

class TrackOperations : public RecordedPlatform {
 protected:
  static std::vector<Track> tracks(const Strings& identifiers) {
    std::vector<Track> list;
    for (const auto& identifier : identifiers) list.push_back(TrackFields{.trackID = identifier});
    return list;
  }

  static std::vector<std::shared_ptr<SearchAPITrack>> objects(const Strings& identifiers) {
    std::vector<std::shared_ptr<SearchAPITrack>> list;
    for (const auto& identifier : identifiers) {
      list.push_back(std::make_shared<SearchAPITrack>());
      list.back()->setTrackID(identifier);
    }
    return list;
  }

  static Strings identifiersOf(const std::vector<CSSearchableItem>& items) {
    Strings identifiers;
    for (const auto& item : items) identifiers.push_back(item.uniqueIdentifier);
    return identifiers;
  }

  static Strings domainsOf(const std::vector<CSSearchableItem>& items) {
    Strings domains;
    for (const auto& item : items) domains.push_back(item.domainIdentifier);
    return domains;
  }

  Solvane solvane;
};

TEST_F(TrackOperations, MakeOneConcurrentQueueLabelledWithTheLibrarysName) {
  ASSERT_EQ(queue->labels().size(), 1U);
  EXPECT_TRUE(queue->labels().front().ends_with(".Solvane")) << queue->labels().front();
}

TEST_F(TrackOperations, DoNothingBeforeTheTaskRuns) {
  solvane.indexTracks(tracks({"a"}));
  EXPECT_EQ(queue->waiting(), 1U);
  EXPECT_TRUE(index->calls().empty());
}

TEST_F(TrackOperations, HandTheWholeListInItsOrderToTheIndexInOneCall) {
  solvane.indexTracks(tracks({"c", "a", "b"}));
  EXPECT_EQ(queue->runAll(), 1U);
  EXPECT_EQ(identifiersOf(onlyCall().items), (Strings{"c", "a", "b"}));
}

TEST_F(TrackOperations, HandAListOfAnyLengthOverInOneCall) {
  solvane.indexTracks(std::vector<Track>(10'000, TrackFields{}));
  queue->runAll();
  EXPECT_EQ(onlyCall().items.size(), 10'000U);
}

TEST_F(TrackOperations, ReturnForAnEmptyListWithoutAskingThePlatformAnything) {
  solvane.indexTracks(std::vector<Track>{});
  solvane.indexTracks(objects({}), std::nullopt);
  solvane.deleteTracks({});
  EXPECT_EQ(index->availabilityQuestions(), 0U);
  EXPECT_EQ(queue->waiting(), 0U);
}

TEST_F(TrackOperations, AskForAvailabilityOnceOnTheCallersThreadAndNotAgainInTheTask) {
  solvane.indexTracks(tracks({"a"}));
  EXPECT_EQ(index->availabilityQuestions(), 1U);
  index->setAvailable(false);
  queue->runAll();
  EXPECT_EQ(index->availabilityQuestions(), 1U);
  EXPECT_EQ(index->calls().size(), 1U);
}

TEST_F(TrackOperations, QueueNothingWhenTheIndexIsUnavailable) {
  index->setAvailable(false);
  solvane.indexTracks(tracks({"a"}));
  solvane.indexTracks(objects({"a"}), std::nullopt);
  solvane.deleteTracks({"a"});
  EXPECT_EQ(queue->waiting(), 0U);
  EXPECT_TRUE(index->calls().empty());
}

TEST_F(TrackOperations, ConvertObjectsOnTheCallersThreadInListOrder) {
  const auto list = objects({"c", "a", "b"});
  solvane.indexTracks(list, std::nullopt);
  for (const auto& object : list) object->setTrackID("changed after the call");
  queue->runAll();
  EXPECT_EQ(identifiersOf(onlyCall().items), (Strings{"c", "a", "b"}));
}

TEST_F(TrackOperations, KeepNoObjectBeyondTheCall) {
  auto list = objects({"a"});
  const std::weak_ptr watch = list.front();
  solvane.indexTracks(list, std::nullopt);
  list.clear();
  EXPECT_TRUE(watch.expired());
}

TEST_F(TrackOperations, PutEveryItemInTheGivenDomain) {
  solvane.indexTracks(objects({"a", "b"}), "favourites");
  queue->runAll();
  EXPECT_EQ(domainsOf(onlyCall().items), (Strings{"favourites", "favourites"}));
}

TEST_F(TrackOperations, PutEveryItemInAGivenDomainThatIsEmpty) {
  solvane.indexTracks(objects({"a", "b"}), "");
  queue->runAll();
  EXPECT_EQ(domainsOf(onlyCall().items), (Strings{"", ""}));
}

TEST_F(TrackOperations, PutEveryItemInTheTracksDomainWithoutAGivenOne) {
  solvane.indexTracks(objects({"a", "b"}), std::nullopt);
  queue->runAll();
  EXPECT_EQ(domainsOf(onlyCall().items), (Strings{"tracks", "tracks"}));
}

TEST_F(TrackOperations, MakeTwoItemsOfTwoTracksWithOneIdentifier) {
  solvane.indexTracks({TrackFields{.trackID = "a", .trackName = "one"},
                       TrackFields{.trackID = "a", .trackName = "two"}});
  queue->runAll();
  const auto items = onlyCall().items;
  ASSERT_EQ(identifiersOf(items), (Strings{"a", "a"}));
  EXPECT_EQ(items[0].attributeSet.title, "one");
  EXPECT_EQ(items[1].attributeSet.title, "two");
}

TEST_F(TrackOperations, ReadTheExpirationDateAfreshForEveryItem) {
  struct Ticking : Calendar {
    Date now() const override { return Date::fromUnixTime(++reads); }
    std::optional<Date> dateByAddingComponents(const DateComponents&, Date date) const override {
      return date;
    }
    mutable std::int64_t reads = 0;
  };
  const testing::ScopedPlatform ticking{{.calendar = std::make_shared<Ticking>()}};
  solvane.indexTracks(tracks({"a", "b", "c"}));
  queue->runAll();
  const auto items = onlyCall().items;
  ASSERT_EQ(items.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(items[i].expirationDate, Date::fromUnixTime(static_cast<std::int64_t>(i) + 1));
  }
}

TEST_F(TrackOperations, ReadTheExpirationDateWhenTheTaskRunsAndNotWhenItIsQueued) {
  solvane.indexTracks(tracks({"a"}));
  calendar->advance(std::chrono::hours{1});
  EXPECT_EQ(onlyItem().expirationDate, calendar->now() + std::chrono::weeks{2});
}

TEST_F(TrackOperations, StampItemsWithNowAndLogOncePerItemWhenThereIsNoDate) {
  calendar->yieldNoDate();
  solvane.indexTracks(tracks({"a", "b"}));
  queue->runAll();
  const auto items = onlyCall().items;
  ASSERT_EQ(items.size(), 2U);
  for (const auto& item : items) EXPECT_EQ(item.expirationDate, calendar->now());
  EXPECT_EQ(capturedLog().claim().size(), 2U);
}

TEST_F(TrackOperations, DiscardTheErrorOfTheIndex) {
  const auto failing = std::make_shared<testing::FailingIndex>();
  const testing::ScopedPlatform scoped{{.searchableIndex = failing}};
  solvane.indexTracks(tracks({"a"}));
  solvane.deleteTracks({"a"});
  EXPECT_EQ(queue->runAll(), 2U);
  EXPECT_EQ(failing->calls().size(), 2U);
  EXPECT_EQ(queue->waiting(), 0U) << "nothing is tried again";
}

TEST_F(TrackOperations, SurviveACompletionThatArrivesAfterTheServiceIsGone) {
  index->holdCompletions();
  std::make_shared<Solvane>()->indexTracks(tracks({"a"}));
  queue->runAll();
  index->releaseCompletions();
  EXPECT_EQ(index->calls().size(), 1U);
}

TEST_F(TrackOperations, DeleteTheIdentifiersUnchangedAndInOrderInOneCall) {
  solvane.deleteTracks({"b", " A ", "b", ""});
  queue->runAll();
  const auto call = onlyCall();
  EXPECT_EQ(call.operation, Operation::deleteIdentifiers);
  EXPECT_EQ(call.strings, (Strings{"b", " A ", "b", ""}));
}

TEST_F(TrackOperations, StopTheProcessOverANullObject) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(
      solvane.indexTracks(std::vector<std::shared_ptr<SearchAPITrack>>{nullptr}, std::nullopt),
      "null object");
}

}  // namespace
}  // namespace solvane
