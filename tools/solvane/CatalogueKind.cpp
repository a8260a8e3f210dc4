#include "CatalogueKind.hpp"

#include <algorithm>
#include <array>

namespace solvane::tool {
namespace {

constexpr CatalogueKey thumbnailData{"thumbnailData", FieldType::base64};
constexpr CatalogueKey thumbnailPath{"thumbnailPath", FieldType::path, false, "thumbnailData"};

constexpr std::array trackKeys{
    CatalogueKey{"trackID", FieldType::text, true},
    CatalogueKey{"trackName", FieldType::text, true},
    CatalogueKey{"trackDuration", FieldType::number},
    CatalogueKey{"trackIndexInAlbum", FieldType::integer},
    CatalogueKey{"artistName"},
    CatalogueKey{"albumName"},
    CatalogueKey{"albumReleaseDate", FieldType::date},
    CatalogueKey{"genreName"},
    CatalogueKey{"domainID"},
    thumbnailData,
    thumbnailPath,
};

constexpr std::array artistKeys{
    CatalogueKey{"artistID", FieldType::text, true},
    CatalogueKey{"artistName", FieldType::text, true},
    CatalogueKey{"artistBio"},
    CatalogueKey{"artistGenre"},
    thumbnailData,
    thumbnailPath,
};

constexpr std::array albumKeys{
    CatalogueKey{"albumID", FieldType::text, true},
    CatalogueKey{"albumName", FieldType::text, true},
    CatalogueKey{"artistName"},
    CatalogueKey{"tracksCount", FieldType::integer},
    CatalogueKey{"albumReleaseDate", FieldType::date},
    thumbnailData,
    thumbnailPath,
};

constexpr std::array playlistKeys{
    CatalogueKey{"playlistID", FieldType::text, true},
    CatalogueKey{"playlistName", FieldType::text, true},
    thumbnailData,
    thumbnailPath,
};

template <class Value>
std::optional<Value> optional(const FieldValues& values, std::string_view key) {
  const auto found = values.find(key);
  if (found == values.end()) return std::nullopt;
  return std::get<Value>(found->second);
}

/// A field that the record cannot do without is empty, or zero, when the line leaves it out.
template <class Value>
Value always(const FieldValues& values, std::string_view key) {
  return optional<Value>(values, key).value_or(Value{});
}

Record makeTrack(const FieldValues& values) {
  return Track{
      always<std::string>(values, "trackID"),     always<std::string>(values, "trackName"),
      always<double>(values, "trackDuration"),    always<Integer>(values, "trackIndexInAlbum"),
      always<std::string>(values, "artistName"),  always<std::string>(values, "albumName"),
      optional<Date>(values, "albumReleaseDate"), optional<std::string>(values, "genreName"),
      optional<Data>(values, "thumbnailData")};
}

Record makeArtist(const FieldValues& values) {
  return Artist{always<std::string>(values, "artistID"), always<std::string>(values, "artistName"),
                optional<std::string>(values, "artistBio"),
                optional<std::string>(values, "artistGenre"),
                optional<Data>(values, "thumbnailData")};
}

Record makeAlbum(const FieldValues& values) {
  return Album{always<std::string>(values, "albumID"),     always<std::string>(values, "albumName"),
               always<std::string>(values, "artistName"),  optional<Integer>(values, "tracksCount"),
               optional<Date>(values, "albumReleaseDate"), optional<Data>(values, "thumbnailData")};
}

Record makePlaylist(const FieldValues& values) {
  return Playlist{always<std::string>(values, "playlistID"),
                  always<std::string>(values, "playlistName"),
                  optional<Data>(values, "thumbnailData")};
}

constexpr std::array kinds{
    CatalogueKind{"track", trackKeys, &makeTrack},
    CatalogueKind{"artist", artistKeys, &makeArtist},
    CatalogueKind{"album", albumKeys, &makeAlbum},
    CatalogueKind{"playlist", playlistKeys, &makePlaylist},
};

}  // namespace

const CatalogueKey* CatalogueKind::findKey(std::string_view keyName) const {
  const auto found = std::ranges::find(keys, keyName, &CatalogueKey::name);
  return found == keys.end() ? nullptr : &*found;
}

std::span<const CatalogueKind> catalogueKinds() { return kinds; }

const CatalogueKind* findKind(std::string_view name) {
  const auto* const found = std::ranges::find(kinds, name, &CatalogueKind::name);
  return found == kinds.end() ? nullptr : found;
}

}  // namespace solvane::tool
