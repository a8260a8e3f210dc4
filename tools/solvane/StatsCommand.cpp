#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <iomanip>
#include <string>
#include <utility>

#include "Commands.hpp"
#include "IndexPath.hpp"
#include "Iso8601.hpp"
#include "JsonOutput.hpp"
#include "Printable.hpp"

namespace solvane::tool {
namespace {

std::string readableSize(std::uintmax_t bytes) {
  if (bytes < 1024) return std::to_string(bytes) + " bytes";
  constexpr std::array units{"KiB", "MiB", "GiB", "TiB"};
  auto size = static_cast<double>(bytes) / 1024;
  std::size_t unit = 0;
  for (; size >= 1024 && unit + 1 < units.size(); ++unit) size /= 1024;
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.1f %s", size, units.at(unit));
  return text.data();
}

void printJson(const StatsRequest& request, const IndexStatistics& statistics, std::ostream& out) {
  Json domains = Json::object();
  for (const auto& [domain, items] : statistics.itemsPerDomain) domains[domain] = items;
  Json document;
  document["index"] = request.index.string();
  document["items"] = statistics.items;
  document["itemsPerDomain"] = std::move(domains);
  if (const auto& date = statistics.firstExpiration) {
    document["firstExpiration"] = formatIso8601(*date);
  }
  if (const auto& date = statistics.lastExpiration) {
    document["lastExpiration"] = formatIso8601(*date);
  }
  document["bytesOnDisk"] = statistics.bytesOnDisk;
  writeJson(out, document);
}

void printText(const StatsRequest& request, const IndexStatistics& statistics, std::ostream& out) {
  const auto line = [&out](const char* label, const std::string& value) {
    out << std::left << std::setw(16) << label << value << '\n';
  };
  line("Index", printable(request.index.string()));
  line("Size", readableSize(statistics.bytesOnDisk));
  line("Items", std::to_string(statistics.items));
  for (const auto& [domain, items] : statistics.itemsPerDomain) {
    out << "  " << std::right << std::setw(8) << items << "  " << printable(domain) << '\n';
  }
  if (const auto& date = statistics.firstExpiration) line("First expires", formatLocalTime(*date));
  if (const auto& date = statistics.lastExpiration) line("Last expires", formatLocalTime(*date));
}

}  // namespace

ExitCode run(const StatsRequest& request, Console& console) {
  const auto index = openExistingIndex(request.index);
  if (!index) return indexFailure(console, index.error());
  const auto statistics = (*index)->statistics();
  if (!statistics) return indexFailure(console, statistics.error());
  if (request.json) {
    printJson(request, *statistics, console.out);
  } else {
    printText(request, *statistics, console.out);
  }
  return ExitCode::done;
}

}  // namespace solvane::tool
