#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <solvane/config/SolvaneConfig.hpp>

#include "Commands.hpp"
#include "IndexPath.hpp"
#include "JsonOutput.hpp"
#include "Printable.hpp"
#include "Publisher.hpp"

namespace solvane::tool {
namespace {

using Identifiers = std::vector<std::string>;

/// The kinds' own operations; all of them remove by identifier, whatever the kind.
struct Removal {
  const char* kind;
  std::string (SolvaneConfig::*domain)() const;
  void (Solvane::*operation)(Identifiers);
};

const std::vector<Removal>& removals() {
  static const std::vector<Removal> all{
      {"track", &SolvaneConfig::tracksDomainIdentifier, &Solvane::deleteTracks},
      {"artist", &SolvaneConfig::artistsDomainIdentifier, &Solvane::deleteArtists},
      {"album", &SolvaneConfig::albumsDomainIdentifier, &Solvane::deleteAlbums},
      {"playlist", &SolvaneConfig::playlistsDomainIdentifier, &Solvane::removePlaylists}};
  return all;
}

/// Tracks alone stand in domains of their own, so what is in none of the others' is one.
const Removal& removalForDomain(const std::string& domain) {
  const auto& config = *SolvaneConfig::sharedInstance();
  for (const auto& removal : removals()) {
    if ((config.*removal.domain)() == domain) return removal;
  }
  return removals().front();
}

const Removal& removalForKind(const std::string& kind) {
  for (const auto& removal : removals()) {
    if (removal.kind == kind) return removal;
  }
  return removals().front();
}

/// What is there to remove, and by which operation.
struct Plan {
  Identifiers found;
  Identifiers missing;
  std::map<const Removal*, Identifiers> operations;
};

Result<Plan> makePlan(const RemoveRequest& request, const SQLiteIndex& index) {
  Plan plan;
  std::set<std::string> seen;
  for (const auto& identifier : request.identifiers) {
    if (!seen.insert(identifier).second) continue;
    const auto item = index.find(identifier);
    if (!item) return item.error();
    (*item ? plan.found : plan.missing).push_back(identifier);
    // The missing ones too: an expired item is not shown, and yet may still be in the file.
    const auto& removal = request.kind ? removalForKind(*request.kind)
                          : *item      ? removalForDomain((*item)->domainIdentifier)
                                       : removals().front();
    plan.operations[&removal].push_back(identifier);
  }
  return plan;
}

Outcome carryOut(Plan& plan, const std::shared_ptr<SQLiteIndex>& index) {
  Publisher publisher{index};
  for (auto& [removal, identifiers] : plan.operations) {
    (publisher.service().*removal->operation)(std::move(identifiers));
  }
  return publisher.wait();
}

void report(const RemoveRequest& request, const Plan& plan, Console& console) {
  if (request.json) {
    writeJson(console.out, {{"removed", plan.found}, {"notFound", plan.missing}});
  } else {
    console.out << "Removed " << plan.found.size() << " of "
                << plan.found.size() + plan.missing.size() << ".\n";
  }
  for (const auto& identifier : plan.missing) {
    console.err << "Not in the index: " << printable(identifier) << '\n';
  }
}

}  // namespace

ExitCode run(const RemoveRequest& request, Console& console) {
  const auto index = openExistingIndex(request.index);
  if (!index) return indexFailure(console, index.error());
  auto plan = makePlan(request, **index);
  if (!plan) return indexFailure(console, plan.error());
  const auto outcome = carryOut(*plan, *index);
  if (!outcome.errors.empty()) return indexFailure(console, outcome.errors.front());
  report(request, *plan, console);
  return plan->found.empty() ? ExitCode::nothingFound : ExitCode::done;
}

}  // namespace solvane::tool
