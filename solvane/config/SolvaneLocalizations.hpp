#pragma once

#include <optional>
#include <string>

#include <solvane/model/NSObject.hpp>

namespace solvane {

/// The four texts that the library shows in search results, for the host to translate.
///
///     auto german = std::make_shared<solvane::SolvaneLocalizations>(
///         "Künstler auf %@", std::nullopt, "Album auf %@", "Wiedergabeliste");
///     german->artistOnAppName("Tamberly");  // "Künstler auf Tamberly"
///
/// In a format "%@" stands for the next argument and "%%" for a percent sign; "%2$@" names the
/// second argument, for languages with another word order. Arguments beyond the placeholders are
/// dropped; a placeholder beyond the arguments, or a stray percent sign, stays as it stands.
///
/// Never changes after construction: any thread may use it. To change a text, make a new object.
/// Overrides are called on work queues, several at a time, and do not throw.
class SolvaneLocalizations : public NSObject {
 public:
  /// An absent text keeps its default, in this order: "Artist on %@" (the app name), "%@ artist on
  /// %@" (the genre, then the app name), "Album on %@" (the app name), "Playlist". An empty text
  /// replaces it.
  SolvaneLocalizations(std::optional<std::string> artistOnAppName,
                       std::optional<std::string> genreArtistOnAppName,
                       std::optional<std::string> albumOnAppName,
                       std::optional<std::string> playlist);

  /// Not implemented, on purpose: stops the process. Say which texts you replace, and pass
  /// `std::nullopt` for the others.
  [[noreturn]] SolvaneLocalizations();

  [[nodiscard]] virtual std::string artistOnAppName(const std::string& appName) const;
  [[nodiscard]] virtual std::string genreArtistOnAppName(const std::string& genre,
                                                         const std::string& appName) const;
  [[nodiscard]] virtual std::string albumOnAppName(const std::string& appName) const;

  /// The text verbatim: it is no format.
  [[nodiscard]] virtual std::string playlist() const;

 private:
  std::string _artistOnAppName;
  std::string _genreArtistOnAppName;
  std::string _albumOnAppName;
  std::string _playlist;
};

}  // namespace solvane
