#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>
#include <support/TemporaryFolder.hpp>

#include "Tool.hpp"

namespace solvane::tool {

/// What a run of the tool left behind.
struct ToolResult {
  int code = 0;
  std::string out;
  std::string err;

  [[nodiscard]] nlohmann::json json() const { return nlohmann::json::parse(out); }
};

/// A folder with catalogues and an index, and the tool working on them.
class ToolRun {
 public:
  [[nodiscard]] std::filesystem::path index() const { return _folder.path() / "data/index.db"; }
  [[nodiscard]] std::filesystem::path folder() const { return _folder.path(); }

  /// Writes a file into the folder, and gives its full name.
  std::string write(const std::string& name, const std::string& content) const {
    const auto file = _folder.path() / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream{file, std::ios::binary} << content;
    return file.string();
  }

  /// Runs a command on this folder's index: its name first, then its own arguments.
  ToolResult operator()(std::vector<std::string> arguments, const std::string& input = {}) const {
    arguments.insert(arguments.begin() + 1, {"--index", index().string()});
    return runAlone(std::move(arguments), input);
  }

  static ToolResult runAlone(std::vector<std::string> arguments, const std::string& input = {}) {
    std::istringstream in{input};
    std::ostringstream out;
    std::ostringstream err;
    const int code = runTool(std::move(arguments), in, out, err);
    return {code, out.str(), err.str()};
  }

 private:
  TemporaryFolder _folder;
};

inline const std::string milesCatalogue =
    R"({"kind": "artist", "artistID": "artist/1", "artistName": "Miles Davis", "artistGenre": "Jazz"}
{"kind": "album", "albumID": "album/1", "albumName": "Kind of Blue", "artistName": "Miles Davis"}
{"kind": "track", "trackID": "track/1", "trackName": "So What", "artistName": "Miles Davis", "albumName": "Kind of Blue"}
{"kind": "track", "trackID": "track/2", "trackName": "Blue in Green", "domainID": "offline"}
{"kind": "playlist", "playlistID": "playlist/1", "playlistName": "Road trip"}
)";

}  // namespace solvane::tool
