#pragma once

#include <optional>
#include <string>

#include <solvane/model/Artist.hpp>
#include <solvane/model/Data.hpp>
#include <solvane/model/NSObject.hpp>

namespace solvane {

/// The mutable artist a host fills in, property by property, and passes to the operations.
///
/// Properties start absent; each reader and writer may be overridden. Not thread-safe: the
/// library reads an object only during the call it is passed to, on the caller's thread.
class SearchAPIArtist : public NSObject {
 public:
  [[nodiscard]] virtual std::optional<std::string> artistID() const;
  virtual void setArtistID(std::optional<std::string> artistID);
  [[nodiscard]] virtual std::optional<std::string> artistName() const;
  virtual void setArtistName(std::optional<std::string> artistName);
  [[nodiscard]] virtual std::optional<std::string> artistBio() const;
  virtual void setArtistBio(std::optional<std::string> artistBio);
  [[nodiscard]] virtual std::optional<std::string> artistGenre() const;
  virtual void setArtistGenre(std::optional<std::string> artistGenre);
  [[nodiscard]] virtual std::optional<Data> thumbnailData() const;
  virtual void setThumbnailData(std::optional<Data> thumbnailData);

  /// A snapshot of the object as a record. Each property is read once, in the order above, through
  /// its reader. An absent identifier or name becomes the empty string; everything else is copied
  /// as it is, absent or present. Never fails.
  [[nodiscard]] virtual Artist structify() const;

 private:
  std::optional<std::string> _artistID;
  std::optional<std::string> _artistName;
  std::optional<std::string> _artistBio;
  std::optional<std::string> _artistGenre;
  std::optional<Data> _thumbnailData;
};

}  // namespace solvane
