#include <solvane/activity/UserActivity.hpp>

#include <support/RecordedPlatform.hpp>
#include <support/log.hpp>

namespace solvane {
namespace {

using testing::ArtistFields;

class UserActivityTest : public RecordedPlatform {
 protected:
  static NSUserActivity attached(const ArtistFields& fields,
                                 std::optional<std::string> url = std::nullopt,
                                 NSUserActivity activity = {}) {
    UserActivity{}.attachInActivity(activity, Artist{fields}, "abc", std::move(url));
    return activity;
  }

  static NSUserActivity attachedOnVersion(OperatingSystemVersion version,
                                          NSUserActivity activity = {}) {
    const testing::ScopedPlatform scoped{{.operatingSystemVersion = version}};
    return attached({}, "https://example.com/artist/1", std::move(activity));
  }
};

TEST_F(UserActivityTest, WritesNothingButItsPropertiesIntoAFreshActivityWithoutAURL) {
  NSUserActivity expected;
  expected.eligibleForSearch = true;
  expected.eligibleForPublicIndexing = false;
  expected.webpageURL = std::nullopt;
  expected.expirationDate = calendar->now() + std::chrono::weeks{2};
  expected.contentAttributeSet = CSSearchableItemAttributeSet::searchableItemAttributeSetWithArtist(
                                     ArtistFields{.artistGenre = "Jazz"}, "abc")
                                     .searchableItemAttributeSet;
  expected.keywords = {"Miles Davis", "Jazz"};
  EXPECT_EQ(attached({.artistGenre = "Jazz"}), expected);
}

TEST_F(UserActivityTest, MakesTheActivityPubliclyIndexableUnderAGivenURL) {
  const auto activity = attached({}, "https://example.com/artist/1");
  EXPECT_TRUE(activity.eligibleForPublicIndexing);
  EXPECT_EQ(activity.webpageURL, "https://example.com/artist/1");
}

TEST_F(UserActivityTest, KeepsAnEarlierURLAndFlagWhenCalledWithoutOne) {
  const auto earlier = attached({}, "https://example.com/artist/1");
  const auto activity = attached({.artistName = "Ann"}, std::nullopt, earlier);
  EXPECT_TRUE(activity.eligibleForPublicIndexing);
  EXPECT_EQ(activity.webpageURL, "https://example.com/artist/1");
  EXPECT_EQ(activity.keywords, std::set<std::string>{"Ann"});
}

TEST_F(UserActivityTest, CollapsesDuplicateKeywordsOnlyInItsOwnSet) {
  const auto activity = attached({.artistName = "Rock", .artistGenre = "Rock"});
  EXPECT_EQ(activity.keywords, std::set<std::string>{"Rock"});
  EXPECT_EQ(activity.contentAttributeSet->keywords, (std::vector<std::string>{"Rock", "Rock"}));
}

TEST_F(UserActivityTest, HasTheNameAsItsOnlyKeywordWithoutAGenre) {
  EXPECT_EQ(attached({}).keywords, std::set<std::string>{"Miles Davis"});
}

TEST_F(UserActivityTest, RelatesTheAttributeSetToTheGivenIdentifierUnchanged) {
  EXPECT_EQ(attached({.artistID = "other"}).contentAttributeSet->relatedUniqueIdentifier, "abc");
}

TEST_F(UserActivityTest, LeavesTheActivityUntouchedBelowVersionNine) {
  EXPECT_EQ(attachedOnVersion({8, 4, 0}), NSUserActivity{});
  EXPECT_EQ(attachedOnVersion({8, 99, 99}), NSUserActivity{});
  const auto filled = attached({.artistName = "Ann"}, "https://example.com/ann");
  EXPECT_EQ(attachedOnVersion({8, 4, 0}, filled), filled);
}

TEST_F(UserActivityTest, FillsTheActivityFromVersionNineOn) {
  EXPECT_TRUE(attachedOnVersion({9, 0, 0}).eligibleForSearch);
  EXPECT_TRUE(attachedOnVersion({9, 0, 1}).eligibleForSearch);
  EXPECT_TRUE(attachedOnVersion({10, 0, 0}).eligibleForSearch);
}

TEST_F(UserActivityTest, FillsTheActivityOnThePlatformOfThisSystem) {
  const testing::ScopedPlatform standard{
      {.operatingSystemVersion = Platform::standard().operatingSystemVersion}};
  EXPECT_TRUE(attached({}).eligibleForSearch);
}

TEST_F(UserActivityTest, ReadsTheExpirationDateOnceAndLogsWhenThereIsNone) {
  calendar->yieldNoDate();
  EXPECT_EQ(attached({}).expirationDate, calendar->now());
  EXPECT_EQ(capturedLog().claim().size(), 1U);
}

TEST_F(UserActivityTest, FillsTheActivityForAnObjectWithAbsentFields) {
  NSUserActivity activity;
  UserActivity{}.attachInActivity(activity, std::make_shared<SearchAPIArtist>(), "abc",
                                  std::nullopt);
  EXPECT_TRUE(activity.eligibleForSearch);
  EXPECT_EQ(activity.contentAttributeSet->title, "");
  EXPECT_EQ(activity.keywords, std::set<std::string>{""});
}

TEST_F(UserActivityTest, HandsAnObjectToTheOverriddenRecordForm) {
  struct Overriding : UserActivity {
    using UserActivity::attachInActivity;
    void attachInActivity(NSUserActivity&, const Artist& artist, std::string uniqueID,
                          std::optional<std::string> url) override {
      seen = artist.artistName() + "|" + uniqueID + "|" + url.value_or("none");
    }
    std::string seen;
  } overriding;
  const auto artist = std::make_shared<SearchAPIArtist>();
  artist->setArtistName("Ann");
  NSUserActivity activity;
  static_cast<UserActivity&>(overriding).attachInActivity(activity, artist, "abc", "url");
  EXPECT_EQ(overriding.seen, "Ann|abc|url");
  EXPECT_EQ(activity, NSUserActivity{});
}

TEST_F(UserActivityTest, HonoursAnOverriddenConversion) {
  struct Renamed : SearchAPIArtist {
    Artist structify() const override { return ArtistFields{.artistName = "Renamed"}; }
  };
  NSUserActivity activity;
  UserActivity{}.attachInActivity(activity, std::make_shared<Renamed>(), "abc", std::nullopt);
  EXPECT_EQ(activity.contentAttributeSet->title, "Renamed");
}

TEST_F(UserActivityTest, UsesNoQueueAndNoIndex) {
  attached({}, "https://example.com");
  EXPECT_TRUE(queue->labels().empty());
  EXPECT_EQ(index->availabilityQuestions(), 0U);
  EXPECT_TRUE(index->calls().empty());
}

}  // namespace
}  // namespace solvane
