#include <fstream>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "SQLiteIndexTest.hpp"

namespace solvane {
namespace {

namespace fs = std::filesystem;
using Identifiers = std::vector<std::string>;

/// Sets the process's file mode mask for as long as it lives.
class FileModeMask {
 public:
  explicit FileModeMask(mode_t mask) : _before(::umask(mask)) {}
  FileModeMask(const FileModeMask&) = delete;
  FileModeMask& operator=(const FileModeMask&) = delete;
  ~FileModeMask() { ::umask(_before); }

 private:
  mode_t _before;
};

class SQLiteIndexFile : public SQLiteIndexTest {
 protected:
  static unsigned mode(const fs::path& path) {
    return static_cast<unsigned>(fs::status(path).permissions());
  }

  void write(const std::string& bytes) const {
    std::ofstream{file(), std::ios::binary}.write(bytes.data(),
                                                  static_cast<std::streamsize>(bytes.size()));
  }

  [[nodiscard]] std::string read() const {
    std::ifstream stream{file(), std::ios::binary};
    return {std::istreambuf_iterator<char>{stream}, {}};
  }

  /// The error of opening `path`, with its path in the sentence.
  static SQLiteIndexError refusal(const fs::path& path) {
    const auto opened = SQLiteIndex::open(path);
    if (opened) return SQLiteIndexError{0};
    EXPECT_NE(opened.error().message.find(path.string()), std::string::npos)
        << opened.error().message;
    EXPECT_EQ(opened.error().message.back(), '.');
    return static_cast<SQLiteIndexError>(opened.error().code);
  }
};

TEST_F(SQLiteIndexFile, IsTheUsersAloneWhateverTheMask) {
  for (const mode_t mask : {0u, 0022u, 0277u}) {
    const FileModeMask masked{mask};
    const auto path = folder.path() / std::to_string(mask) / "deeper" / "index.db";
    const auto index = SQLiteIndex::open(path);
    ASSERT_TRUE(index) << index.error().message;
    ASSERT_EQ(put(**index, {makeTrack("a")}), std::nullopt);
    EXPECT_EQ(mode(path), 0600u);
    EXPECT_EQ(mode(path.string() + "-wal"), 0600u);
    EXPECT_EQ(mode(path.string() + "-shm"), 0600u);
    EXPECT_EQ(mode(path.parent_path()), 0700u);
    EXPECT_EQ(mode(path.parent_path().parent_path()), 0700u);
  }
}

TEST_F(SQLiteIndexFile, LeavesFoldersThatExistAsTheyAre) {
  ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
  const auto index = open();
  EXPECT_EQ(mode(folder.path()), 0755u);
}

TEST_F(SQLiteIndexFile, IsOneFileOnceTheIndexIsClosed) {
  ASSERT_EQ(put(*open(), {makeTrack("a")}), std::nullopt);
  std::size_t files = 0;
  for (const auto& entry : fs::directory_iterator{folder.path()}) {
    EXPECT_EQ(entry.path(), file());
    ++files;
  }
  EXPECT_EQ(files, 1u);
}

TEST_F(SQLiteIndexFile, IsMadeFromAnEmptyOne) {
  write("");
  EXPECT_EQ(put(*open(), {makeTrack("a")}), std::nullopt);
}

TEST_F(SQLiteIndexFile, SaysWhatItIs) {
  ASSERT_NE(open(), nullptr);
  RawDatabase raw{file()};
  EXPECT_EQ(raw.integer("PRAGMA application_id"), 0x536f6c76);
  EXPECT_EQ(raw.integer("PRAGMA user_version"), 1);
  EXPECT_EQ(raw.text("PRAGMA journal_mode"), "wal");
}

TEST_F(SQLiteIndexFile, IsRefusedAndUntouchedWhenItIsSomethingElse) {
  const std::string text = "Dear diary, " + std::string(2000, 'x');
  write(text);
  EXPECT_EQ(refusal(file()), SQLiteIndexError::notAnIndex);
  EXPECT_EQ(read(), text);
}

TEST_F(SQLiteIndexFile, IsRefusedAndUntouchedWhenItIsADatabaseOfSomethingElse) {
  for (const auto* sql : {"CREATE TABLE diary(day)", "PRAGMA application_id = 7",
                          "PRAGMA user_version = 1; CREATE TABLE items(rid)"}) {
    fs::remove(file());
    RawDatabase{file()}.execute(sql);
    const auto before = read();
    EXPECT_EQ(refusal(file()), SQLiteIndexError::notAnIndex) << sql;
    EXPECT_EQ(read(), before) << sql;
  }
}

TEST_F(SQLiteIndexFile, IsRefusedWhenANewerVersionWroteIt) {
  ASSERT_NE(open(), nullptr);
  RawDatabase{file()}.execute("PRAGMA user_version = 2");
  EXPECT_EQ(refusal(file()), SQLiteIndexError::newerFormat);
}

TEST_F(SQLiteIndexFile, IsDamagedWhenItsTablesAreMissing) {
  ASSERT_NE(open(), nullptr);
  RawDatabase{file()}.execute("DROP TABLE domains");
  EXPECT_EQ(refusal(file()), SQLiteIndexError::damaged);
}

TEST_F(SQLiteIndexFile, IsDamagedWhenItsPagesAreOverwritten) {
  ASSERT_EQ(put(*open(), {makeTrack("a")}), std::nullopt);
  auto bytes = read();
  for (std::size_t i = 100; i < bytes.size(); ++i) bytes[i] = '\xA5';
  write(bytes);
  EXPECT_EQ(refusal(file()), SQLiteIndexError::damaged);
}

TEST_F(SQLiteIndexFile, CannotBeAFolder) {
  EXPECT_EQ(refusal(folder.path()), SQLiteIndexError::cannotOpen);
}

TEST_F(SQLiteIndexFile, CannotBeBelowAFile) {
  write("text");
  EXPECT_EQ(refusal(file() / "index.db"), SQLiteIndexError::cannotOpen);
  EXPECT_EQ(refusal(file() / "folder" / "index.db"), SQLiteIndexError::cannotOpen);
}

TEST_F(SQLiteIndexFile, MustHaveAName) {
  EXPECT_EQ(refusal(fs::path{}), SQLiteIndexError::cannotOpen);
  EXPECT_EQ(refusal(file().native() + std::string{"\0x", 2}), SQLiteIndexError::cannotOpen);
}

TEST_F(SQLiteIndexFile, CannotBeOpenedWithoutTheRight) {
  ASSERT_NE(open(), nullptr);
  ASSERT_EQ(::chmod(file().c_str(), 0400), 0);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
  // The superuser has every right, and so another user tries.
  const auto child = ::fork();
  if (child == 0) {
    if (::getuid() == 0 && ::setuid(65534) != 0) ::_exit(2);
    const auto opened = SQLiteIndex::open(file());
    const bool refused =
        !opened && opened.error().code == static_cast<int>(SQLiteIndexError::cannotOpen);
    ::_exit(refused ? 0 : 1);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(SQLiteIndexFile, MayHaveANameThatLooksLikeSomethingElse) {
  const auto before = fs::current_path();
  fs::current_path(folder.path());
  for (const auto* name : {":memory:", "file:x?mode=memory", "50% ünïcode"}) {
    const auto index = SQLiteIndex::open(name);
    EXPECT_TRUE(index) << name;
    EXPECT_TRUE(fs::is_regular_file(folder.path() / name)) << name;
  }
  fs::current_path(before);
}

TEST_F(SQLiteIndexFile, IsSharedWithOtherProcesses) {
  int start[2];
  ASSERT_EQ(::pipe(start), 0);
  const auto other = ::fork();
  if (other == 0) {
    char signal = 0;
    if (::read(start[0], &signal, 1) != 1) ::_exit(2);
    const auto index = open();
    ::_exit(put(*index, {makeTrack("theirs")}) || removeItems(*index, {"track ours"}) ? 1 : 0);
  }
  const auto index = open();
  ASSERT_EQ(put(*index, {makeTrack("ours")}), std::nullopt);
  ASSERT_EQ(::write(start[1], "x", 1), 1);
  int status = -1;
  ASSERT_EQ(::waitpid(other, &status, 0), other);
  EXPECT_EQ(status, 0);
  ::close(start[0]);
  ::close(start[1]);
  EXPECT_EQ(listed(*index), Identifiers{"track theirs"});
  EXPECT_EQ(put(*index, {makeTrack("again")}), std::nullopt);
}

TEST_F(SQLiteIndexFile, HoldsNothingOfADeletedThumbnailAndIdentifierOnceClosed) {
  auto index = open();
  auto item = makeItem("uid-of-the-departed", "secret-domain", "x");
  const std::string mark = "thumbnail-of-the-departed";
  item.attributeSet.thumbnailData = Data{mark.data(), mark.size()};
  ASSERT_EQ(put(*index, {item}), std::nullopt);
  ASSERT_EQ(removeItems(*index, {"uid-of-the-departed"}), std::nullopt);
  index.reset();
  const auto bytes = read();
  EXPECT_EQ(bytes.find("departed"), std::string::npos);
  EXPECT_EQ(bytes.find("secret-domain"), std::string::npos);
}

}  // namespace
}  // namespace solvane
