#pragma once

#include <optional>
#include <string>
#include <utility>

#include <solvane/model/Data.hpp>
#include <solvane/model/Date.hpp>
#include <solvane/model/Integer.hpp>

namespace solvane {

/// One album of the host's catalogue: a plain, immutable value.
///
/// Every field is given once, at construction, and stored unchanged; each reader returns a copy.
/// An absent optional differs from an empty one.
///
///     using namespace std::chrono;
///     solvane::Album album{"album/3", "Kind of Blue", "Miles Davis", 5,
///                          sys_days{1959y / 8 / 17}, std::nullopt};
class Album {
 public:
  Album(std::string albumID, std::string albumName, std::string artistName,
        std::optional<Integer> tracksCount, std::optional<Date> albumReleaseDate,
        std::optional<Data> thumbnailData)
      : _albumID(std::move(albumID)),
        _albumName(std::move(albumName)),
        _artistName(std::move(artistName)),
        _tracksCount(tracksCount),
        _albumReleaseDate(albumReleaseDate),
        _thumbnailData(std::move(thumbnailData)) {}

  [[nodiscard]] std::string albumID() const { return _albumID; }
  [[nodiscard]] std::string albumName() const { return _albumName; }
  [[nodiscard]] std::string artistName() const { return _artistName; }
  [[nodiscard]] std::optional<Integer> tracksCount() const { return _tracksCount; }
  [[nodiscard]] std::optional<Date> albumReleaseDate() const { return _albumReleaseDate; }
  [[nodiscard]] std::optional<Data> thumbnailData() const { return _thumbnailData; }

 private:
  std::string _albumID;
  std::string _albumName;
  std::string _artistName;
  std::optional<Integer> _tracksCount;
  std::optional<Date> _albumReleaseDate;
  std::optional<Data> _thumbnailData;
};

}  // namespace solvane
