#include <optional>
#include <utility>

#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/detail/fatalError.hpp>
#include <solvane/platform/Platform.hpp>

namespace solvane {

const std::shared_ptr<SolvaneConfig>& SolvaneConfig::sharedInstance() {
  // Never destroyed: a task that outlives main still reads it.
  static const auto& _instance =
      *new const std::shared_ptr<SolvaneConfig>(std::make_shared<SolvaneConfig>());
  return _instance;
}

SolvaneConfig::SolvaneConfig()
    : _minimumThumbnailDataSize{270.0, 180.0},
      _localizations(std::make_shared<SolvaneLocalizations>(std::nullopt, std::nullopt,
                                                            std::nullopt, std::nullopt)),
      _appName("Tamberly") {}

void SolvaneConfig::setup(std::string appName,
                          std::shared_ptr<SolvaneLocalizations> localizations) {
  setAppName(std::move(appName));
  setLocalizations(std::move(localizations));
}

void SolvaneConfig::setAppName(std::string appName) { _appName = std::move(appName); }

void SolvaneConfig::setLocalizations(std::shared_ptr<SolvaneLocalizations> localizations) {
  if (!localizations) detail::fatalError("SolvaneConfig: the localizations must not be null");
  _localizations = std::move(localizations);
}

Date SolvaneConfig::searchableItemExpirationDate() const {
  const Platform& platform = Platform::current();
  DateComponents twoWeeks;
  twoWeeks.weekOfYear = 2;
  const Date now = platform.calendar->now();
  if (const auto date = platform.calendar->dateByAddingComponents(twoWeeks, now)) return *date;
  platform.log->write("SearchAPI: Could not produce expiration date");
  return now;
}

}  // namespace solvane
