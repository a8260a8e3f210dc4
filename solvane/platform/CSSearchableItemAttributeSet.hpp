#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <solvane/model/Data.hpp>
#include <solvane/model/Date.hpp>
#include <solvane/model/Integer.hpp>

namespace solvane {

class Album;
class Artist;
class Playlist;
class Track;
struct ArtistAttributeSet;

/// The uniform type identifier for audio: the content type of every item of every kind.
inline constexpr std::string_view kUTTypeAudio = "public.audio";

/// What the search index stores and shows of one item: a plain record.
///
/// An absent attribute is unset; the keyword list is kept in order, with its duplicates.
struct CSSearchableItemAttributeSet {
  explicit CSSearchableItemAttributeSet(std::string itemContentType)
      : contentType(std::move(itemContentType)) {}

  /// A track's content: title, artist, track number, album, genre, thumbnail, recording date, and
  /// as keywords the track's, artist's and album's names and then the genre, if there is one.
  /// The duration stays out of the index, and a track has no description.
  [[nodiscard]] static CSSearchableItemAttributeSet searchableItemAttributeSetWithTrack(
      const Track& track, std::string uniqueID);

  /// An artist's content, and beside it the keyword list that the set holds, for callers that need
  /// it on its own. The description is the first that is not empty: the biography, then the phrase
  /// "<genre> artist on <app name>" (fixed English, whatever the localizations say), then the
  /// localized default. The genre is a keyword, never a genre attribute.
  [[nodiscard]] static ArtistAttributeSet searchableItemAttributeSetWithArtist(
      const Artist& artist, std::string uniqueID);

  /// An album's content. The number of its tracks reaches the index in no form.
  [[nodiscard]] static CSSearchableItemAttributeSet searchableItemAttributeSetWithAlbum(
      const Album& album, std::string uniqueID);

  /// A playlist's content. Its description is the localized word alone, without the app's name.
  [[nodiscard]] static CSSearchableItemAttributeSet searchableItemAttributeSetWithPlaylist(
      const Playlist& playlist, std::string uniqueID);

  std::string contentType;
  std::optional<std::string> relatedUniqueIdentifier;
  std::optional<std::string> title;
  std::optional<std::string> artist;
  std::optional<Integer> audioTrackNumber;
  std::optional<std::string> album;
  std::optional<std::string> musicalGenre;
  std::optional<Data> thumbnailData;
  std::optional<Date> recordingDate;
  std::optional<std::string> contentDescription;
  std::optional<std::vector<std::string>> keywords;

  friend bool operator==(const CSSearchableItemAttributeSet&,
                         const CSSearchableItemAttributeSet&) = default;
};

/// An artist's attribute set with the keyword list that it holds.
struct ArtistAttributeSet {
  CSSearchableItemAttributeSet searchableItemAttributeSet;
  std::vector<std::string> keywords;
};

}  // namespace solvane
