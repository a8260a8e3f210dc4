#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include <solvane/sqlite/Result.hpp>
#include <solvane/sqlite/SQLiteIndex.hpp>

namespace solvane::tool {

/// Where the user's index lies: below $XDG_DATA_HOME, or else below $HOME. Absent when the
/// environment names neither as an absolute path.
[[nodiscard]] std::optional<std::filesystem::path> defaultIndexPath();

/// Opens the index that `path` names; an index that is not there is an error and is not made, so
/// that a mistyped path does not look like an empty index.
[[nodiscard]] Result<std::shared_ptr<SQLiteIndex>> openExistingIndex(
    const std::filesystem::path& path);

}  // namespace solvane::tool
