#include <charconv>
#include <optional>

#include <solvane/detail/format.hpp>

namespace solvane::detail {
namespace {

// A directive at the start of a text: how long it is, and the position that it names, if it does.
struct Placeholder {
  std::size_t length;
  std::optional<std::size_t> position;
};

std::optional<Placeholder> placeholderAt(std::string_view text) {
  if (text.starts_with("%@")) return Placeholder{2, std::nullopt};
  std::size_t position = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data() + 1, end, position);
  if (error != std::errc{} || !std::string_view(rest, end).starts_with("$@")) return std::nullopt;
  return Placeholder{static_cast<std::size_t>(rest + 2 - text.data()), position};
}

}  // namespace

std::string format(std::string_view pattern, std::span<const std::string_view> arguments) {
  std::string result;
  std::size_t next = 1;
  while (true) {
    const auto percent = pattern.find('%');
    result += pattern.substr(0, percent);
    if (percent == std::string_view::npos) return result;
    pattern.remove_prefix(percent);

    std::size_t consumed = 1;
    std::string_view replacement = "%";
    if (pattern.starts_with("%%")) {
      consumed = 2;
    } else if (const auto placeholder = placeholderAt(pattern)) {
      const std::size_t position = placeholder->position ? *placeholder->position : next++;
      const bool filled = position >= 1 && position <= arguments.size();
      consumed = placeholder->length;
      replacement = filled ? arguments[position - 1] : pattern.substr(0, consumed);
    }
    result += replacement;
    pattern.remove_prefix(consumed);
  }
}

}  // namespace solvane::detail
