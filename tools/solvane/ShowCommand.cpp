#include "Commands.hpp"
#include "IndexPath.hpp"
#include "ItemText.hpp"
#include "JsonOutput.hpp"
#include "Printable.hpp"

namespace solvane::tool {

ExitCode run(const ShowRequest& request, Console& console) {
  const auto index = openExistingIndex(request.index);
  if (!index) return indexFailure(console, index.error());
  const auto item = (*index)->find(request.identifier);
  if (!item) return indexFailure(console, item.error());
  if (!*item) {
    console.err << "Not in the index: " << printable(request.identifier) << '\n';
    return ExitCode::nothingFound;
  }
  if (request.json) {
    writeJson(console.out, itemToJson(**item, Thumbnail::bytes));
  } else {
    writeItemInFull(console.out, **item);
  }
  return ExitCode::done;
}

}  // namespace solvane::tool
