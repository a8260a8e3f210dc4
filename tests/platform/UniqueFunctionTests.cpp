#include <array>
#include <functional>
#include <memory>
#include <string>

#include <solvane/platform/UniqueFunction.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

// Counts how often it is copied and how many of it are alive.
struct Probe {
  Probe() { ++alive; }
  Probe(const Probe&) { ++alive, ++copies; }
  Probe(Probe&&) noexcept { ++alive; }
  Probe& operator=(const Probe&) = delete;
  ~Probe() { --alive; }

  static inline int alive = 0;
  static inline int copies = 0;
};

TEST(UniqueFunction, IsEmptyByDefaultAndFromNull) {
  EXPECT_FALSE(UniqueFunction<void()>{});
  EXPECT_FALSE(UniqueFunction<void()>{nullptr});
  EXPECT_TRUE(UniqueFunction<void()>{[] {}});
}

TEST(UniqueFunction, IsEmptyWhenMadeFromAnEmptyFunctionOrANullPointer) {
  EXPECT_FALSE(UniqueFunction<void()>{std::function<void()>{}});
  EXPECT_FALSE(UniqueFunction<void()>{static_cast<void (*)()>(nullptr)});
  EXPECT_TRUE(UniqueFunction<void()>{std::function<void()>{[] {}}});
}

TEST(UniqueFunction, PassesArgumentsAndResult) {
  UniqueFunction<std::string(std::string, int)> repeat = [](std::string text, int times) {
    std::string result;
    while (times-- > 0) result += text;
    return result;
  };
  EXPECT_EQ(repeat("ab", 3), "ababab");
}

TEST(UniqueFunction, TakesArgumentsThatCannotBeCopied) {
  UniqueFunction<int(std::unique_ptr<int>)> function = [](std::unique_ptr<int> value) {
    return *value;
  };
  EXPECT_EQ(function(std::make_unique<int>(5)), 5);
}

TEST(UniqueFunction, HoldsWhatCannotBeCopiedSmallOrLarge) {
  UniqueFunction<int()> small = [value = std::make_unique<int>(1)] { return *value; };
  UniqueFunction<int()> large = [value = std::make_unique<int>(2), filler = std::array<int, 64>{}] {
    return *value + filler[0];
  };
  UniqueFunction<int()> moved = std::move(small);
  EXPECT_EQ(moved(), 1);
  moved = std::move(large);
  EXPECT_EQ(moved(), 2);
  EXPECT_FALSE(large);
}

TEST(UniqueFunction, NeverCopiesWhatItHoldsAndDestroysItOnce) {
  Probe::copies = 0;
  {
    UniqueFunction<int()> small = [probe = Probe{}] { return 0; };
    UniqueFunction<int()> large = [probe = Probe{}, filler = std::array<int, 64>{}] {
      return filler[0];
    };
    UniqueFunction<int()> other = std::move(small);
    small = std::move(large);
    small = nullptr;
    EXPECT_EQ(Probe::alive, 1);
  }
  EXPECT_EQ(Probe::alive, 0);
  EXPECT_EQ(Probe::copies, 0);
}

TEST(UniqueFunction, KeepsStateBetweenCalls) {
  UniqueFunction<int()> count = [n = 0]() mutable { return ++n; };
  count();
  EXPECT_EQ(count(), 2);
}

TEST(UniqueFunction, SurvivesMovingToItself) {
  UniqueFunction<int()> function = [] { return 3; };
  auto& same = function;
  function = std::move(same);
  EXPECT_EQ(function(), 3);
}

TEST(UniqueFunction, HoldsAFunction) {
  UniqueFunction<int(int)> function = +[](int value) { return value + 1; };
  EXPECT_EQ(function(1), 2);
}

}  // namespace
}  // namespace solvane
