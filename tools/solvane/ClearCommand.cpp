#include <cstddef>
#include <map>
#include <string>
#include <utility>

#include "Commands.hpp"
#include "IndexPath.hpp"
#include "JsonOutput.hpp"
#include "Printable.hpp"
#include "Publisher.hpp"

namespace solvane::tool {
namespace {

using Counts = std::map<std::string, std::size_t>;

/// How many items the index shows of each of the domains.
Result<Counts> countItems(const ClearRequest& request, const SQLiteIndex& index) {
  auto statistics = index.statistics();
  if (!statistics) return statistics.error();
  Counts counts;
  for (const auto& domain : request.domains) {
    counts[domain] = statistics->itemsPerDomain[domain];
  }
  return counts;
}

void report(const ClearRequest& request, const Counts& counts, Console& console) {
  if (request.json) {
    Json removed = Json::object();
    for (const auto& [domain, items] : counts) removed[domain] = items;
    return writeJson(console.out, {{"removed", std::move(removed)}});
  }
  for (const auto& [domain, items] : counts) {
    console.out << printable(domain) << ": removed " << items
                << (items == 1 ? " item.\n" : " items.\n");
  }
}

bool allEmpty(const Counts& counts) {
  for (const auto& [domain, items] : counts) {
    if (items != 0) return false;
  }
  return true;
}

}  // namespace

ExitCode run(const ClearRequest& request, Console& console) {
  const auto index = openExistingIndex(request.index);
  if (!index) return indexFailure(console, index.error());
  const auto counts = countItems(request, **index);
  if (!counts) return indexFailure(console, counts.error());
  Publisher publisher{*index};
  publisher.service().deleteAllItemsWithDomains(request.domains);
  const auto outcome = publisher.wait();
  if (!outcome.errors.empty()) return indexFailure(console, outcome.errors.front());
  report(request, *counts, console);
  return allEmpty(*counts) ? ExitCode::nothingFound : ExitCode::done;
}

}  // namespace solvane::tool
