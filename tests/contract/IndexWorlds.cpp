#include <algorithm>
#include <limits>
#include <stdexcept>

#include <solvane/memory/MemoryIndex.hpp>
#include <solvane/sqlite/SQLiteIndex.hpp>
#include <solvane/testing/FailingIndex.hpp>

#include <contract/IndexWorlds.hpp>
#include <support/TemporaryFolder.hpp>

namespace solvane {
namespace {

IndexWorld memoryWorld() {
  IndexWorld world;
  const auto index = std::make_shared<MemoryIndex>([clock = world.clock] { return clock->now(); });
  world.index = index;
  world.contents = [index] { return index->list(); };
  return world;
}

IndexWorld sqliteWorld() {
  IndexWorld world;
  const auto folder = std::make_shared<TemporaryFolder>();
  SQLiteIndex::Options options;
  options.now = [clock = world.clock] { return clock->now(); };
  auto opened = SQLiteIndex::open(folder->path() / "index.db", options);
  if (!opened) throw std::runtime_error{opened.error().message};
  const std::shared_ptr<SQLiteIndex> index = *opened;
  world.index = index;
  world.contents = [index] {
    auto items = index->list({.limit = std::numeric_limits<std::int64_t>::max()});
    if (!items) throw std::runtime_error{items.error().message};
    std::ranges::sort(*items, {}, &CSSearchableItem::uniqueIdentifier);
    return *std::move(items);
  };
  world.ground = folder;
  return world;
}

IndexWorld failingWorld() {
  IndexWorld world;
  world.index = std::make_shared<testing::FailingIndex>();
  world.contents = [] { return std::vector<CSSearchableItem>{}; };
  return world;
}

}  // namespace

std::vector<IndexBackend> workingBackends() {
  return {{"memory", memoryWorld}, {"sqlite", sqliteWorld}};
}

IndexBackend failingBackend() { return {"failing", failingWorld}; }

}  // namespace solvane
