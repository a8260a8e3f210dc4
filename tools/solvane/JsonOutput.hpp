#pragma once

#include <ostream>

#include <solvane/platform/CSSearchableItem.hpp>

#include <nlohmann/json.hpp>

namespace solvane::tool {

/// Keeps the order in which members are added.
using Json = nlohmann::ordered_json;

enum class Thumbnail { size, bytes };

/// The item as an object of its attributes, absent ones left out. Of the thumbnail it tells the
/// size in bytes, and the bytes in base64 on demand.
[[nodiscard]] Json itemToJson(const CSSearchableItem& item, Thumbnail thumbnail = Thumbnail::size);

/// Writes the document, and a line end: always UTF-8, and fit for a terminal.
void writeJson(std::ostream& out, const Json& document);

}  // namespace solvane::tool
