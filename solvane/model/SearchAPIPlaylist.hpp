#pragma once

#include <optional>
#include <string>

#include <solvane/model/Data.hpp>
#include <solvane/model/NSObject.hpp>
#include <solvane/model/Playlist.hpp>

namespace solvane {

/// The mutable playlist a host fills in, property by property, and passes to the operations.
///
/// Properties start absent; each reader and writer may be overridden. Not thread-safe: the
/// library reads an object only during the call it is passed to, on the caller's thread.
class SearchAPIPlaylist : public NSObject {
 public:
  [[nodiscard]] virtual std::optional<std::string> playlistID() const;
  virtual void setPlaylistID(std::optional<std::string> playlistID);
  [[nodiscard]] virtual std::optional<std::string> playlistName() const;
  virtual void setPlaylistName(std::optional<std::string> playlistName);
  [[nodiscard]] virtual std::optional<Data> thumbnailData() const;
  virtual void setThumbnailData(std::optional<Data> thumbnailData);

  /// A snapshot of the object as a record. Each property is read once, in the order above, through
  /// its reader. An absent identifier or name becomes the empty string; everything else is copied
  /// as it is, absent or present. Never fails.
  [[nodiscard]] virtual Playlist structify() const;

 private:
  std::optional<std::string> _playlistID;
  std::optional<std::string> _playlistName;
  std::optional<Data> _thumbnailData;
};

}  // namespace solvane
