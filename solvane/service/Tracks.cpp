#include <solvane/model/identifiers.hpp>
#include <solvane/service/Solvane.hpp>
#include <solvane/service/detail/tasks.hpp>

namespace solvane {

void Solvane::indexTracks(const std::vector<std::shared_ptr<SearchAPITrack>>& tracks,
                          std::optional<std::string> domainID) {
  indexTracks(detail::structified(tracks), std::move(domainID));
}

void Solvane::indexTracks(std::vector<Track> tracks, std::optional<std::string> domainID) {
  indexRecords(std::move(tracks), [domainID = std::move(domainID)](const Track& track) {
    return createAudioSearchableItem(track, domainID);
  });
}

void Solvane::deleteTracks(std::vector<std::string> identifiers) {
  deleteItems(std::move(identifiers), String::track);
}

}  // namespace solvane
