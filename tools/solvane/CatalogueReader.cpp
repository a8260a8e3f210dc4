#include "CatalogueReader.hpp"

#include <cerrno>
#include <fstream>
#include <system_error>
#include <utility>

#include "EntryParser.hpp"
#include "LineReader.hpp"

namespace solvane::tool {
namespace {

Catalogue unreadable(const std::string& file, std::string why) {
  Catalogue catalogue{.name = file, .entries = {}, .problems = {}, .warnings = {}};
  catalogue.problems.add({0, {}, std::move(why)});
  return catalogue;
}

void readLine(const LineReader::Line& line, const std::filesystem::path& folder,
              Catalogue& catalogue) {
  if (line.text.find_first_not_of(" \t") == std::string::npos) return;
  if (line.tooLong) {
    ++catalogue.badLines;
    return catalogue.problems.add(
        {line.number, {}, "is too long to be an entity; nothing is read from here on"});
  }
  auto entry = parseEntry(line.text, line.number, folder, catalogue.problems);
  if (entry) {
    catalogue.entries.push_back(*std::move(entry));
  } else {
    ++catalogue.badLines;
  }
}

}  // namespace

Catalogue CatalogueReader::read(const std::string& file) const {
  if (file == "-") return read("<stdin>", _standardInput, {});
  const std::filesystem::path path{file};
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (status.type() == std::filesystem::file_type::not_found) {
    return unreadable(file, "does not exist; check the path");
  }
  if (status.type() == std::filesystem::file_type::directory) {
    return unreadable(file, "is a folder; name a catalogue file in it");
  }
  errno = 0;
  std::ifstream in{path, std::ios::binary};
  if (!in) {
    return unreadable(file, "cannot be read: " + std::generic_category().message(errno));
  }
  return read(file, in, path.parent_path());
}

Catalogue CatalogueReader::read(const std::string& name, std::istream& in,
                                const std::filesystem::path& folder) {
  Catalogue catalogue{.name = name, .entries = {}, .problems = {}, .warnings = {}};
  LineReader lines{in};
  while (const auto line = lines.next()) readLine(*line, folder, catalogue);
  if (lines.failed()) catalogue.problems.add({0, {}, "cannot be read to its end"});
  if (catalogue.entries.empty() && catalogue.problems.none()) {
    catalogue.warnings.add({0, {}, "is empty; nothing to publish"});
  }
  return catalogue;
}

}  // namespace solvane::tool
