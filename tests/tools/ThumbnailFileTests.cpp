#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>
#include <support/TemporaryFolder.hpp>

#include "ThumbnailFile.hpp"

namespace solvane::tool {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class ThumbnailFile : public ::testing::Test {
 protected:
  ThumbnailFile() {
    std::filesystem::create_directories(folder() / "covers");
    std::ofstream{_temporary.path() / "secret.png"} << "secret";
    std::ofstream{folder() / "covers/a.png", std::ios::binary} << std::string{"\x89PNG\0", 5};
  }

  [[nodiscard]] std::filesystem::path folder() const { return _temporary.path() / "catalogue"; }

  [[nodiscard]] std::string problem(const std::string& name) const {
    const auto data = readThumbnail(folder(), name);
    return data ? "read " + std::to_string(data->size()) + " bytes" : data.error().message;
  }

 private:
  TemporaryFolder _temporary;
};

TEST_F(ThumbnailFile, IsReadByteForByte) {
  const auto data = readThumbnail(folder(), "covers/a.png");
  ASSERT_TRUE(data) << data.error().message;
  EXPECT_THAT(data->bytes(), ElementsAre(0x89, 'P', 'N', 'G', 0));
  EXPECT_TRUE(readThumbnail(folder(), "./covers/../covers/a.png"));
}

TEST_F(ThumbnailFile, MayBeEmpty) {
  std::ofstream{folder() / "empty.png"};
  const auto data = readThumbnail(folder(), "empty.png");
  ASSERT_TRUE(data);
  EXPECT_TRUE(data->empty());
}

TEST_F(ThumbnailFile, IsNotSoughtOutsideTheFolder) {
  for (const std::string& name :
       {std::string{}, std::string{"../secret.png"}, std::string{".."},
        std::string{"covers/../../secret.png"}, (folder() / "covers/a.png").string(),
        std::string{"covers/a.png\0x", 14}}) {
    EXPECT_THAT(problem(name), HasSubstr("leads out of the catalogue's folder")) << name;
  }
}

TEST_F(ThumbnailFile, IsNotFollowedThroughALinkOutOfTheFolder) {
  std::filesystem::create_symlink("../secret.png", folder() / "link.png");
  std::filesystem::create_directory_symlink("..", folder() / "up");
  EXPECT_THAT(problem("link.png"), HasSubstr("a link out of the catalogue's folder"));
  EXPECT_THAT(problem("up/secret.png"), HasSubstr("a link out of the catalogue's folder"));
}

TEST_F(ThumbnailFile, MayBeALinkWithinTheFolder) {
  std::filesystem::create_symlink("covers/a.png", folder() / "link.png");
  EXPECT_TRUE(readThumbnail(folder(), "link.png"));
}

TEST_F(ThumbnailFile, MustBeThere) {
  EXPECT_THAT(problem("covers/b.png"), HasSubstr("covers/b.png, which does not exist"));
}

TEST_F(ThumbnailFile, MustBeARegularFile) {
  EXPECT_THAT(problem("covers"), HasSubstr("is no regular file"));
}

TEST_F(ThumbnailFile, MustNotBeEnormous) {
  std::ofstream{folder() / "huge.png"};
  std::filesystem::resize_file(folder() / "huge.png", largestThumbnail + 1);
  EXPECT_THAT(problem("huge.png"), HasSubstr("larger than 16 MiB"));
  std::filesystem::resize_file(folder() / "huge.png", largestThumbnail);
  EXPECT_EQ(problem("huge.png"), "read 16777216 bytes");
}

}  // namespace
}  // namespace solvane::tool
