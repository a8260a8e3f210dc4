#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/sqlite/SQLiteIndex.hpp>

#include "CatalogueReader.hpp"
#include "Commands.hpp"
#include "Iso8601.hpp"
#include "JsonOutput.hpp"
#include "Printable.hpp"
#include "ProgressBar.hpp"
#include "PublicationPlan.hpp"
#include "Publisher.hpp"

namespace solvane::tool {
namespace {

/// Gives published texts the name of another app, for its own lifetime.
class AppName {
 public:
  explicit AppName(const std::optional<std::string>& name)
      : _before(SolvaneConfig::sharedInstance()->appName()) {
    if (name) SolvaneConfig::sharedInstance()->setAppName(*name);
  }
  AppName(const AppName&) = delete;
  AppName& operator=(const AppName&) = delete;
  ~AppName() { SolvaneConfig::sharedInstance()->setAppName(_before); }

 private:
  std::string _before;
};

/// How many records there are of each kind, in the order of `Record`.
using KindCounts = std::array<std::size_t, std::variant_size_v<Record>>;

KindCounts countKinds(const std::vector<PublicationGroup>& groups) {
  KindCounts counts{};
  for (const auto& [records, domainID] : groups) {
    counts.at(records.index()) += std::visit([](const auto& list) { return list.size(); }, records);
  }
  return counts;
}

constexpr std::array<const char*, std::variant_size_v<Record>> singular{"track", "artist", "album",
                                                                        "playlist"};

std::string inWords(const KindCounts& counts) {
  std::vector<std::string> parts;
  for (std::size_t kind = 0; kind < counts.size(); ++kind) {
    if (counts.at(kind) == 0) continue;
    parts.push_back(std::to_string(counts.at(kind)) + ' ' + singular.at(kind) +
                    (counts.at(kind) == 1 ? "" : "s"));
  }
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i != 0) text += i + 1 == parts.size() ? " and " : ", ";
    text += parts[i];
  }
  return text;
}

/// One catalogue file, once its entries have gone into the plan or been left out.
struct FileReport {
  Catalogue catalogue;
  bool published = false;
};

std::vector<FileReport> readAll(const IndexRequest& request, Console& console,
                                PublicationPlan& plan) {
  const CatalogueReader reader{console.in};
  std::vector<FileReport> reports;
  for (const auto& file : request.catalogues) {
    auto catalogue = reader.read(file);
    const bool good = catalogue.problems.none() || request.keepGoing;
    const bool published = good && !catalogue.entries.empty();
    if (published) plan.add(catalogue);
    catalogue.entries.clear();
    reports.push_back({std::move(catalogue), published});
  }
  return reports;
}

void printProblems(const std::vector<FileReport>& reports, bool keepGoing, std::ostream& err) {
  for (const auto& [catalogue, published] : reports) {
    catalogue.problems.print(err, catalogue.name);
    catalogue.warnings.print(err, catalogue.name, "warning: ");
    if (catalogue.badLines == 0) continue;
    err << printable(catalogue.name) << ": " << catalogue.badLines
        << (catalogue.badLines == 1 ? " bad line; " : " bad lines; ")
        << (published   ? "the rest of the file is published"
            : keepGoing ? "there is no good one to publish"
                        : "nothing of this file is published (--keep-going publishes the rest)")
        << '\n';
  }
}

bool anyBad(const std::vector<FileReport>& reports) {
  for (const auto& report : reports) {
    if (!report.catalogue.problems.none()) return true;
  }
  return false;
}

Json problemsToJson(const Problems& problems) {
  Json list = Json::array();
  for (const auto& [line, key, text] : problems.first()) {
    Json problem = Json::object();
    if (line != 0) problem["line"] = line;
    if (!key.empty()) problem["key"] = key;
    problem["message"] = text;
    list.push_back(std::move(problem));
  }
  return list;
}

Json filesToJson(const std::vector<FileReport>& reports) {
  Json files = Json::array();
  for (const auto& [catalogue, published] : reports) {
    files.push_back({{"file", catalogue.name},
                     {"published", published},
                     {"badLines", catalogue.badLines},
                     {"problems", problemsToJson(catalogue.problems)},
                     {"warnings", problemsToJson(catalogue.warnings)}});
  }
  return files;
}

void printJson(const IndexRequest& request, const std::vector<FileReport>& reports,
               const KindCounts& counts, const Outcome& outcome, std::ostream& out) {
  Json document;
  document["index"] = request.index.string();
  document["items"] = outcome.publishedItems;
  Json planned = Json::object();
  for (std::size_t kind = 0; kind < counts.size(); ++kind) {
    planned[std::string{singular.at(kind)} + 's'] = counts.at(kind);
  }
  document[outcome.errors.empty() ? "published" : "planned"] = std::move(planned);
  if (outcome.firstExpiration) {
    document["findableUntil"] = formatIso8601(*outcome.firstExpiration);
  }
  document["files"] = filesToJson(reports);
  writeJson(out, document);
}

void printSummary(const IndexRequest& request, const KindCounts& counts, const Outcome& outcome,
                  std::ostream& out) {
  if (outcome.publishedItems == 0 || !outcome.errors.empty()) return;
  out << "Published " << inWords(counts) << " to " << printable(request.index.string()) << ".\n";
  if (outcome.firstExpiration) {
    out << "Findable until " << formatLocalTime(*outcome.firstExpiration) << ".\n";
  }
}

Result<Outcome> publish(const IndexRequest& request, std::vector<PublicationGroup> groups,
                        Console& console) {
  const auto total = countRecords(groups);
  if (total == 0) return Outcome{};
  const auto index = SQLiteIndex::open(request.index);
  if (!index) return index.error();
  const AppName appName{request.appName};
  ProgressBar progress{console.err, console.terminal, total};
  Publisher publisher{*index};
  return publisher.publish(std::move(groups), [&](std::size_t done) { progress.update(done); });
}

}  // namespace

ExitCode run(const IndexRequest& request, Console& console) {
  PublicationPlan plan;
  const auto reports = readAll(request, console, plan);
  printProblems(reports, request.keepGoing, console.err);
  auto groups = plan.takeGroups();
  const auto counts = countKinds(groups);
  const auto planned = countRecords(groups);
  const auto outcome = publish(request, std::move(groups), console);
  if (!outcome) return indexFailure(console, outcome.error());
  if (request.json) {
    printJson(request, reports, counts, *outcome, console.out);
  } else {
    printSummary(request, counts, *outcome, console.out);
  }
  if (!outcome->errors.empty()) {
    console.err << "solvane: only " << outcome->publishedItems << " of " << planned
                << " items are published.\n";
    return indexFailure(console, outcome->errors.front());
  }
  return anyBad(reports) ? ExitCode::badCatalogue : ExitCode::done;
}

}  // namespace solvane::tool
