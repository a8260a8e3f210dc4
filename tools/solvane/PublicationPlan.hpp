#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <variant>
#include <vector>

#include "CatalogueReader.hpp"

namespace solvane::tool {

/// Records that one operation publishes: of one kind and, for tracks, one domain.
struct PublicationGroup {
  using Records = std::variant<std::vector<Track>, std::vector<Artist>, std::vector<Album>,
                               std::vector<Playlist>>;

  Records records;
  std::optional<std::string> domainID;
};

/// What is to be published, from any number of catalogues. Identifiers are shared by all kinds: of
/// the entries with the same one only the last stays, as it would in the index. Since no order is
/// promised between two operations of the service, this cannot be left to the index.
class PublicationPlan {
 public:
  /// Takes over the catalogue's entries, and adds a warning to it for each that replaces another.
  void add(Catalogue& catalogue);

  /// Hands the records over: grouped, groups and the records in them in the order of their first
  /// appearance. The plan is empty afterwards.
  [[nodiscard]] std::vector<PublicationGroup> takeGroups();

 private:
  struct Planned {
    CatalogueEntry entry;
    std::size_t catalogue;
    bool replaced = false;
  };

  std::vector<Planned> _planned;
  std::vector<std::string> _catalogues;
  std::unordered_map<std::string, std::size_t> _byIdentifier;
};

}  // namespace solvane::tool
