#include <set>

#include <solvane/config/SolvaneConfig.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

std::shared_ptr<SolvaneLocalizations> german() {
  return std::make_shared<SolvaneLocalizations>("Künstler auf %@", std::nullopt, std::nullopt,
                                                std::nullopt);
}

TEST(SolvaneConfig, HasDefaults) {
  const SolvaneConfig config;
  EXPECT_EQ(config.appName(), "Tamberly");
  EXPECT_EQ(config.localizations()->artistOnAppName(config.appName()), "Artist on Tamberly");
  EXPECT_EQ(config.localizations()->playlist(), "Playlist");
}

TEST(SolvaneConfig, OffersAMinimumThumbnailSizeOf270By180) {
  EXPECT_EQ(SolvaneConfig{}.minimumThumbnailDataSize().width, 270.0);
  EXPECT_EQ(SolvaneConfig{}.minimumThumbnailDataSize().height, 180.0);
}

TEST(SolvaneConfig, NamesTheFourDomains) {
  const SolvaneConfig config;
  EXPECT_EQ(config.tracksDomainIdentifier(), "tracks");
  EXPECT_EQ(config.artistsDomainIdentifier(), "artists");
  EXPECT_EQ(config.albumsDomainIdentifier(), "albums");
  EXPECT_EQ(config.playlistsDomainIdentifier(), "playlists");
}

TEST(SolvaneConfig, TakesTheValuesOfTheLastSetup) {
  SolvaneConfig config;
  config.setup("First", german());
  const auto texts = german();
  config.setup("Second", texts);
  EXPECT_EQ(config.appName(), "Second");
  EXPECT_EQ(config.localizations(), texts);
  EXPECT_EQ(config.tracksDomainIdentifier(), "tracks");
  EXPECT_EQ(config.artistsDomainIdentifier(), "artists");
  EXPECT_EQ(config.albumsDomainIdentifier(), "albums");
  EXPECT_EQ(config.playlistsDomainIdentifier(), "playlists");
}

TEST(SolvaneConfig, StoresAnEmptyAppName) {
  SolvaneConfig config;
  config.setup("", config.localizations());
  EXPECT_EQ(config.appName(), "");
  EXPECT_EQ(config.localizations()->artistOnAppName(config.appName()), "Artist on ");
}

TEST(SolvaneConfig, ChangesOneSettingAtATimeThroughItsWriters) {
  SolvaneConfig config;
  const auto texts = german();
  config.setLocalizations(texts);
  EXPECT_EQ(config.appName(), "Tamberly");
  config.setAppName("Player");
  EXPECT_EQ(config.appName(), "Player");
  EXPECT_EQ(config.localizations(), texts);
}

TEST(SolvaneConfig, ReleasesTheLocalizationsThatAreReplaced) {
  SolvaneConfig config;
  auto texts = german();
  const std::weak_ptr watch = texts;
  config.setup("Player", std::move(texts));
  EXPECT_FALSE(watch.expired());
  config.setup("Player", german());
  EXPECT_TRUE(watch.expired());
}

TEST(SolvaneConfigDeathTest, StopsTheProcessOverNullLocalizations) {
  SolvaneConfig config;
  EXPECT_DEATH(config.setup("Player", nullptr), "localizations must not be null");
}

}  // namespace
}  // namespace solvane
