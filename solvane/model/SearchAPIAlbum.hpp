#pragma once

#include <optional>
#include <string>

#include <solvane/model/Album.hpp>
#include <solvane/model/Data.hpp>
#include <solvane/model/Date.hpp>
#include <solvane/model/Integer.hpp>
#include <solvane/model/NSObject.hpp>

namespace solvane {

/// The mutable album a host fills in, property by property, and passes to the operations.
///
/// Properties start absent; each reader and writer may be overridden. Not thread-safe: the
/// library reads an object only during the call it is passed to, on the caller's thread.
class SearchAPIAlbum : public NSObject {
 public:
  [[nodiscard]] virtual std::optional<std::string> albumID() const;
  virtual void setAlbumID(std::optional<std::string> albumID);
  [[nodiscard]] virtual std::optional<std::string> albumName() const;
  virtual void setAlbumName(std::optional<std::string> albumName);
  [[nodiscard]] virtual std::optional<std::string> artistName() const;
  virtual void setArtistName(std::optional<std::string> artistName);
  [[nodiscard]] virtual std::optional<Integer> tracksCount() const;
  virtual void setTracksCount(std::optional<Integer> tracksCount);
  [[nodiscard]] virtual std::optional<Date> albumReleaseDate() const;
  virtual void setAlbumReleaseDate(std::optional<Date> albumReleaseDate);
  [[nodiscard]] virtual std::optional<Data> thumbnailData() const;
  virtual void setThumbnailData(std::optional<Data> thumbnailData);

  /// A snapshot of the object as a record. Each property is read once, in the order above, through
  /// its reader. An absent identifier or name becomes the empty string; everything else is copied
  /// as it is, absent or present. Never fails.
  [[nodiscard]] virtual Album structify() const;

 private:
  std::optional<std::string> _albumID;
  std::optional<std::string> _albumName;
  std::optional<std::string> _artistName;
  std::optional<Integer> _tracksCount;
  std::optional<Date> _albumReleaseDate;
  std::optional<Data> _thumbnailData;
};

}  // namespace solvane
