#pragma once

#include <optional>
#include <set>
#include <string>

#include <solvane/model/Date.hpp>
#include <solvane/platform/CSSearchableItemAttributeSet.hpp>

namespace solvane {

/// What the user is looking at, as the system's search may find it: a plain record, owned by the
/// host, used on one thread at a time.
struct NSUserActivity {
  bool eligibleForSearch = false;
  bool eligibleForPublicIndexing = false;
  std::optional<std::string> webpageURL;
  std::optional<Date> expirationDate;
  std::optional<CSSearchableItemAttributeSet> contentAttributeSet;
  std::set<std::string> keywords;

  friend bool operator==(const NSUserActivity&, const NSUserActivity&) = default;
};

}  // namespace solvane
