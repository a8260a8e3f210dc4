#include "detail/Search.hpp"

#include <algorithm>
#include <array>
#include <tuple>

#include "detail/ItemReading.hpp"
#include "detail/Reader.hpp"

namespace solvane::sqlite {
namespace {

// The domains of the four kinds, by the rank of the kind.
constexpr std::array<std::string_view, 4> kinds{"artists", "albums", "tracks", "playlists"};

// Candidates of each tier and domain, where fewer hits are asked for.
constexpr std::size_t poolSize = 50;

// With more domains than this, those beyond the four kinds are searched together.
constexpr std::int64_t mostSeparateDomains = 16;

}  // namespace

Search::Search(Reader& reader, std::string_view words, const SearchOptions& options, Date now)
    : _reader(reader), _query(words, reader.tokenizer), _options(options), _now(now) {}

std::vector<SearchHit> Search::run() {
  if (_query.isEmpty() || _options.limit == 0) return {};
  for (std::size_t kind = 0; kind < kinds.size(); ++kind) {
    const auto domain = domainNamed(_reader.connection, kinds[kind]);
    if (domain) _kindsOfDomains.emplace(*domain, static_cast<int>(kind));
  }
  for (const auto rows : ranges()) gather(rows);
  return bestHits();
}

std::vector<RowRange> Search::ranges() {
  if (!_options.domainIdentifier) return rangesOfAllDomains();
  const auto domain = domainNamed(_reader.connection, *_options.domainIdentifier);
  return domain ? std::vector{rowsOf(*domain)} : std::vector<RowRange>{};
}

std::vector<RowRange> Search::rangesOfAllDomains() {
  std::vector<RowRange> separate;
  auto domains = _reader.connection.statement("SELECT id FROM domains ORDER BY id LIMIT ?1");
  domains.bind(1, mostSeparateDomains + 1);
  while (domains.step()) separate.push_back(rowsOf(domains.integer(0)));
  if (separate.size() <= static_cast<std::size_t>(mostSeparateDomains)) return separate;
  separate.clear();
  for (const auto& [domain, kind] : _kindsOfDomains) separate.push_back(rowsOf(domain));
  separate.push_back(RowRange{});
  return separate;
}

void Search::gather(RowRange rows) {
  // What a worse tier could add to enough candidates of the better ones would come after them.
  for (const auto tier : allTiers) {
    if (gather(rows, tier) >= _options.limit) return;
  }
}

std::size_t Search::gather(RowRange rows, Tier tier) {
  const auto expression = _query.expression(tier);
  auto matches = _reader.connection.statement(
      "SELECT rid, attrs FROM texts CROSS JOIN items ON rid = texts.rowid "
      "WHERE texts MATCH ?1 AND texts.rowid BETWEEN ?2 AND ?3 AND (exp IS NULL OR exp > ?4) "
      "ORDER BY texts.rowid DESC LIMIT ?5");
  matches.bindText(1, expression).bind(2, rows.first).bind(3, rows.last);
  matches.bindBlob(4, _now.bytes()).bind(5, limitOf(std::max(_options.limit, poolSize)));
  std::size_t count = 0;
  for (; matches.step(); ++count) {
    if (_gathered.insert(matches.integer(0)).second) _candidates.push_back(candidate(matches));
  }
  return count;
}

Search::Candidate Search::candidate(const Statement& match) {
  const auto attributes = attributesIn(_reader.connection, match.bytes(1));
  const auto title = attributes.title.value_or(std::string{});
  const auto row = match.integer(0);
  return {row, _query.tierOf(_reader.tokenizer.words(title)), kindOf(row), title.size()};
}

int Search::kindOf(std::int64_t row) const {
  const auto found = _kindsOfDomains.find(domainOf(row));
  return found == _kindsOfDomains.end() ? static_cast<int>(kinds.size()) : found->second;
}

bool Search::isBetter(const Candidate& left, const Candidate& right) {
  return std::tie(left.tier, left.kind, left.titleLength, right.row) <
         std::tie(right.tier, right.kind, right.titleLength, left.row);
}

double Search::scoreOf(const Candidate& candidate) {
  const auto tier = static_cast<int>(Tier::wordsAnywhere) - static_cast<int>(candidate.tier);
  const auto kind = static_cast<int>(kinds.size()) - candidate.kind;
  return 10.0 * tier + kind + 1.0 / (1.0 + static_cast<double>(candidate.titleLength));
}

std::vector<SearchHit> Search::bestHits() {
  const auto count = std::min(_options.limit, _candidates.size());
  const auto end = _candidates.begin() + static_cast<std::ptrdiff_t>(count);
  std::partial_sort(_candidates.begin(), end, _candidates.end(), &isBetter);
  std::vector<SearchHit> hits;
  hits.reserve(count);
  for (auto best = _candidates.begin(); best != end; ++best) {
    hits.push_back({itemInRow(_reader.connection, best->row), scoreOf(*best)});
  }
  return hits;
}

}  // namespace solvane::sqlite
