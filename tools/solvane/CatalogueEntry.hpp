#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include <solvane/model/Album.hpp>
#include <solvane/model/Artist.hpp>
#include <solvane/model/Playlist.hpp>
#include <solvane/model/Track.hpp>

#include "FieldValue.hpp"

namespace solvane::tool {

using Record = std::variant<Track, Artist, Album, Playlist>;

/// The values of one line, by key. What the line leaves out is not in it.
using FieldValues = std::map<std::string_view, FieldValue>;

/// One line of a catalogue.
struct CatalogueEntry {
  Record record;

  /// The record's identifier, and the key that gives it.
  std::string identifier;
  std::string_view identifierKey;

  /// Tracks only.
  std::optional<std::string> domainID;

  std::size_t line = 0;
};

}  // namespace solvane::tool
