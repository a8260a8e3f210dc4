#include <solvane/memory/MemoryIndex.hpp>
#include <solvane/posix/PosixDispatch.hpp>
#include <solvane/solvane.hpp>
#include <solvane/testing/FixedCalendar.hpp>
#include <solvane/testing/ScopedPlatform.hpp>
#include <solvane/testing/fields.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

TEST(StandardPlatform, IsComplete) {
  const Platform standard = Platform::standard();
  EXPECT_NE(standard.searchableIndex, nullptr);
  EXPECT_NE(standard.calendar, nullptr);
  EXPECT_NE(standard.log, nullptr);
  EXPECT_NE(standard.dispatch, nullptr);
  EXPECT_TRUE(standard.operatingSystemVersion.has_value());
}

TEST(StandardPlatform, PublishesATrackThatIsThereForTwoWeeks) {
  const testing::ScopedPlatform scoped{Platform::standard()};
  Solvane{}.indexTracks({testing::TrackFields{.trackID = "track/42"}});
  ASSERT_TRUE(PosixDispatch::waitUntilIdle(std::chrono::minutes{1}));
  const auto memory = std::dynamic_pointer_cast<MemoryIndex>(Platform::current().searchableIndex);
  ASSERT_NE(memory, nullptr);
  const auto item = memory->find("track/42");
  ASSERT_TRUE(item.has_value());
  EXPECT_GT(item->expirationDate, Date::now() + std::chrono::days{13});
  EXPECT_LT(item->expirationDate, Date::now() + std::chrono::days{15});
}

TEST(StandardPlatform, LetsItemsExpireByTheClockInForce) {
  const auto calendar = std::make_shared<testing::FixedCalendar>();
  Platform platform = Platform::standard();
  platform.calendar = calendar;
  const testing::ScopedPlatform scoped{platform};
  Solvane{}.indexTracks({testing::TrackFields{.trackID = "track/42"}});
  ASSERT_TRUE(PosixDispatch::waitUntilIdle(std::chrono::minutes{1}));
  const auto memory = std::dynamic_pointer_cast<MemoryIndex>(platform.searchableIndex);
  ASSERT_NE(memory, nullptr);
  EXPECT_EQ(memory->size(), 1U);
  calendar->advance(std::chrono::weeks{2});
  EXPECT_EQ(memory->size(), 0U);
}

}  // namespace
}  // namespace solvane
