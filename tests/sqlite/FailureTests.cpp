#include <csignal>

#include <sys/resource.h>

#include "SQLiteIndexTest.hpp"

namespace solvane {
namespace {

using namespace std::chrono_literals;
using Identifiers = std::vector<std::string>;

/// Keeps files from growing beyond a size for as long as it lives, as a quota does.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : _handler(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &_before);
    const rlimit limited{bytes, _before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limited);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &_before);
    std::signal(SIGXFSZ, _handler);
  }

 private:
  rlimit _before{};
  void (*_handler)(int);
};

class SQLiteIndexFailure : public SQLiteIndexTest {
 protected:
  static int code(SQLiteIndexError error) { return static_cast<int>(error); }
};

TEST_F(SQLiteIndexFailure, IsBusyForEveryChangeThatWaitedForAnotherProcessInVain) {
  auto impatient = options();
  impatient.busyTimeout = 50ms;
  const auto index = open(impatient);
  RawDatabase other{file()};
  other.execute("BEGIN IMMEDIATE");
  std::vector<std::promise<std::optional<Error>>> results(20);
  for (auto& result : results) {
    index->indexSearchableItems(
        {makeTrack("a")}, [&](std::optional<Error> error) { result.set_value(std::move(error)); });
  }
  for (auto& result : results) {
    const auto error = result.get_future().get();
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->code, code(SQLiteIndexError::busy));
    EXPECT_NE(error->message.find(file().string()), std::string::npos) << error->message;
  }
  other.execute("ROLLBACK");
  EXPECT_EQ(put(*index, {makeTrack("a")}), std::nullopt);
}

TEST_F(SQLiteIndexFailure, IsAvoidedByWaitingForTheOtherProcess) {
  const auto index = open();
  RawDatabase other{file()};
  other.execute("BEGIN IMMEDIATE");
  std::promise<std::optional<Error>> result;
  index->indexSearchableItems(
      {makeTrack("a")}, [&](std::optional<Error> error) { result.set_value(std::move(error)); });
  auto future = result.get_future();
  EXPECT_EQ(future.wait_for(50ms), std::future_status::timeout);
  other.execute("COMMIT");
  EXPECT_EQ(future.get(), std::nullopt);
}

TEST_F(SQLiteIndexFailure, IsThatOfTheChangeAloneAndNotOfItsNeighbours) {
  const auto index = open();
  std::promise<void> gate;
  index->indexSearchableItems({}, [&](std::optional<Error>) { gate.get_future().wait(); });
  auto tooLarge = makeTrack("large");
  tooLarge.attributeSet.thumbnailData = Data{std::vector<std::uint8_t>(8 << 20, 7)};
  std::vector<std::optional<Error>> results(3, Error{-1, "did not run"});
  const auto store = [&](std::size_t number) {
    return [&results, number](std::optional<Error> error) { results[number] = std::move(error); };
  };
  index->indexSearchableItems({makeTrack("before")}, store(0));
  index->indexSearchableItems({makeTrack("beside"), tooLarge}, store(1));
  index->indexSearchableItems({makeTrack("after")}, store(2));
  {
    const FileSizeLimit limit{4 << 20};
    gate.set_value();
    ASSERT_TRUE(index->waitUntilIdle());
  }
  EXPECT_EQ(results[0], std::nullopt);
  ASSERT_TRUE(results[1].has_value());
  EXPECT_EQ(results[1]->code, code(SQLiteIndexError::full)) << results[1]->message;
  EXPECT_EQ(results[2], std::nullopt);
  EXPECT_EQ(listed(*index), (Identifiers{"track before", "track after"}));
}

TEST_F(SQLiteIndexFailure, LeavesTheIndexUsable) {
  const auto index = open();
  auto large = makeTrack("large");
  large.attributeSet.thumbnailData = Data{std::vector<std::uint8_t>(8 << 20, 7)};
  {
    const FileSizeLimit limit{4 << 20};
    ASSERT_NE(put(*index, {large}), std::nullopt);
  }
  EXPECT_EQ(put(*index, {large}), std::nullopt);
  EXPECT_EQ(found(*index, "large"), Identifiers{"track large"});
  EXPECT_EQ(RawDatabase{file()}.text("PRAGMA integrity_check"), "ok");
}

TEST_F(SQLiteIndexFailure, IsToldWhenAnItemCannotBeRead) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeTrack("a")}), std::nullopt);
  RawDatabase{file()}.execute("UPDATE items SET attrs = x'FF'");
  EXPECT_EQ(index->find("track a").error().code, code(SQLiteIndexError::damaged));
  EXPECT_EQ(index->search("a").error().code, code(SQLiteIndexError::damaged));
  EXPECT_EQ(index->list().error().code, code(SQLiteIndexError::damaged));
  EXPECT_EQ(removeItems(*index, {"track a"})->code, code(SQLiteIndexError::damaged));
  EXPECT_EQ(put(*index, {makeTrack("a")})->code, code(SQLiteIndexError::damaged));
}

TEST_F(SQLiteIndexFailure, IsToldWhenAnExpirationCannotBeRead) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeTrack("a")}), std::nullopt);
  RawDatabase{file()}.execute("UPDATE items SET exp = x'FFFF'");
  EXPECT_EQ(index->find("track a").error().code, code(SQLiteIndexError::damaged));
  EXPECT_EQ(index->statistics().error().code, code(SQLiteIndexError::damaged));
}

}  // namespace
}  // namespace solvane
