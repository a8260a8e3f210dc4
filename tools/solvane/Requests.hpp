#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace solvane::tool {

/// What every command is told.
struct CommonRequest {
  std::filesystem::path index;
  bool json = false;
};

struct IndexRequest : CommonRequest {
  std::vector<std::string> catalogues;
  bool keepGoing = false;
  std::optional<std::string> appName;
};

struct SearchRequest : CommonRequest {
  std::vector<std::string> words;
  std::optional<std::string> domain;
  std::size_t limit = 20;
};

struct RemoveRequest : CommonRequest {
  std::vector<std::string> identifiers;

  /// The name of a kind; absent: whatever kind each item is of.
  std::optional<std::string> kind;
};

struct ClearRequest : CommonRequest {
  std::vector<std::string> domains;
};

struct ListRequest : CommonRequest {
  std::optional<std::string> domain;
  std::size_t limit = 100;
  std::size_t offset = 0;
};

struct ShowRequest : CommonRequest {
  std::string identifier;
};

struct StatsRequest : CommonRequest {};

using Request = std::variant<IndexRequest, SearchRequest, RemoveRequest, ClearRequest, ListRequest,
                             ShowRequest, StatsRequest>;

}  // namespace solvane::tool
