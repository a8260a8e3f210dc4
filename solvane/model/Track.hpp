#pragma once

#include <optional>
#include <string>
#include <utility>

#include <solvane/model/Data.hpp>
#include <solvane/model/Date.hpp>
#include <solvane/model/Integer.hpp>

namespace solvane {

/// One track of the host's catalogue: a plain, immutable value.
///
/// Every field is given once, at construction, and stored unchanged; each reader returns a copy.
/// `trackDuration` is in seconds, and neither it nor `trackIndexInAlbum` is checked in any way.
/// An absent optional differs from an empty one.
///
///     using namespace std::chrono;
///     solvane::Track track{"track/42", "So What", 545.0, 1, "Miles Davis", "Kind of Blue",
///                          sys_days{1959y / 8 / 17}, "Jazz", std::nullopt};
class Track {
 public:
  Track(std::string trackID, std::string trackName, double trackDuration, Integer trackIndexInAlbum,
        std::string artistName, std::string albumName, std::optional<Date> albumReleaseDate,
        std::optional<std::string> genreName, std::optional<Data> thumbnailData)
      : _trackID(std::move(trackID)),
        _trackName(std::move(trackName)),
        _trackDuration(trackDuration),
        _trackIndexInAlbum(trackIndexInAlbum),
        _artistName(std::move(artistName)),
        _albumName(std::move(albumName)),
        _albumReleaseDate(albumReleaseDate),
        _genreName(std::move(genreName)),
        _thumbnailData(std::move(thumbnailData)) {}

  [[nodiscard]] std::string trackID() const { return _trackID; }
  [[nodiscard]] std::string trackName() const { return _trackName; }
  [[nodiscard]] double trackDuration() const { return _trackDuration; }
  [[nodiscard]] Integer trackIndexInAlbum() const { return _trackIndexInAlbum; }
  [[nodiscard]] std::string artistName() const { return _artistName; }
  [[nodiscard]] std::string albumName() const { return _albumName; }
  [[nodiscard]] std::optional<Date> albumReleaseDate() const { return _albumReleaseDate; }
  [[nodiscard]] std::optional<std::string> genreName() const { return _genreName; }
  [[nodiscard]] std::optional<Data> thumbnailData() const { return _thumbnailData; }

 private:
  std::string _trackID;
  std::string _trackName;
  double _trackDuration;
  Integer _trackIndexInAlbum;
  std::string _artistName;
  std::string _albumName;
  std::optional<Date> _albumReleaseDate;
  std::optional<std::string> _genreName;
  std::optional<Data> _thumbnailData;
};

}  // namespace solvane
