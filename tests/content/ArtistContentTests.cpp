#include <solvane/service/Solvane.hpp>

#include <support/RecordedPlatform.hpp>

namespace solvane {
namespace {

using testing::ArtistFields;
using Strings = std::vector<std::string>;

class ArtistContent : public RecordedPlatform {
 protected:
  static ArtistAttributeSet contentOf(const ArtistFields& fields) {
    return CSSearchableItemAttributeSet::searchableItemAttributeSetWithArtist(fields, "related");
  }
  static std::optional<std::string> descriptionOf(const ArtistFields& fields) {
    return contentOf(fields).searchableItemAttributeSet.contentDescription;
  }
  CSSearchableItem itemOf(const ArtistFields& fields) {
    Solvane{}.indexArtists(std::vector<Artist>{fields});
    return onlyItem();
  }
};

TEST_F(ArtistContent, FillsExactlyTheAttributesOfAnArtist) {
  CSSearchableItemAttributeSet expected{"public.audio"};
  expected.relatedUniqueIdentifier = "related";
  expected.title = "Ann";
  expected.thumbnailData = Data{1};
  expected.contentDescription = "Some text";
  expected.keywords = Strings{"Ann", "Rock"};
  const auto content = contentOf({.artistName = "Ann",
                                  .artistBio = "Some text",
                                  .artistGenre = "Rock",
                                  .thumbnailData = Data{1}});
  EXPECT_EQ(content.searchableItemAttributeSet, expected);
}

TEST_F(ArtistContent, ReturnsTheKeywordListThatTheSetHolds) {
  const auto content = contentOf({.artistGenre = "Rock"});
  EXPECT_EQ(content.keywords, (Strings{"Miles Davis", "Rock"}));
  EXPECT_EQ(content.searchableItemAttributeSet.keywords, content.keywords);
}

TEST_F(ArtistContent, IsDescribedByTheBioAndStillHasTheGenreAsAKeyword) {
  const auto content = contentOf({.artistBio = "Some text", .artistGenre = "Rock"});
  EXPECT_EQ(content.searchableItemAttributeSet.contentDescription, "Some text");
  EXPECT_EQ(content.keywords, (Strings{"Miles Davis", "Rock"}));
}

TEST_F(ArtistContent, IsDescribedByTheGenrePhraseWhenTheBioIsEmptyOrAbsent) {
  EXPECT_EQ(descriptionOf({.artistBio = "", .artistGenre = "Rock"}), "Rock artist on Tamberly");
  EXPECT_EQ(descriptionOf({.artistGenre = "Jazz"}), "Jazz artist on Tamberly");
}

TEST_F(ArtistContent, IsDescribedByTheLocalizedDefaultWhenBioAndGenreAreEmptyOrAbsent) {
  EXPECT_EQ(descriptionOf({}), "Artist on Tamberly");
  EXPECT_EQ(descriptionOf({.artistGenre = ""}), "Artist on Tamberly");
  EXPECT_EQ(descriptionOf({.artistBio = "", .artistGenre = ""}), "Artist on Tamberly");
}

TEST_F(ArtistContent, HasTheGenreAsAKeywordWhenTheBioIsEmpty) {
  EXPECT_EQ(contentOf({.artistBio = "", .artistGenre = "Rock"}).keywords,
            (Strings{"Miles Davis", "Rock"}));
}

TEST_F(ArtistContent, TakesTheBioVerbatim) {
  EXPECT_EQ(descriptionOf({.artistBio = " 100%% %@\n"}), " 100%% %@\n");
}

TEST_F(ArtistContent, HasOneKeywordWhenTheGenreIsEmptyOrAbsent) {
  EXPECT_EQ(contentOf({}).keywords, Strings{"Miles Davis"});
  EXPECT_EQ(contentOf({.artistGenre = ""}).keywords, Strings{"Miles Davis"});
}

TEST_F(ArtistContent, HoldsAGenreThatEqualsTheNameTwice) {
  EXPECT_EQ(contentOf({.artistName = "Rock", .artistGenre = "Rock"}).keywords,
            (Strings{"Rock", "Rock"}));
}

TEST_F(ArtistContent, UsesAnEmptyNameAsTitleAndKeyword) {
  const auto content = contentOf({.artistName = ""});
  EXPECT_EQ(content.searchableItemAttributeSet.title, "");
  EXPECT_EQ(content.keywords, Strings{""});
}

TEST_F(ArtistContent, IgnoresTheLocalizationsInTheGenrePhrase) {
  SolvaneConfig::sharedInstance()->setup(
      "Tamberly", std::make_shared<SolvaneLocalizations>(std::nullopt, "%@ von %@", std::nullopt,
                                                         std::nullopt));
  EXPECT_EQ(descriptionOf({.artistGenre = "Jazz"}), "Jazz artist on Tamberly");
}

TEST_F(ArtistContent, AsksForTheDefaultDescriptionEveryTimeBeforeItChooses) {
  struct Counting : SolvaneLocalizations {
    Counting() : SolvaneLocalizations("%@!", std::nullopt, std::nullopt, std::nullopt) {}
    std::string artistOnAppName(const std::string& appName) const override {
      ++questions;
      return SolvaneLocalizations::artistOnAppName(appName);
    }
    mutable int questions = 0;
  };
  const auto counting = std::make_shared<Counting>();
  SolvaneConfig::sharedInstance()->setLocalizations(counting);
  EXPECT_EQ(descriptionOf({.artistBio = "Some text"}), "Some text");
  EXPECT_EQ(counting->questions, 1);
  EXPECT_EQ(descriptionOf({.artistGenre = "Rock"}), "Rock artist on Tamberly");
  EXPECT_EQ(counting->questions, 2);
  EXPECT_EQ(descriptionOf({}), "Tamberly!");
  EXPECT_EQ(counting->questions, 3);
}

TEST_F(ArtistContent, HasNoGenreAttribute) {
  EXPECT_EQ(contentOf({.artistGenre = "Rock"}).searchableItemAttributeSet.musicalGenre,
            std::nullopt);
}

TEST_F(ArtistContent, HasNoThumbnailWhenItIsAbsentAndAnyPresentOneUnchanged) {
  EXPECT_EQ(contentOf({}).searchableItemAttributeSet.thumbnailData, std::nullopt);
  EXPECT_EQ(contentOf({.thumbnailData = Data{9}}).searchableItemAttributeSet.thumbnailData,
            (Data{9}));
}

TEST_F(ArtistContent, NamesTheAppOfTheMomentItIsBuilt) {
  EXPECT_EQ(descriptionOf({}), "Artist on Tamberly");
  SolvaneConfig::sharedInstance()->setAppName("Player");
  EXPECT_EQ(descriptionOf({}), "Artist on Player");
  EXPECT_EQ(descriptionOf({.artistGenre = "Rock"}), "Rock artist on Player");
}

TEST_F(ArtistContent, BecomesAnItemUnderTheArtistsIdentifierInTheArtistsDomain) {
  const auto item = itemOf({.artistID = "a1"});
  EXPECT_EQ(item.uniqueIdentifier, "a1");
  EXPECT_EQ(item.attributeSet.relatedUniqueIdentifier, "a1");
  EXPECT_EQ(item.domainIdentifier, "artists");
}

TEST_F(ArtistContent, BecomesItemsThatExpireTwoWeeksAfterTheirOwnMoment) {
  const Date first = calendar->now();
  Solvane{}.indexArtists(std::vector<Artist>{ArtistFields{}});
  queue->runAll();
  calendar->advance(std::chrono::minutes{5});
  Solvane{}.indexArtists(std::vector<Artist>{ArtistFields{}});
  queue->runAll();
  ASSERT_EQ(index->items().size(), 2U);
  EXPECT_EQ(index->items()[0].expirationDate, first + std::chrono::weeks{2});
  EXPECT_EQ(index->items()[1].expirationDate,
            first + std::chrono::weeks{2} + std::chrono::minutes{5});
}

}  // namespace
}  // namespace solvane
