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

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const auto& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

void printJson(const std::string& words, const std::vector<SearchHit>& hits, std::ostream& out) {
  Json list = Json::array();
  for (const auto& hit : hits) {
    list.push_back(itemToJson(hit.item));
    list.back()["score"] = hit.score;
  }
  Json document;
  document["words"] = words;
  document["hits"] = std::move(list);
  writeJson(out, document);
}

void printText(const std::vector<SearchHit>& hits, std::ostream& out) {
  std::size_t number = 0;
  for (const auto& hit : hits) writeItemLines(out, ++number, hit.item);
}

}  // namespace

ExitCode run(const SearchRequest& request, Console& console) {
  const auto index = openExistingIndex(request.index);
  if (!index) return indexFailure(console, index.error());
  const auto words = joined(request.words);
  // One more than wanted tells whether there are more.
  auto hits = (*index)->search(words, {request.domain, request.limit + 1});
  if (!hits) return indexFailure(console, hits.error());
  const bool more = hits->size() > request.limit;
  if (more) hits->pop_back();
  if (request.json) {
    printJson(words, *hits, console.out);
  } else {
    printText(*hits, console.out);
  }
  if (hits->empty()) console.err << "Nothing found for \"" << printable(words) << "\".\n";
  if (more) console.err << "More items match than are shown; raise --limit to see them.\n";
  return hits->empty() ? ExitCode::nothingFound : ExitCode::done;
}

}  // namespace solvane::tool
