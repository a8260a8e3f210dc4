#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <solvane/platform/CSSearchableItemAttributeSet.hpp>

namespace solvane::sqlite {

/// Attribute sets as compact bytes, all but the thumbnail, which is large and rarely needed and is
/// kept beside them.
///
/// The bytes are a version, then the attributes that are present, each behind its tag and in the
/// order of the tags; the content type is left out where it is audio. Integers and lengths are
/// base-128 numbers with the low digits first.
struct AttributeCodec {
  [[nodiscard]] static std::string encode(const CSSearchableItemAttributeSet& attributes);

  /// The set again, without its thumbnail; none when the bytes are not what `encode` makes.
  /// Never reads beyond them, whatever they are.
  [[nodiscard]] static std::optional<CSSearchableItemAttributeSet> decode(std::string_view bytes);
};

}  // namespace solvane::sqlite
