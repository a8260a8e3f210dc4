#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <solvane/sqlite/Result.hpp>

namespace solvane::tool {

/// A value that no catalogue key takes; its content is not kept.
enum class JsonNested { array, object };

using JsonValue = std::variant<std::nullptr_t, bool, std::int64_t, std::uint64_t, double,
                               std::string, JsonNested>;

struct JsonMember {
  std::string key;
  JsonValue value;
};

/// The members of the JSON object that `text` is, in order, repeated keys included. Integers stay
/// exact. The error says in which column the text stops being one.
[[nodiscard]] Result<std::vector<JsonMember>> parseJsonObject(std::string_view text);

/// What `value` is, for a message: "a text", "true", "a list".
[[nodiscard]] std::string_view describe(const JsonValue& value);

}  // namespace solvane::tool
