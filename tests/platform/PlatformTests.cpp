#include <thread>

#include <solvane/platform/Platform.hpp>
#include <solvane/testing/FixedCalendar.hpp>
#include <solvane/testing/RecordingIndex.hpp>
#include <solvane/testing/ScopedPlatform.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

TEST(Platform, IsCompleteBeforeAnythingIsInstalled) {
  const Platform& current = Platform::current();
  EXPECT_NE(current.searchableIndex, nullptr);
  EXPECT_NE(current.calendar, nullptr);
  EXPECT_NE(current.log, nullptr);
  EXPECT_NE(current.dispatch, nullptr);
  EXPECT_TRUE(current.operatingSystemVersion.has_value());
}

TEST(Platform, KeepsTheMembersThatAnInstalledOneLeavesOut) {
  const Platform before = Platform::current();
  const auto index = std::make_shared<testing::RecordingIndex>();
  const testing::ScopedPlatform scoped{{.searchableIndex = index}};
  EXPECT_EQ(Platform::current().searchableIndex, index);
  EXPECT_EQ(Platform::current().calendar, before.calendar);
  EXPECT_EQ(Platform::current().log, before.log);
  EXPECT_EQ(Platform::current().dispatch, before.dispatch);
  EXPECT_EQ(Platform::current().operatingSystemVersion, before.operatingSystemVersion);
}

TEST(Platform, ReplacesEveryMemberThatIsGiven) {
  Platform other = Platform::standard();
  other.operatingSystemVersion = OperatingSystemVersion{8, 4, 0};
  const testing::ScopedPlatform scoped{other};
  EXPECT_EQ(Platform::current().searchableIndex, other.searchableIndex);
  EXPECT_EQ(Platform::current().calendar, other.calendar);
  EXPECT_EQ(Platform::current().log, other.log);
  EXPECT_EQ(Platform::current().dispatch, other.dispatch);
  EXPECT_EQ(Platform::current().operatingSystemVersion, (OperatingSystemVersion{8, 4, 0}));
}

TEST(Platform, StaysUsableToAReaderWhileItIsReplaced) {
  const Platform& before = Platform::current();
  const testing::ScopedPlatform scoped{{.calendar = std::make_shared<testing::FixedCalendar>()}};
  EXPECT_NE(&before, &Platform::current());
  EXPECT_NE(before.calendar, nullptr);
}

TEST(Platform, MayBeInstalledAndReadFromManyThreads) {
  std::vector<std::jthread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([] {
      for (int i = 0; i < 200; ++i) {
        Platform::install({.operatingSystemVersion = Platform::current().operatingSystemVersion});
        EXPECT_NE(Platform::current().searchableIndex, nullptr);
      }
    });
  }
}

}  // namespace
}  // namespace solvane
