#include <solvane/service/Solvane.hpp>

#include <support/RecordedPlatform.hpp>

namespace solvane {
namespace {

using testing::PlaylistFields;
using Strings = std::vector<std::string>;

class PlaylistContent : public RecordedPlatform {
 protected:
  static CSSearchableItemAttributeSet contentOf(const PlaylistFields& fields) {
    return CSSearchableItemAttributeSet::searchableItemAttributeSetWithPlaylist(fields, "related");
  }
};

TEST_F(PlaylistContent, FillsExactlyTheAttributesOfAPlaylist) {
  CSSearchableItemAttributeSet expected{"public.audio"};
  expected.relatedUniqueIdentifier = "related";
  expected.title = "Road trip";
  expected.thumbnailData = Data{1};
  expected.contentDescription = "Playlist";
  expected.keywords = Strings{"Road trip"};
  EXPECT_EQ(contentOf({.playlistName = "Road trip", .thumbnailData = Data{1}}), expected);
}

TEST_F(PlaylistContent, IsDescribedWithoutTheAppName) {
  SolvaneConfig::sharedInstance()->setAppName("Player");
  EXPECT_EQ(contentOf({}).contentDescription, "Playlist");
}

TEST_F(PlaylistContent, IsDescribedByTheReplacedTextVerbatim) {
  SolvaneConfig::sharedInstance()->setLocalizations(std::make_shared<SolvaneLocalizations>(
      std::nullopt, std::nullopt, std::nullopt, "Liste %@ 100%%"));
  EXPECT_EQ(contentOf({}).contentDescription, "Liste %@ 100%%");
}

TEST_F(PlaylistContent, UsesAnEmptyNameAsTitleAndKeyword) {
  EXPECT_EQ(contentOf({.playlistName = ""}).title, "");
  EXPECT_EQ(contentOf({.playlistName = ""}).keywords, Strings{""});
}

TEST_F(PlaylistContent, HasNoThumbnailWhenItIsAbsent) {
  EXPECT_EQ(contentOf({}).thumbnailData, std::nullopt);
}

TEST_F(PlaylistContent, BecomesAnItemUnderThePlaylistsIdentifierInThePlaylistsDomain) {
  Solvane{}.indexPlaylists(std::vector<Playlist>{PlaylistFields{.playlistID = "p7"}});
  const auto item = onlyItem();
  EXPECT_EQ(item.uniqueIdentifier, "p7");
  EXPECT_EQ(item.attributeSet.relatedUniqueIdentifier, "p7");
  EXPECT_EQ(item.domainIdentifier, "playlists");
  EXPECT_EQ(item.expirationDate, calendar->now() + std::chrono::weeks{2});
}

}  // namespace
}  // namespace solvane
