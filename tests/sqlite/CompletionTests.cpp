#include <atomic>
#include <thread>

#include "SQLiteIndexTest.hpp"

namespace solvane {
namespace {

using namespace std::chrono_literals;
using Identifiers = std::vector<std::string>;

using SQLiteIndexCompletion = SQLiteIndexTest;

TEST_F(SQLiteIndexCompletion, RunsWhenTheChangeIsCommittedToTheFile) {
  const auto index = open();
  std::promise<std::int64_t> seen;
  index->indexSearchableItems({makeTrack("a")}, [&](std::optional<Error>) {
    seen.set_value(RawDatabase{file()}.integer("SELECT count(*) FROM items"));
  });
  EXPECT_EQ(seen.get_future().get(), 1);
}

TEST_F(SQLiteIndexCompletion, RunsOnOneThreadThatIsNotTheCallers) {
  const auto index = open();
  std::vector<std::thread::id> threads(2);
  for (auto& thread : threads) {
    waitFor([&](CSSearchableIndex::CompletionHandler completion) {
      index->deleteSearchableItemsWithIdentifiers(
          {"1"}, [&thread, done = std::move(completion)](std::optional<Error> error) mutable {
            thread = std::this_thread::get_id();
            done(std::move(error));
          });
    });
  }
  EXPECT_NE(threads[0], std::this_thread::get_id());
  EXPECT_EQ(threads[0], threads[1]);
}

TEST_F(SQLiteIndexCompletion, MayCallTheIndexAgain) {
  const auto index = open();
  std::promise<Identifiers> seen;
  index->indexSearchableItems({makeTrack("first")}, [&](std::optional<Error>) {
    index->indexSearchableItems({makeTrack("second")}, [&](std::optional<Error>) {
      seen.set_value({found(*index, "first").at(0), listed(*index).at(1)});
    });
  });
  EXPECT_EQ(seen.get_future().get(), (Identifiers{"track first", "track second"}));
}

TEST_F(SQLiteIndexCompletion, WaitsForNothingFromInsideItself) {
  const auto index = open();
  std::promise<bool> idle;
  index->indexSearchableItems(
      {makeTrack("a")}, [&](std::optional<Error>) { idle.set_value(index->waitUntilIdle(1h)); });
  EXPECT_FALSE(idle.get_future().get());
}

TEST_F(SQLiteIndexCompletion, HasRunWhenTheIndexIsIdle) {
  const auto index = open();
  std::atomic<int> completions = 0;
  for (int i = 0; i < 500; ++i) {
    index->indexSearchableItems({makeTrack(std::to_string(i))},
                                [&](std::optional<Error>) { ++completions; });
  }
  EXPECT_TRUE(index->waitUntilIdle());
  EXPECT_EQ(completions, 500);
}

TEST_F(SQLiteIndexCompletion, KeepsTheIndexFromBeingIdleUntilItReturns) {
  const auto index = open();
  std::promise<void> gate;
  index->indexSearchableItems({}, [&](std::optional<Error>) { gate.get_future().wait(); });
  EXPECT_FALSE(index->waitUntilIdle(5ms));
  gate.set_value();
  EXPECT_TRUE(index->waitUntilIdle());
  EXPECT_TRUE(index->waitUntilIdle(-1ms));
  EXPECT_TRUE(index->waitUntilIdle(std::chrono::milliseconds::max()));
}

TEST_F(SQLiteIndexCompletion, HasRunForEverythingThatWaitsWhenTheIndexIsClosed) {
  std::atomic<int> completions = 0;
  {
    const auto index = open();
    for (int i = 0; i < 200; ++i) {
      index->indexSearchableItems({makeTrack(std::to_string(i))},
                                  [&](std::optional<Error> error) { completions += !error; });
    }
  }
  EXPECT_EQ(completions, 200);
  EXPECT_EQ(RawDatabase{file()}.integer("SELECT count(*) FROM items"), 200);
}

TEST_F(SQLiteIndexCompletion, MayReadWhileTheIndexIsBeingClosed) {
  std::promise<void> closing;
  Identifiers seen;
  auto index = open();
  index->indexSearchableItems({makeTrack("a")}, [&, raw = index.get()](std::optional<Error>) {
    closing.get_future().wait();
    seen = listed(*raw);
  });
  const std::jthread watcher{[&, watch = std::weak_ptr{index}] {
    // Gone from the moment at which the destructor begins.
    while (!watch.expired()) std::this_thread::yield();
    closing.set_value();
  }};
  index.reset();
  EXPECT_EQ(seen, Identifiers{"track a"});
}

TEST_F(SQLiteIndexCompletion, MayLetGoOfTheIndex) {
  std::promise<void> handedOver;
  std::promise<void> closed;
  std::promise<void> last;
  auto index = open();
  auto* const raw = index.get();
  raw->indexSearchableItems({makeTrack("a")}, [&, held = std::move(index)](auto) mutable {
    handedOver.get_future().wait();
    held.reset();
    closed.set_value();
  });
  raw->indexSearchableItems({makeTrack("b")}, [&](std::optional<Error>) { last.set_value(); });
  handedOver.set_value();
  closed.get_future().wait();
  last.get_future().wait();
  // The thread closes the file by itself, and takes the log away with that.
  while (std::filesystem::exists(file().string() + "-wal")) std::this_thread::yield();
  EXPECT_EQ(RawDatabase{file()}.integer("SELECT count(*) FROM items"), 2);
}

}  // namespace
}  // namespace solvane
