#pragma once

#include <cstddef>
#include <filesystem>
#include <istream>
#include <string>
#include <vector>

#include "CatalogueEntry.hpp"
#include "Problems.hpp"

namespace solvane::tool {

/// What one catalogue file says, and what is wrong with it.
struct Catalogue {
  /// As it is called in messages.
  std::string name;

  std::vector<CatalogueEntry> entries;

  /// How many lines have problems; a line may have several.
  std::size_t badLines = 0;

  Problems problems;
  Problems warnings;
};

/// Reads catalogues: JSON Lines in UTF-8, one entity on each line. Line by line, so that beside the
/// records never more than a line is held.
class CatalogueReader {
 public:
  explicit CatalogueReader(std::istream& standardInput) : _standardInput(standardInput) {}

  /// Reads `file`, or the standard input when it is "-", to its end, whatever is wrong with it.
  [[nodiscard]] Catalogue read(const std::string& file) const;

  /// Reads the catalogue called `name` from a stream. Thumbnails lie below `folder`.
  [[nodiscard]] static Catalogue read(const std::string& name, std::istream& in,
                                      const std::filesystem::path& folder);

 private:
  std::istream& _standardInput;
};

}  // namespace solvane::tool
