#include "JsonLine.hpp"

#include <algorithm>
#include <utility>

#include <nlohmann/json.hpp>

namespace solvane::tool {
namespace {

using Json = nlohmann::json;

/// Hears what the parser reads and keeps the members of the outermost object. It builds no tree,
/// so that nesting however deep costs nothing.
class MemberCollector final : public nlohmann::json_sax<Json> {
 public:
  explicit MemberCollector(std::string_view text) : _text(text) {}

  bool null() override { return take(nullptr); }
  bool boolean(bool value) override { return take(value); }
  bool number_integer(number_integer_t value) override { return take(value); }
  bool number_unsigned(number_unsigned_t value) override { return take(value); }
  bool number_float(number_float_t value, const string_t& /*text*/) override { return take(value); }
  bool string(string_t& value) override { return take(std::move(value)); }
  bool binary(binary_t& /*value*/) override { return false; }

  bool key(string_t& value) override {
    if (_depth == 1) _key = std::move(value);
    return true;
  }
  bool start_object(std::size_t /*size*/) override {
    return _depth++ == 0 || take(JsonNested::object, 2);
  }
  bool start_array(std::size_t /*size*/) override {
    return _depth++ != 0 ? take(JsonNested::array, 2) : isNoObject();
  }
  bool end_object() override { return _depth-- > 0; }
  bool end_array() override { return _depth-- > 0; }

  bool parse_error(std::size_t position, const std::string& /*lastToken*/,
                   const nlohmann::detail::exception& error) override {
    problem =
        "is not JSON at column " + std::to_string(columnOf(position)) + ": " + reason(error.what());
    return false;
  }

  std::vector<JsonMember> members;
  std::string problem;

 private:
  bool take(JsonValue value, int depth = 1) {
    if (_depth == 0) return isNoObject();
    if (_depth == depth) members.push_back({_key, std::move(value)});
    return true;
  }

  bool isNoObject() {
    problem = "is no JSON object; write one entity as {\"kind\": …} on each line";
    return false;
  }

  /// Counted in characters, as editors do, of which the last of `bytes` bytes is part.
  [[nodiscard]] std::size_t columnOf(std::size_t bytes) const {
    const auto beyond = bytes > _text.size() ? 1 : 0;
    const auto characters = std::ranges::count_if(
        _text.substr(0, bytes), [](char byte) { return (byte & '\xC0') != '\x80'; });
    return static_cast<std::size_t>(characters + beyond);
  }

  /// The parser's words without its number for the error and the position.
  static std::string reason(std::string_view words) {
    const auto dash = words.find(" - ");
    return std::string{dash == std::string_view::npos ? words.substr(words.find("] ") + 2)
                                                      : words.substr(dash + 3)};
  }

  std::string_view _text;
  int _depth = 0;
  std::string _key;
};

}  // namespace

Result<std::vector<JsonMember>> parseJsonObject(std::string_view text) {
  MemberCollector collector{text};
  if (!Json::sax_parse(text, &collector)) return Error{1, std::move(collector.problem)};
  return std::move(collector.members);
}

std::string_view describe(const JsonValue& value) {
  struct Describer {
    std::string_view operator()(std::nullptr_t) const { return "null"; }
    std::string_view operator()(bool truth) const { return truth ? "true" : "false"; }
    std::string_view operator()(std::int64_t) const { return "a whole number"; }
    std::string_view operator()(std::uint64_t) const { return "a whole number"; }
    std::string_view operator()(double) const { return "a number with a fraction or exponent"; }
    std::string_view operator()(const std::string&) const { return "a text"; }
    std::string_view operator()(JsonNested nested) const {
      return nested == JsonNested::array ? "a list" : "an object";
    }
  };
  return std::visit(Describer{}, value);
}

}  // namespace solvane::tool
