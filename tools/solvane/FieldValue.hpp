#pragma once

#include <filesystem>
#include <string>
#include <variant>

#include <solvane/model/Data.hpp>
#include <solvane/model/Date.hpp>
#include <solvane/model/Integer.hpp>
#include <solvane/sqlite/Result.hpp>

#include "JsonLine.hpp"

namespace solvane::tool {

/// What a catalogue key takes.
enum class FieldType {
  text,
  number,
  integer,
  date,
  base64,
  path,  ///< Names a file of bytes below the catalogue's folder.
};

using FieldValue = std::variant<std::string, double, Integer, Date, Data>;

/// The value of a key of type `type`, or what is wrong with it and what to write instead. Relative
/// paths start from `folder`.
[[nodiscard]] Result<FieldValue> convertField(const JsonValue& value, FieldType type,
                                              const std::filesystem::path& folder);

}  // namespace solvane::tool
