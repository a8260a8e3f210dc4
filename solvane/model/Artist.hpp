#pragma once

#include <optional>
#include <string>
#include <utility>

#include <solvane/model/Data.hpp>

namespace solvane {

/// One artist of the host's catalogue: a plain, immutable value.
///
/// Every field is given once, at construction, and stored unchanged; each reader returns a copy.
/// An absent optional differs from an empty one.
///
///     solvane::Artist artist{"artist/7", "Miles Davis", std::nullopt, "Jazz", std::nullopt};
class Artist {
 public:
  Artist(std::string artistID, std::string artistName, std::optional<std::string> artistBio,
         std::optional<std::string> artistGenre, std::optional<Data> thumbnailData)
      : _artistID(std::move(artistID)),
        _artistName(std::move(artistName)),
        _artistBio(std::move(artistBio)),
        _artistGenre(std::move(artistGenre)),
        _thumbnailData(std::move(thumbnailData)) {}

  [[nodiscard]] std::string artistID() const { return _artistID; }
  [[nodiscard]] std::string artistName() const { return _artistName; }
  [[nodiscard]] std::optional<std::string> artistBio() const { return _artistBio; }
  [[nodiscard]] std::optional<std::string> artistGenre() const { return _artistGenre; }
  [[nodiscard]] std::optional<Data> thumbnailData() const { return _thumbnailData; }

 private:
  std::string _artistID;
  std::string _artistName;
  std::optional<std::string> _artistBio;
  std::optional<std::string> _artistGenre;
  std::optional<Data> _thumbnailData;
};

}  // namespace solvane
