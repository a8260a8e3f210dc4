#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "CatalogueEntry.hpp"
#include "Problems.hpp"

namespace solvane::tool {

/// The entry that line `line` of a catalogue in `folder` describes. When anything is wrong with it,
/// everything that is wrong goes to `problems` and there is no entry.
[[nodiscard]] std::optional<CatalogueEntry> parseEntry(std::string_view text, std::size_t line,
                                                       const std::filesystem::path& folder,
                                                       Problems& problems);

}  // namespace solvane::tool
