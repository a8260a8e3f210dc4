#pragma once

#include <span>
#include <string_view>

#include "CatalogueEntry.hpp"

namespace solvane::tool {

/// One key of a catalogue line.
struct CatalogueKey {
  std::string_view name;
  FieldType type = FieldType::text;
  bool required = false;

  /// The field it gives, where two keys are two ways to give the same one.
  std::string_view field = name;
};

/// One kind of entity: the keys that its lines may have, besides "kind", and the record that they
/// make. The first key is the identifier.
struct CatalogueKind {
  std::string_view name;
  std::span<const CatalogueKey> keys;
  Record (*makeRecord)(const FieldValues&);

  [[nodiscard]] const CatalogueKey* findKey(std::string_view keyName) const;
};

[[nodiscard]] std::span<const CatalogueKind> catalogueKinds();

/// Null when there is no such kind.
[[nodiscard]] const CatalogueKind* findKind(std::string_view name);

}  // namespace solvane::tool
