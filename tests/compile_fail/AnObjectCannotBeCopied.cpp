#include <solvane/model/SearchAPITrack.hpp>

std::shared_ptr<solvane::SearchAPITrack> share(
    const std::shared_ptr<solvane::SearchAPITrack>& track) {
#ifdef MUST_NOT_COMPILE
  return std::make_shared<solvane::SearchAPITrack>(solvane::SearchAPITrack{*track});
#else
  return track;
#endif
}
