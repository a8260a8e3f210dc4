#pragma once

#include <string>
#include <variant>
#include <vector>

#include <solvane/platform/CSSearchableIndex.hpp>

namespace solvane::sqlite {

struct IndexItems {
  std::vector<CSSearchableItem> items;
};

struct DeleteIdentifiers {
  std::vector<std::string> identifiers;
};

struct DeleteDomains {
  std::vector<std::string> domains;
};

/// One change that a caller handed over, and whom to tell when it is made.
struct Change {
  std::variant<IndexItems, DeleteIdentifiers, DeleteDomains> operation;
  CSSearchableIndex::CompletionHandler completion;
};

}  // namespace solvane::sqlite
