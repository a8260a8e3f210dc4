#include <solvane/config/SolvaneLocalizations.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

TEST(SolvaneLocalizations, SpeakEnglishByDefault) {
  const SolvaneLocalizations texts{std::nullopt, std::nullopt, std::nullopt, std::nullopt};
  EXPECT_EQ(texts.artistOnAppName("Tamberly"), "Artist on Tamberly");
  EXPECT_EQ(texts.genreArtistOnAppName("Jazz", "Tamberly"), "Jazz artist on Tamberly");
  EXPECT_EQ(texts.albumOnAppName("Tamberly"), "Album on Tamberly");
  EXPECT_EQ(texts.playlist(), "Playlist");
}

TEST(SolvaneLocalizations, ReplaceOnlyTheTextThatIsPresent) {
  const SolvaneLocalizations texts{std::nullopt, "%@ von %@", std::nullopt, std::nullopt};
  EXPECT_EQ(texts.genreArtistOnAppName("Jazz", "Tamberly"), "Jazz von Tamberly");
  EXPECT_EQ(texts.artistOnAppName("Tamberly"), "Artist on Tamberly");
  EXPECT_EQ(texts.albumOnAppName("Tamberly"), "Album on Tamberly");
  EXPECT_EQ(texts.playlist(), "Playlist");
}

TEST(SolvaneLocalizations, TakeTheirTextsInTheOrderOfTheConstructor) {
  const SolvaneLocalizations texts{"1 %@", "2 %@ %@", "3 %@", "4"};
  EXPECT_EQ(texts.artistOnAppName("a"), "1 a");
  EXPECT_EQ(texts.genreArtistOnAppName("g", "a"), "2 g a");
  EXPECT_EQ(texts.albumOnAppName("a"), "3 a");
  EXPECT_EQ(texts.playlist(), "4");
}

TEST(SolvaneLocalizations, LetAPresentEmptyTextReplaceTheDefault) {
  const SolvaneLocalizations texts{"", "", "", ""};
  EXPECT_EQ(texts.artistOnAppName("Tamberly"), "");
  EXPECT_EQ(texts.genreArtistOnAppName("Jazz", "Tamberly"), "");
  EXPECT_EQ(texts.albumOnAppName("Tamberly"), "");
  EXPECT_EQ(texts.playlist(), "");
}

TEST(SolvaneLocalizations, GiveThePlaylistTextVerbatim) {
  const SolvaneLocalizations texts{std::nullopt, std::nullopt, std::nullopt, "%@ 100%% list"};
  EXPECT_EQ(texts.playlist(), "%@ 100%% list");
}

TEST(SolvaneLocalizations, DropTheAppNameWhereTheFormatHasOnePlaceholder) {
  const SolvaneLocalizations texts{std::nullopt, "only %@", std::nullopt, std::nullopt};
  EXPECT_EQ(texts.genreArtistOnAppName("Jazz", "Tamberly"), "only Jazz");
}

TEST(SolvaneLocalizations, SurviveAFormatWithTooManyPlaceholders) {
  const SolvaneLocalizations texts{"%@ %@ %@", "%@ %@ %@", "%@%@", std::nullopt};
  EXPECT_EQ(texts.artistOnAppName("A"), "A %@ %@");
  EXPECT_EQ(texts.genreArtistOnAppName("G", "A"), "G A %@");
  EXPECT_EQ(texts.albumOnAppName("A"), "A%@");
}

TEST(SolvaneLocalizationsDeathTest, WithoutArgumentsStopTheProcessAndNameTheFault) {
  EXPECT_DEATH(std::make_shared<SolvaneLocalizations>(),
               "unimplemented initializer 'init\\(\\)'.*SolvaneLocalizations");
}

}  // namespace
}  // namespace solvane
