#pragma once

#include <cstdint>
#include <map>
#include <string_view>
#include <unordered_set>
#include <vector>

#include <solvane/sqlite/SQLiteIndex.hpp>

#include "detail/Query.hpp"
#include "detail/RowNumber.hpp"
#include "detail/SortableDate.hpp"

namespace solvane::sqlite {

struct Reader;
class Statement;

/// One search. It gathers a bounded number of candidates, the newest of each tier and domain, and
/// ranks those: the time it takes does not grow with the number of matches.
class Search {
 public:
  Search(Reader& reader, std::string_view words, const SearchOptions& options, Date now);

  [[nodiscard]] std::vector<SearchHit> run();

 private:
  struct Candidate {
    std::int64_t row;
    Tier tier;
    int kind;
    std::size_t titleLength;
  };

  /// The ranges of rows whose candidates are gathered apart, so that a large domain leaves room to
  /// the others.
  [[nodiscard]] std::vector<RowRange> ranges();
  [[nodiscard]] std::vector<RowRange> rangesOfAllDomains();

  void gather(RowRange rows);
  /// Returns how many candidates of this tier or a better one there are among the rows.
  std::size_t gather(RowRange rows, Tier tier);
  [[nodiscard]] Candidate candidate(const Statement& match);
  [[nodiscard]] int kindOf(std::int64_t row) const;
  [[nodiscard]] std::vector<SearchHit> bestHits();

  static bool isBetter(const Candidate& left, const Candidate& right);
  static double scoreOf(const Candidate& candidate);

  Reader& _reader;
  const Query _query;
  const SearchOptions& _options;
  const SortableDate _now;
  std::map<std::int64_t, int> _kindsOfDomains;
  std::vector<Candidate> _candidates;
  std::unordered_set<std::int64_t> _gathered;
};

}  // namespace solvane::sqlite
