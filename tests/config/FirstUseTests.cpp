#include <barrier>
#include <set>
#include <thread>
#include <vector>

#include <solvane/config/SolvaneConfig.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

TEST(SharedConfig, IsMadeOnceWhenManyThreadsAskFirst) {
  constexpr std::size_t count = 32;
  std::barrier start{count};
  std::vector<std::shared_ptr<SolvaneConfig>> seen(count);
  std::vector<std::string> names(count);
  {
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < count; ++i) {
      threads.emplace_back([&, i] {
        start.arrive_and_wait();
        seen[i] = SolvaneConfig::sharedInstance();
        names[i] = seen[i]->appName();
      });
    }
  }
  ASSERT_NE(seen.front(), nullptr);
  EXPECT_EQ(std::set(seen.begin(), seen.end()).size(), 1U);
  EXPECT_EQ(std::set(names.begin(), names.end()), std::set<std::string>{"Tamberly"});
}

TEST(SharedConfig, HasTheDefaultsWithoutAnySetup) {
  const auto& config = SolvaneConfig::sharedInstance();
  EXPECT_EQ(config->localizations()->artistOnAppName(config->appName()), "Artist on Tamberly");
}

TEST(SharedConfig, IsTheSameObjectAtEveryRead) {
  EXPECT_EQ(SolvaneConfig::sharedInstance(), SolvaneConfig::sharedInstance());
}

}  // namespace
}  // namespace solvane
