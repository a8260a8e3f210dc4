#pragma once

#include <memory>
#include <optional>
#include <string>

#include <solvane/model/Artist.hpp>
#include <solvane/model/NSObject.hpp>
#include <solvane/model/SearchAPIArtist.hpp>
#include <solvane/platform/NSUserActivity.hpp>

namespace solvane {

/// Describes an artist screen as something that the device's search can find.
///
///     solvane::NSUserActivity activity;
///     solvane::UserActivity{}.attachInActivity(
///         activity, solvane::Artist{"artist/7", "Miles Davis", std::nullopt, "Jazz",
///         std::nullopt}, "artist/7", "https://example.com/artist/7");
///
/// Without state: make as many as you like. Works at once, on the caller's thread, which is the one
/// on which the host uses the activity; keeps no reference to it.
class UserActivity : public NSObject {
 public:
  /// Makes the activity eligible for search, stamps the expiration date that every item gets, and
  /// attaches the artist's attribute set, related to `uniqueID`, and its distinct keywords. With a
  /// URL the activity becomes publicly indexable under it; without one, those two properties keep
  /// what they held. Nothing else is written. On a platform below version 9 nothing at all is.
  ///
  /// The form that takes an object converts it with `structify()` and calls the other; both calls
  /// reach overrides. The object may not be null.
  virtual void attachInActivity(NSUserActivity& activity,
                                const std::shared_ptr<SearchAPIArtist>& artist,
                                std::string uniqueID,
                                std::optional<std::string> publicIndexingWebsiteURL);
  virtual void attachInActivity(NSUserActivity& activity, const Artist& artist,
                                std::string uniqueID,
                                std::optional<std::string> publicIndexingWebsiteURL);
};

}  // namespace solvane
