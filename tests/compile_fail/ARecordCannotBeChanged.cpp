#include <solvane/testing/fields.hpp>

std::string nameOf(solvane::Track& track) {
#ifdef MUST_NOT_COMPILE
  track._trackName = "other";
#endif
  return track.trackName();
}
