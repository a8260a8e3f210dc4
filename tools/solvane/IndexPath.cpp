#include "IndexPath.hpp"

#include <cstdlib>
#include <string>

namespace solvane::tool {
namespace {

std::optional<std::filesystem::path> absolutePathFrom(const char* variable) {
  const char* value = std::getenv(variable);
  if (value == nullptr) return std::nullopt;
  std::filesystem::path path{value};
  if (!path.is_absolute()) return std::nullopt;
  return path;
}

}  // namespace

std::optional<std::filesystem::path> defaultIndexPath() {
  if (const auto data = absolutePathFrom("XDG_DATA_HOME")) return *data / "solvane/index.db";
  if (const auto home = absolutePathFrom("HOME")) return *home / ".local/share/solvane/index.db";
  return std::nullopt;
}

Result<std::shared_ptr<SQLiteIndex>> openExistingIndex(const std::filesystem::path& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (status.type() == std::filesystem::file_type::not_found) {
    return Error{static_cast<int>(SQLiteIndexError::cannotOpen),
                 "There is no index at " + path.string() +
                     "; publish a catalogue with `solvane index` first, or name another with "
                     "--index."};
  }
  return SQLiteIndex::open(path);
}

}  // namespace solvane::tool
