#pragma once

#include <optional>
#include <string>

#include <solvane/model/Data.hpp>
#include <solvane/model/Date.hpp>
#include <solvane/model/Integer.hpp>
#include <solvane/model/NSObject.hpp>
#include <solvane/model/Track.hpp>

namespace solvane {

/// The mutable track a host fills in, property by property, and passes to the operations.
///
/// Properties start absent (the two numbers 0); each reader and writer may be overridden. Not
/// thread-safe: the library reads an object only during the call it is passed to, on the caller's
/// thread.
class SearchAPITrack : public NSObject {
 public:
  [[nodiscard]] virtual std::optional<std::string> trackID() const;
  virtual void setTrackID(std::optional<std::string> trackID);
  [[nodiscard]] virtual std::optional<std::string> trackName() const;
  virtual void setTrackName(std::optional<std::string> trackName);
  [[nodiscard]] virtual double trackDuration() const;
  virtual void setTrackDuration(double trackDuration);
  [[nodiscard]] virtual Integer trackIndexInAlbum() const;
  virtual void setTrackIndexInAlbum(Integer trackIndexInAlbum);
  [[nodiscard]] virtual std::optional<std::string> artistName() const;
  virtual void setArtistName(std::optional<std::string> artistName);
  [[nodiscard]] virtual std::optional<std::string> albumName() const;
  virtual void setAlbumName(std::optional<std::string> albumName);
  [[nodiscard]] virtual std::optional<Date> albumReleaseDate() const;
  virtual void setAlbumReleaseDate(std::optional<Date> albumReleaseDate);
  [[nodiscard]] virtual std::optional<std::string> genreName() const;
  virtual void setGenreName(std::optional<std::string> genreName);
  [[nodiscard]] virtual std::optional<Data> thumbnailData() const;
  virtual void setThumbnailData(std::optional<Data> thumbnailData);

  /// A snapshot of the object as a record. Each property is read once, in the order above, through
  /// its reader. An absent identifier or name becomes the empty string; everything else is copied
  /// as it is, absent or present. Never fails.
  [[nodiscard]] virtual Track structify() const;

 private:
  std::optional<std::string> _trackID;
  std::optional<std::string> _trackName;
  double _trackDuration = 0;
  Integer _trackIndexInAlbum = 0;
  std::optional<std::string> _artistName;
  std::optional<std::string> _albumName;
  std::optional<Date> _albumReleaseDate;
  std::optional<std::string> _genreName;
  std::optional<Data> _thumbnailData;
};

}  // namespace solvane
