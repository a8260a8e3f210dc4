#include <array>
#include <string_view>
#include <utility>

#include <solvane/config/SolvaneLocalizations.hpp>
#include <solvane/detail/fatalError.hpp>
#include <solvane/detail/format.hpp>

namespace solvane {
namespace {

std::string withAppName(std::string_view pattern, std::string_view appName) {
  return detail::format(pattern, std::array{appName});
}

}  // namespace

SolvaneLocalizations::SolvaneLocalizations(std::optional<std::string> artistOnAppName,
                                           std::optional<std::string> genreArtistOnAppName,
                                           std::optional<std::string> albumOnAppName,
                                           std::optional<std::string> playlist)
    : _artistOnAppName(std::move(artistOnAppName).value_or("Artist on %@")),
      _genreArtistOnAppName(std::move(genreArtistOnAppName).value_or("%@ artist on %@")),
      _albumOnAppName(std::move(albumOnAppName).value_or("Album on %@")),
      _playlist(std::move(playlist).value_or("Playlist")) {}

SolvaneLocalizations::SolvaneLocalizations() {
  detail::fatalError("use of unimplemented initializer 'init()' for class 'SolvaneLocalizations'");
}

std::string SolvaneLocalizations::artistOnAppName(const std::string& appName) const {
  return withAppName(_artistOnAppName, appName);
}

std::string SolvaneLocalizations::genreArtistOnAppName(const std::string& genre,
                                                       const std::string& appName) const {
  return detail::format(_genreArtistOnAppName, std::array<std::string_view, 2>{genre, appName});
}

std::string SolvaneLocalizations::albumOnAppName(const std::string& appName) const {
  return withAppName(_albumOnAppName, appName);
}

std::string SolvaneLocalizations::playlist() const { return _playlist; }

}  // namespace solvane
