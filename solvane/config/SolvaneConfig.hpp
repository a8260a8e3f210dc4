#pragma once

#include <memory>
#include <string>
#include <type_traits>

#include <solvane/config/SolvaneLocalizations.hpp>
#include <solvane/model/Date.hpp>
#include <solvane/model/NSObject.hpp>

namespace solvane {

/// The process-wide settings: the app's name and texts in what is published, and the fixed domains.
///
///     solvane::SolvaneConfig::sharedInstance()->setup(
///         "Tamberly", std::make_shared<solvane::SolvaneLocalizations>(
///                         std::nullopt, std::nullopt, std::nullopt, "Mixtape"));
///
/// Optional: without it the defaults hold. A change reaches every item that is built after it.
/// The settings have no lock and are read on work queues: change them before indexing starts. The
/// expiration date and the domain identifiers are safe from any thread at any time.
class SolvaneConfig : public NSObject {
 public:
  /// A size as two numbers, without a unit of its own, in the platform's native floating width.
  struct Size {
    using Scalar = std::conditional_t<sizeof(void*) == 8, double, float>;
    Scalar width;
    Scalar height;
  };

  /// The one instance that the library reads. Made with the defaults on first access, whichever
  /// thread is first, and never destroyed.
  [[nodiscard]] static const std::shared_ptr<SolvaneConfig>& sharedInstance();

  /// A separate instance with the defaults. Nothing the library publishes depends on it.
  SolvaneConfig();

  /// Replaces both settings. Nothing is validated; the last call wins. `localizations` is not null.
  void setup(std::string appName, std::shared_ptr<SolvaneLocalizations> localizations);

  /// "Tamberly" by default.
  [[nodiscard]] std::string appName() const { return _appName; }
  void setAppName(std::string appName);

  /// The English defaults by default. Never null, and not to be set to null. The reference holds
  /// until they are replaced.
  [[nodiscard]] const std::shared_ptr<SolvaneLocalizations>& localizations() const {
    return _localizations;
  }
  void setLocalizations(std::shared_ptr<SolvaneLocalizations> localizations);

  /// 270 by 180, for the host's own use: the library does not check thumbnails.
  [[nodiscard]] Size minimumThumbnailDataSize() const { return _minimumThumbnailDataSize; }

  /// Two calendar weeks after the moment of the read, at the same local time of day: across a
  /// daylight-saving change the interval is not 336 hours. When the platform's calendar yields no
  /// date, logs "SearchAPI: Could not produce expiration date" and returns the present moment, so
  /// that an item stamped with it expires at once.
  [[nodiscard]] Date searchableItemExpirationDate() const;

  [[nodiscard]] std::string tracksDomainIdentifier() const { return "tracks"; }
  [[nodiscard]] std::string artistsDomainIdentifier() const { return "artists"; }
  [[nodiscard]] std::string albumsDomainIdentifier() const { return "albums"; }
  [[nodiscard]] std::string playlistsDomainIdentifier() const { return "playlists"; }

 private:
  Size _minimumThumbnailDataSize;
  std::shared_ptr<SolvaneLocalizations> _localizations;
  std::string _appName;
};

}  // namespace solvane
