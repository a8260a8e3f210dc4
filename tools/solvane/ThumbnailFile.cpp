#include "ThumbnailFile.hpp"

#include <cstdint>
#include <fstream>
#include <system_error>
#include <utility>
#include <vector>

namespace solvane::tool {
namespace {

namespace fs = std::filesystem;

bool leadsOutside(const fs::path& relative) {
  const auto normal = relative.lexically_normal();
  return relative.is_absolute() || *normal.begin() == "..";
}

/// Opened through links, what is found may still lie elsewhere.
bool liesBelow(const fs::path& folder, const fs::path& file) {
  std::error_code error;
  const auto base = fs::canonical(folder.empty() ? fs::path{"."} : folder, error);
  if (error) return false;
  const auto target = fs::canonical(file, error);
  if (error) return false;
  const auto relative = target.lexically_relative(base);
  return !relative.empty() && *relative.begin() != "..";
}

Error unusable(const fs::path& file, const std::string& why) {
  return {1, "names " + file.string() + ", which " + why};
}

Result<Data> readAll(const fs::path& file, std::size_t size) {
  std::vector<std::uint8_t> bytes(size);
  std::ifstream in{file, std::ios::binary};
  in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
  if (!in) return unusable(file, "cannot be read; check its permissions");
  return Data{std::move(bytes)};
}

}  // namespace

Result<Data> readThumbnail(const std::filesystem::path& folder, const std::string& name) {
  if (name.empty() || name.find('\0') != std::string::npos || leadsOutside(name)) {
    return Error{1, "leads out of the catalogue's folder; give a path below it, relative to it"};
  }
  const auto file = folder / name;
  std::error_code error;
  const auto status = fs::status(file, error);
  if (status.type() == fs::file_type::not_found) {
    return unusable(file, "does not exist; correct the path or leave the key out");
  }
  if (error) return unusable(file, "cannot be read: " + error.message());
  if (status.type() != fs::file_type::regular) {
    return unusable(file, "is no regular file; name an image");
  }
  if (!liesBelow(folder, file)) {
    return unusable(file, "is a link out of the catalogue's folder; copy the image into it");
  }
  const auto size = fs::file_size(file, error);
  if (error) return unusable(file, "cannot be read: " + error.message());
  if (size > largestThumbnail) return unusable(file, "is larger than 16 MiB; make it smaller");
  return readAll(file, size);
}

}  // namespace solvane::tool
