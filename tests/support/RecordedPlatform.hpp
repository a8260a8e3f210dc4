#pragma once

#include <memory>

#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/testing/FailingIndex.hpp>
#include <solvane/testing/FixedCalendar.hpp>
#include <solvane/testing/ManualQueue.hpp>
#include <solvane/testing/RecordingIndex.hpp>
#include <solvane/testing/ScopedPlatform.hpp>
#include <solvane/testing/fields.hpp>
#include <solvane/testing/printing.hpp>

#include <gtest/gtest.h>

namespace solvane {

/// A test on a platform that records everything and does nothing by itself, with the shared
/// configuration back at its defaults afterwards.
class RecordedPlatform : public ::testing::Test {
 protected:
  using Operation = testing::RecordingIndex::Operation;

  ~RecordedPlatform() override {
    const SolvaneConfig defaults;
    SolvaneConfig::sharedInstance()->setup(defaults.appName(), defaults.localizations());
  }

  /// The one call that the index was given.
  [[nodiscard]] testing::RecordingIndex::Call onlyCall() const {
    const auto calls = index->calls();
    EXPECT_EQ(calls.size(), 1U);
    if (calls.size() == 1) return calls.front();
    return {Operation::index, {}, {}};
  }

  /// The one item that the index was given, after the waiting tasks have run.
  [[nodiscard]] CSSearchableItem onlyItem() {
    queue->runAll();
    const auto items = index->items();
    EXPECT_EQ(items.size(), 1U);
    if (items.size() == 1) return items.front();
    return {"none", "none", CSSearchableItemAttributeSet{"none"}};
  }

  std::shared_ptr<testing::RecordingIndex> index = std::make_shared<testing::RecordingIndex>();
  std::shared_ptr<testing::ManualQueue> queue = std::make_shared<testing::ManualQueue>();
  std::shared_ptr<testing::FixedCalendar> calendar = std::make_shared<testing::FixedCalendar>();
  testing::ScopedPlatform platform{
      {.searchableIndex = index, .calendar = calendar, .dispatch = queue}};
};

}  // namespace solvane
