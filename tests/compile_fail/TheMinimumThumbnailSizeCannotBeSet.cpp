#include <solvane/config/SolvaneConfig.hpp>

double widthOf(const solvane::SolvaneConfig& config) {
#ifdef MUST_NOT_COMPILE
  config.minimumThumbnailDataSize().width = 1;
#endif
  return config.minimumThumbnailDataSize().width;
}
