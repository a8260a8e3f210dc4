#include <solvane/service/Solvane.hpp>

#include <support/RecordedPlatform.hpp>

namespace solvane {
namespace {

using testing::ArtistFields;
using Strings = std::vector<std::string>;

class ArtistOperations : public RecordedPlatform {
 protected:
  void indexArtist(const ArtistFields& fields) {
    solvane.indexArtist(Artist{fields}, [this](const std::string& identifier) {
      reported.push_back(identifier);
      callsWhenReported.push_back(index->calls().size());
    });
  }

  Solvane solvane;
  Strings reported;
  std::vector<std::size_t> callsWhenReported;
};

TEST_F(ArtistOperations, ReportTheIdentifierOfOneArtistOnceRightAfterTheHandOver) {
  indexArtist({.artistID = "a1"});
  EXPECT_TRUE(reported.empty());
  queue->runAll();
  EXPECT_EQ(reported, Strings{"a1"});
  EXPECT_EQ(callsWhenReported, std::vector<std::size_t>{1});
  ASSERT_EQ(onlyCall().items.size(), 1U);
  EXPECT_EQ(onlyCall().items.front().uniqueIdentifier, "a1");
}

TEST_F(ArtistOperations, ReportWithoutWaitingForTheIndexAndNeverAgain) {
  index->holdCompletions();
  indexArtist({});
  queue->runAll();
  EXPECT_EQ(reported.size(), 1U);
  index->releaseCompletions();
  EXPECT_EQ(reported.size(), 1U);
}

TEST_F(ArtistOperations, ReportOnceEvenIfTheIndexFails) {
  const auto failing = std::make_shared<testing::FailingIndex>();
  const testing::ScopedPlatform scoped{{.searchableIndex = failing}};
  indexArtist({.artistID = "a1"});
  queue->runAll();
  EXPECT_EQ(failing->calls().size(), 1U);
  EXPECT_EQ(reported, Strings{"a1"});
}

TEST_F(ArtistOperations, NeverReportWhenTheIndexIsUnavailable) {
  index->setAvailable(false);
  indexArtist({});
  EXPECT_EQ(queue->waiting(), 0U);
  queue->runAll();
  EXPECT_TRUE(reported.empty());
  EXPECT_TRUE(index->calls().empty());
}

TEST_F(ArtistOperations, CarryAnArtistWithoutAnIdentifierUnderTheEmptyOne) {
  solvane.indexArtist(std::make_shared<SearchAPIArtist>(), [this](std::string identifier) {
    reported.push_back(std::move(identifier));
  });
  queue->runAll();
  EXPECT_EQ(reported, Strings{""});
}

TEST_F(ArtistOperations, ConvertOneObjectOnTheCallersThread) {
  const auto artist = std::make_shared<SearchAPIArtist>();
  artist->setArtistID("before");
  solvane.indexArtist(
      artist, [this](std::string identifier) { reported.push_back(std::move(identifier)); });
  artist->setArtistID("after");
  queue->runAll();
  EXPECT_EQ(reported, Strings{"before"});
}

TEST_F(ArtistOperations, AcceptAnEmptyCallback) {
  solvane.indexArtist(Artist{ArtistFields{}}, nullptr);
  EXPECT_EQ(onlyItem().uniqueIdentifier, "artist/1");
}

TEST_F(ArtistOperations, ReleaseTheCallbackAfterItWasCalled) {
  auto captured = std::make_shared<int>(0);
  const std::weak_ptr watch = captured;
  solvane.indexArtist(Artist{ArtistFields{}}, [captured = std::move(captured)](const auto&) {});
  EXPECT_FALSE(watch.expired());
  queue->runAll();
  EXPECT_TRUE(watch.expired());
}

TEST_F(ArtistOperations, AskNothingOfThePlatformForAnEmptyList) {
  solvane.indexArtists(std::vector<Artist>{});
  solvane.indexArtists(std::vector<std::shared_ptr<SearchAPIArtist>>{});
  solvane.deleteArtists({});
  EXPECT_EQ(index->availabilityQuestions(), 0U);
  EXPECT_EQ(queue->waiting(), 0U);
}

TEST_F(ArtistOperations, QueueNothingWhenTheIndexIsUnavailable) {
  index->setAvailable(false);
  solvane.indexArtists(std::vector<Artist>{ArtistFields{}});
  solvane.indexArtists({std::make_shared<SearchAPIArtist>()});
  solvane.deleteArtists({"a"});
  EXPECT_EQ(queue->waiting(), 0U);
}

TEST_F(ArtistOperations, HandTwoArtistsWithOneIdentifierOverAsTwoItemsInOneCall) {
  solvane.indexArtists({ArtistFields{.artistID = "a", .artistName = "one"},
                        ArtistFields{.artistID = "a", .artistName = "two"}});
  queue->runAll();
  const auto items = onlyCall().items;
  ASSERT_EQ(items.size(), 2U);
  EXPECT_EQ(items[0].uniqueIdentifier, "a");
  EXPECT_EQ(items[0].attributeSet.title, "one");
  EXPECT_EQ(items[1].uniqueIdentifier, "a");
  EXPECT_EQ(items[1].attributeSet.title, "two");
}

TEST_F(ArtistOperations, ConvertAListOfObjectsInItsOrder) {
  std::vector<std::shared_ptr<SearchAPIArtist>> list;
  for (const char* identifier : {"c", "a", "b"}) {
    list.push_back(std::make_shared<SearchAPIArtist>());
    list.back()->setArtistID(identifier);
  }
  solvane.indexArtists(list);
  queue->runAll();
  const auto items = onlyCall().items;
  ASSERT_EQ(items.size(), 3U);
  EXPECT_EQ(items[0].uniqueIdentifier, "c");
  EXPECT_EQ(items[1].uniqueIdentifier, "a");
  EXPECT_EQ(items[2].uniqueIdentifier, "b");
}

TEST_F(ArtistOperations, ReadTheConfigurationAfreshForEveryItem) {
  // Renames the app whenever it is asked for a text.
  struct Renaming : SolvaneLocalizations {
    Renaming() : SolvaneLocalizations("%@", std::nullopt, std::nullopt, std::nullopt) {}
    std::string artistOnAppName(const std::string& appName) const override {
      SolvaneConfig::sharedInstance()->setAppName(appName + "!");
      return SolvaneLocalizations::artistOnAppName(appName);
    }
  };
  SolvaneConfig::sharedInstance()->setup("App", std::make_shared<Renaming>());
  solvane.indexArtists(std::vector<Artist>(3, ArtistFields{}));
  queue->runAll();
  const auto items = onlyCall().items;
  ASSERT_EQ(items.size(), 3U);
  EXPECT_EQ(items[0].attributeSet.contentDescription, "App");
  EXPECT_EQ(items[1].attributeSet.contentDescription, "App!");
  EXPECT_EQ(items[2].attributeSet.contentDescription, "App!!");
}

TEST_F(ArtistOperations, DeleteByIdentifierAlone) {
  solvane.deleteArtists({"b", "a"});
  queue->runAll();
  EXPECT_EQ(onlyCall().operation, Operation::deleteIdentifiers);
  EXPECT_EQ(onlyCall().strings, (Strings{"b", "a"}));
}

TEST_F(ArtistOperations, StopTheProcessOverANullObject) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(solvane.indexArtist(std::shared_ptr<SearchAPIArtist>{}, nullptr), "null object");
}

}  // namespace
}  // namespace solvane
