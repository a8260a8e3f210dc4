#include "detail/Query.hpp"

#include <algorithm>

#include "detail/IndexedText.hpp"
#include "detail/Tokenizer.hpp"

namespace solvane::sqlite {
namespace {

// A folded word has letters and digits only, and never a quotation mark.
std::string quoted(const std::string& word) { return '"' + word + '"'; }

std::string allOf(const std::vector<std::string>& words) {
  std::string expression;
  for (const auto& word : words) {
    if (!expression.empty()) expression += " AND ";
    expression += quoted(word);
  }
  return expression + '*';
}

}  // namespace

Query::Query(std::string_view text, Tokenizer& tokenizer)
    : _words(tokenizer.words(text, mostWords)) {}

std::string Query::expression(Tier tier) const {
  switch (tier) {
    case Tier::sameTitle:
      return "name : " + quoted(joinedName(_words));
    case Tier::titleBegins:
      return "name : " + quoted(joinedName(_words)) + '*';
    case Tier::wordsInTitle:
      return "title : (" + allOf(_words) + ')';
    case Tier::wordsAnywhere:
      break;
  }
  return allOf(_words);
}

Tier Query::tierOf(const std::vector<std::string>& title) const {
  if (title == _words) return Tier::sameTitle;
  if (begins(title)) return Tier::titleBegins;
  return isWithin(title) ? Tier::wordsInTitle : Tier::wordsAnywhere;
}

bool Query::matches(std::size_t index, const std::string& word) const {
  const bool isLast = index + 1 == _words.size();
  return isLast ? word.starts_with(_words[index]) : word == _words[index];
}

bool Query::begins(const std::vector<std::string>& title) const {
  if (title.size() < _words.size()) return false;
  for (std::size_t i = 0; i < _words.size(); ++i) {
    if (!matches(i, title[i])) return false;
  }
  return true;
}

bool Query::isWithin(const std::vector<std::string>& title) const {
  for (std::size_t i = 0; i < _words.size(); ++i) {
    const auto isMatch = [&](const std::string& word) { return matches(i, word); };
    if (std::none_of(title.begin(), title.end(), isMatch)) return false;
  }
  return true;
}

}  // namespace solvane::sqlite
