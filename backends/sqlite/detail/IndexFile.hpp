#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace solvane::sqlite {

/// Makes an empty file that its user alone may read, and likewise the folders above it where they
/// do not exist; leaves what exists as it is. Returns the absolute path, and throws `Failure`.
[[nodiscard]] std::string prepareFile(const std::filesystem::path& file);

/// The size of the database file and its write-ahead log together.
[[nodiscard]] std::uintmax_t bytesOnDisk(const std::string& file);

}  // namespace solvane::sqlite
