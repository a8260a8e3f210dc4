#pragma once

#include <string>
#include <utility>

namespace solvane {

/// The unique identifier under which an entity's item stands in the search index.
///
/// It is the entity's identifier in the host's catalogue, byte for byte: what the host passes to
/// the delete operations is what it indexed with. The kinds share one name space, so a track and an
/// album with the same identifier replace one another. Each function says for which kind a place
/// forms an identifier; all four return their argument unchanged.
struct String {
  String() = delete;

  static std::string track(std::string trackID) { return trackID; }
  static std::string artist(std::string artistID) { return artistID; }
  static std::string album(std::string albumID) { return albumID; }
  static std::string playlist(std::string playlistID) { return playlistID; }
};

}  // namespace solvane
