#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace solvane::sqlite {

class Tokenizer;

/// How well an item's title answers a query, from best to worst.
enum class Tier { sameTitle, titleBegins, wordsInTitle, wordsAnywhere };

inline constexpr std::array allTiers{Tier::sameTitle, Tier::titleBegins, Tier::wordsInTitle,
                                     Tier::wordsAnywhere};

/// What is searched for: words that must all be there, the last as the beginning of one.
class Query {
 public:
  /// Words after the 64th do not narrow the search any more.
  static constexpr std::size_t mostWords = 64;

  Query(std::string_view text, Tokenizer& tokenizer);

  [[nodiscard]] bool isEmpty() const noexcept { return _words.empty(); }

  /// The expression that finds everything in this tier, and what is in a better one.
  [[nodiscard]] std::string expression(Tier tier) const;

  /// The tier of an item that has all the words and this title, folded.
  [[nodiscard]] Tier tierOf(const std::vector<std::string>& title) const;

 private:
  [[nodiscard]] bool begins(const std::vector<std::string>& title) const;
  [[nodiscard]] bool isWithin(const std::vector<std::string>& title) const;
  [[nodiscard]] bool matches(std::size_t index, const std::string& word) const;

  std::vector<std::string> _words;
};

}  // namespace solvane::sqlite
