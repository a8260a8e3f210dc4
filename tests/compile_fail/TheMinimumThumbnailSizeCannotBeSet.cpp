#include <solvane/config/SolvaneConfig.hpp>

double widthOf(solvane::SolvaneConfig& config) {
#ifdef MUST_NOT_COMPILE
  config.setMinimumThumbnailDataSize({1, 1});
#endif
  return config.minimumThumbnailDataSize().width;
}
