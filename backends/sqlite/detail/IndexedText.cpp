#include "detail/IndexedText.hpp"

#include "detail/Tokenizer.hpp"

namespace solvane::sqlite {
namespace {

// U+E000, a private character: the tokenizer counts it among the letters.
constexpr std::string_view joint = "\xEE\x80\x80";

void append(std::string& text, std::string_view more) {
  if (more.empty()) return;
  if (!text.empty()) text += '\n';
  text += more;
}

std::string otherTextOf(const CSSearchableItemAttributeSet& attributes) {
  std::string text = attributes.musicalGenre.value_or(std::string{});
  append(text, attributes.contentDescription.value_or(std::string{}));
  if (!attributes.keywords) return text;
  for (const auto& keyword : *attributes.keywords) {
    const bool isKnown = keyword == attributes.title || keyword == attributes.artist ||
                         keyword == attributes.album || keyword == attributes.musicalGenre;
    if (!isKnown) append(text, keyword);
  }
  return text;
}

}  // namespace

IndexedText indexedTextOf(const CSSearchableItemAttributeSet& attributes, Tokenizer& tokenizer) {
  IndexedText text;
  text.title = attributes.title.value_or(std::string{});
  text.artist = attributes.artist.value_or(std::string{});
  text.album = attributes.album.value_or(std::string{});
  text.name = joinedName(tokenizer.words(text.title));
  text.other = otherTextOf(attributes);
  return text;
}

std::string joinedName(const std::vector<std::string>& words) {
  std::string name;
  for (const auto& word : words) {
    if (!name.empty()) name += joint;
    name += word;
  }
  return name;
}

}  // namespace solvane::sqlite
