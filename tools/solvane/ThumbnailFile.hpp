#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include <solvane/model/Data.hpp>
#include <solvane/sqlite/Result.hpp>

namespace solvane::tool {

/// Larger files are no thumbnails.
inline constexpr std::size_t largestThumbnail = std::size_t{16} << 20U;

/// The bytes of the file that `name` names below `folder`. A catalogue may come from elsewhere, so
/// names that lead out of its folder are refused: what they point at is not the catalogue's.
[[nodiscard]] Result<Data> readThumbnail(const std::filesystem::path& folder,
                                         const std::string& name);

}  // namespace solvane::tool
