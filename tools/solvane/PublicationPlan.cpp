#include "PublicationPlan.hpp"

#include <map>
#include <tuple>
#include <utility>

namespace solvane::tool {
namespace {

/// The list that holds records of the same type as `record`.
PublicationGroup::Records emptyListFor(const Record& record) {
  return std::visit(
      []<class Entity>(const Entity&) { return PublicationGroup::Records{std::vector<Entity>{}}; },
      record);
}

void append(PublicationGroup& group, Record record) {
  std::visit(
      [&]<class Entity>(Entity& entity) {
        std::get<std::vector<Entity>>(group.records).push_back(std::move(entity));
      },
      record);
}

}  // namespace

void PublicationPlan::add(Catalogue& catalogue) {
  _catalogues.push_back(catalogue.name);
  for (auto& entry : catalogue.entries) {
    const auto [place, isNew] = _byIdentifier.try_emplace(entry.identifier, _planned.size());
    if (!isNew) {
      auto& earlier = _planned[std::exchange(place->second, _planned.size())];
      earlier.replaced = true;
      catalogue.warnings.add(
          {entry.line, std::string{entry.identifierKey},
           '"' + entry.identifier + "\" is already used at " + _catalogues[earlier.catalogue] +
               ':' + std::to_string(earlier.entry.line) + "; the later one replaces it"});
    }
    _planned.push_back({std::move(entry), _catalogues.size() - 1});
  }
  catalogue.entries.clear();
}

std::vector<PublicationGroup> PublicationPlan::takeGroups() {
  std::vector<PublicationGroup> groups;
  std::map<std::pair<std::size_t, std::optional<std::string>>, std::size_t> places;
  for (auto& [entry, catalogue, replaced] : _planned) {
    if (replaced) continue;
    const auto [place, isNew] =
        places.try_emplace({entry.record.index(), entry.domainID}, groups.size());
    if (isNew) groups.push_back({emptyListFor(entry.record), entry.domainID});
    append(groups[place->second], std::move(entry.record));
  }
  *this = {};
  return groups;
}

}  // namespace solvane::tool
