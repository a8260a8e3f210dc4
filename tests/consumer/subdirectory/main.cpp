#include <cstdio>
#include <future>
#include <thread>

#include <solvane/solvane.hpp>

// A host that has objects, an index of its own, and a callback.
class Host final : public solvane::CSSearchableIndex {
 public:
  bool isIndexingAvailable() const noexcept override { return true; }
  void indexSearchableItems(std::vector<solvane::CSSearchableItem> items,
                            CompletionHandler completionHandler) override {
    for (const auto& item : items) std::printf("%s\n", item.attributeSet.title->c_str());
    completionHandler(std::nullopt);
  }
  void deleteSearchableItemsWithIdentifiers(std::vector<std::string>,
                                            CompletionHandler completionHandler) override {
    completionHandler(solvane::Error{1, "not here"});
  }
  void deleteSearchableItemsWithDomainIdentifiers(std::vector<std::string>,
                                                  CompletionHandler completionHandler) override {
    completionHandler(std::nullopt);
  }
};

// Queues that give each task a thread of its own.
class Threads final : public solvane::Dispatch {
 public:
  std::shared_ptr<solvane::DispatchQueue> makeConcurrentQueue(std::string) override {
    return std::make_shared<Queue>();
  }

 private:
  struct Queue final : solvane::DispatchQueue {
    void async(Task task) override { std::thread{std::move(task)}.detach(); }
  };
};

int main() {
  solvane::Platform::install(
      {.searchableIndex = std::make_shared<Host>(), .dispatch = std::make_shared<Threads>()});
  solvane::SolvaneConfig::sharedInstance()->setup(
      "Player", std::make_shared<solvane::SolvaneLocalizations>(std::nullopt, std::nullopt,
                                                                std::nullopt, std::nullopt));
  const auto artist = std::make_shared<solvane::SearchAPIArtist>();
  artist->setArtistID("artist/7");
  artist->setArtistName("Miles Davis");
  const auto service = std::make_shared<solvane::Solvane>();
  std::promise<std::string> reported;
  service->indexArtist(artist, [&](std::string identifier) { reported.set_value(identifier); });
  service->deleteArtists({"artist/7"});

  solvane::NSUserActivity activity;
  solvane::UserActivity{}.attachInActivity(activity, artist, "artist/7", "https://example.com");
  const bool right = reported.get_future().get() == "artist/7" && activity.eligibleForSearch &&
                     activity.contentAttributeSet->contentDescription == "Artist on Player";
  return right ? 0 : 1;
}
