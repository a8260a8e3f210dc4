#include <cstdio>

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

class Inline final : public solvane::DispatchQueue {
 public:
  void async(Task task) override { task(); }
};

class InlineDispatch final : public solvane::Dispatch {
 public:
  std::shared_ptr<solvane::DispatchQueue> makeConcurrentQueue(std::string) override {
    return std::make_shared<Inline>();
  }
};

int main() {
  solvane::Platform::install({.searchableIndex = std::make_shared<Host>(),
                              .dispatch = std::make_shared<InlineDispatch>()});
  solvane::SolvaneConfig::sharedInstance()->setup(
      "Player", std::make_shared<solvane::SolvaneLocalizations>(std::nullopt, std::nullopt,
                                                                std::nullopt, std::nullopt));
  const auto artist = std::make_shared<solvane::SearchAPIArtist>();
  artist->setArtistID("artist/7");
  artist->setArtistName("Miles Davis");
  const auto service = std::make_shared<solvane::Solvane>();
  std::string reported;
  service->indexArtist(artist, [&](std::string identifier) { reported = std::move(identifier); });
  service->deleteArtists({"artist/7"});

  solvane::NSUserActivity activity;
  solvane::UserActivity{}.attachInActivity(activity, artist, "artist/7", "https://example.com");
  const bool right = reported == "artist/7" && activity.eligibleForSearch &&
                     activity.contentAttributeSet->contentDescription == "Artist on Player";
  return right ? 0 : 1;
}
