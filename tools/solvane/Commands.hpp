#pragma once

#include "Console.hpp"
#include "Requests.hpp"

namespace solvane::tool {

/// The commands, each in a file of its own.
[[nodiscard]] ExitCode run(const IndexRequest& request, Console& console);
[[nodiscard]] ExitCode run(const SearchRequest& request, Console& console);
[[nodiscard]] ExitCode run(const RemoveRequest& request, Console& console);
[[nodiscard]] ExitCode run(const ClearRequest& request, Console& console);
[[nodiscard]] ExitCode run(const ListRequest& request, Console& console);
[[nodiscard]] ExitCode run(const ShowRequest& request, Console& console);
[[nodiscard]] ExitCode run(const StatsRequest& request, Console& console);

}  // namespace solvane::tool
