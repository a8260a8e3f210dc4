#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <solvane/platform/CSSearchableItemAttributeSet.hpp>

namespace solvane::sqlite {

class Tokenizer;

/// What the text index knows of one item.
struct IndexedText {
  /// The words of the title as one word, by which whole titles and their beginnings are found
  /// without looking at every item that has the words somewhere.
  std::string name;
  std::string title;
  std::string artist;
  std::string album;

  /// Genre, keywords and description. Keywords that are another field's text are left out: they
  /// add nothing to find, and many.
  std::string other;

  friend bool operator==(const IndexedText&, const IndexedText&) = default;
};

[[nodiscard]] IndexedText indexedTextOf(const CSSearchableItemAttributeSet& attributes,
                                        Tokenizer& tokenizer);

/// The words as the one word under which `IndexedText::name` has them.
[[nodiscard]] std::string joinedName(const std::vector<std::string>& words);

}  // namespace solvane::sqlite
