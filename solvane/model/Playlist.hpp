#pragma once

#include <optional>
#include <string>
#include <utility>

#include <solvane/model/Data.hpp>

namespace solvane {

/// One playlist of the host's catalogue: a plain, immutable value.
///
/// Every field is given once, at construction, and stored unchanged; each reader returns a copy.
///
///     solvane::Playlist playlist{"playlist/1", "Road trip", std::nullopt};
class Playlist {
 public:
  Playlist(std::string playlistID, std::string playlistName, std::optional<Data> thumbnailData)
      : _playlistID(std::move(playlistID)),
        _playlistName(std::move(playlistName)),
        _thumbnailData(std::move(thumbnailData)) {}

  [[nodiscard]] std::string playlistID() const { return _playlistID; }
  [[nodiscard]] std::string playlistName() const { return _playlistName; }
  [[nodiscard]] std::optional<Data> thumbnailData() const { return _thumbnailData; }

 private:
  std::string _playlistID;
  std::string _playlistName;
  std::optional<Data> _thumbnailData;
};

}  // namespace solvane
