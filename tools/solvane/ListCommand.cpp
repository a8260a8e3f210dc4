#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "Commands.hpp"
#include "IndexPath.hpp"
#include "ItemText.hpp"
#include "JsonOutput.hpp"
#include "Printable.hpp"

namespace solvane::tool {
namespace {

Result<std::size_t> countAll(const ListRequest& request, const SQLiteIndex& index) {
  auto statistics = index.statistics();
  if (!statistics) return statistics.error();
  return request.domain ? statistics->itemsPerDomain[*request.domain] : statistics->items;
}

void printJson(const ListRequest& request, const std::vector<CSSearchableItem>& items,
               std::size_t total, std::ostream& out) {
  Json list = Json::array();
  for (const auto& item : items) list.push_back(itemToJson(item));
  writeJson(out, {{"offset", request.offset}, {"total", total}, {"items", std::move(list)}});
}

void printText(const ListRequest& request, const std::vector<CSSearchableItem>& items,
               std::ostream& out) {
  auto number = request.offset;
  for (const auto& item : items) writeItemLines(out, ++number, item);
}

/// Says why there is nothing, or how to see the rest.
void printHint(const ListRequest& request, std::size_t shown, std::size_t total,
               std::ostream& err) {
  const auto place = request.domain ? "domain \"" + printable(*request.domain) + '"' : "index";
  const auto next = request.offset + shown;
  if (total == 0) {
    err << "The " << place << " is empty.\n";
  } else if (shown == 0) {
    err << "The " << place << " has only " << total << (total == 1 ? " item.\n" : " items.\n");
  } else if (next < total) {
    err << "These are " << shown << " of " << total << "; --offset " << next
        << " shows the next.\n";
  }
}

}  // namespace

ExitCode run(const ListRequest& request, Console& console) {
  const auto index = openExistingIndex(request.index);
  if (!index) return indexFailure(console, index.error());
  const auto items = (*index)->list({request.domain, request.limit, request.offset});
  if (!items) return indexFailure(console, items.error());
  const auto total = countAll(request, **index);
  if (!total) return indexFailure(console, total.error());
  if (request.json) {
    printJson(request, *items, *total, console.out);
  } else {
    printText(request, *items, console.out);
  }
  printHint(request, items->size(), *total, console.err);
  return items->empty() ? ExitCode::nothingFound : ExitCode::done;
}

}  // namespace solvane::tool
