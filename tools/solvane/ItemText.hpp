#pragma once

#include <cstddef>
#include <ostream>

#include <solvane/platform/CSSearchableItem.hpp>

namespace solvane::tool {

/// Two lines for an item of a list: its number and title; then its domain, artist, album and
/// identifier.
void writeItemLines(std::ostream& out, std::size_t number, const CSSearchableItem& item);

/// Every attribute that the index stores of the item, one on each line.
void writeItemInFull(std::ostream& out, const CSSearchableItem& item);

}  // namespace solvane::tool
