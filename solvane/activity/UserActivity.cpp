#include <utility>

#include <solvane/activity/UserActivity.hpp>
#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/detail/structified.hpp>
#include <solvane/platform/Platform.hpp>

namespace solvane {

void UserActivity::attachInActivity(NSUserActivity& activity,
                                    const std::shared_ptr<SearchAPIArtist>& artist,
                                    std::string uniqueID,
                                    std::optional<std::string> publicIndexingWebsiteURL) {
  attachInActivity(activity, detail::structified(artist), std::move(uniqueID),
                   std::move(publicIndexingWebsiteURL));
}

void UserActivity::attachInActivity(NSUserActivity& activity, const Artist& artist,
                                    std::string uniqueID,
                                    std::optional<std::string> publicIndexingWebsiteURL) {
  if (Platform::current().operatingSystemVersion->majorVersion < 9) return;

  activity.eligibleForSearch = true;
  if (publicIndexingWebsiteURL) {
    activity.eligibleForPublicIndexing = true;
    activity.webpageURL = std::move(publicIndexingWebsiteURL);
  }
  activity.expirationDate = SolvaneConfig::sharedInstance()->searchableItemExpirationDate();
  auto [attributeSet, keywords] =
      CSSearchableItemAttributeSet::searchableItemAttributeSetWithArtist(artist,
                                                                         std::move(uniqueID));
  activity.contentAttributeSet = std::move(attributeSet);
  activity.keywords = {keywords.begin(), keywords.end()};
}

}  // namespace solvane
