#include "EntryParser.hpp"

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "CatalogueKind.hpp"
#include "JsonLine.hpp"
#include "Utf8.hpp"

namespace solvane::tool {
namespace {

constexpr std::string_view kindKey = "kind";

template <class Range, class Projection>
std::string listNames(const Range& range, Projection name) {
  std::string list;
  for (const auto& element : range) {
    if (!list.empty()) list += ", ";
    list += name(element);
  }
  return list;
}

/// Turns the members of one line into an entry.
class EntryBuilder {
 public:
  EntryBuilder(std::size_t line, const std::filesystem::path& folder, Problems& problems)
      : _line(line), _folder(folder), _problems(problems), _before(problems.count()) {}

  std::optional<CatalogueEntry> build(const std::vector<JsonMember>& members) {
    const auto* kind = readKind(members);
    if (kind == nullptr) return std::nullopt;
    for (const auto& member : members) readMember(*kind, member);
    checkRequired(*kind);
    if (_problems.count() != _before) return std::nullopt;
    const auto identifierKey = kind->keys.front().name;
    const auto domain = _values.find("domainID");
    return CatalogueEntry{
        kind->makeRecord(_values), std::get<std::string>(_values.at(identifierKey)), identifierKey,
        domain == _values.end() ? std::nullopt
                                : std::optional{std::get<std::string>(domain->second)},
        _line};
  }

 private:
  void report(std::string_view key, std::string text) {
    _problems.add({_line, std::string{key}, std::move(text)});
  }

  const CatalogueKind* readKind(const std::vector<JsonMember>& members) {
    const auto names = listNames(catalogueKinds(), [](const auto& kind) { return kind.name; });
    const auto found = std::ranges::find(members, kindKey, &JsonMember::key);
    if (found == members.end()) {
      report(kindKey, "is missing; give one of " + names);
      return nullptr;
    }
    const auto* name = std::get_if<std::string>(&found->value);
    const auto* kind = name == nullptr ? nullptr : findKind(*name);
    if (kind == nullptr) {
      const auto given = name == nullptr ? std::string{describe(found->value)} : '"' + *name + '"';
      report(kindKey, "is " + given + "; give one of " + names);
    }
    return kind;
  }

  void readMember(const CatalogueKind& kind, const JsonMember& member) {
    if (!_seen.insert(member.key).second) {
      return report(member.key, "is given twice; leave one of them out");
    }
    if (member.key == kindKey) return;
    const auto* key = kind.findKey(member.key);
    if (key == nullptr) {
      return report(member.key, "is unknown for this kind; the keys of kind " +
                                    std::string{kind.name} + " are " +
                                    listNames(kind.keys, [](const auto& k) { return k.name; }));
    }
    if (!std::holds_alternative<std::nullptr_t>(member.value)) readValue(*key, member.value);
  }

  void readValue(const CatalogueKey& key, const JsonValue& json) {
    if (!_given.insert(key.field).second) {
      return report(key.name, "is a second thumbnail; give thumbnailData or thumbnailPath");
    }
    auto value = convertField(json, key.type, _folder);
    if (!value) return report(key.name, value.error().message);
    _values.emplace(key.field, *std::move(value));
  }

  void checkRequired(const CatalogueKind& kind) {
    if (_problems.count() != _before) return;
    for (const auto& key : kind.keys) {
      if (key.required && !_values.contains(key.field)) {
        report(key.name, "is missing; every " + std::string{kind.name} + " needs one");
      }
    }
    const auto& identifierKey = kind.keys.front();
    const auto identifier = _values.find(identifierKey.field);
    if (identifier != _values.end() && std::get<std::string>(identifier->second).empty()) {
      report(identifierKey.name, "is empty; give the identifier that the app knows it by");
    }
  }

  std::size_t _line;
  const std::filesystem::path& _folder;
  Problems& _problems;
  std::size_t _before;
  std::set<std::string_view> _seen;
  std::set<std::string_view> _given;
  FieldValues _values;
};

}  // namespace

std::optional<CatalogueEntry> parseEntry(std::string_view text, std::size_t line,
                                         const std::filesystem::path& folder, Problems& problems) {
  if (const auto position = findInvalidUtf8(text)) {
    problems.add({line,
                  {},
                  "is not UTF-8 at byte " + std::to_string(*position + 1) +
                      "; save the catalogue as UTF-8"});
    return std::nullopt;
  }
  const auto members = parseJsonObject(text);
  if (!members) {
    problems.add({line, {}, members.error().message});
    return std::nullopt;
  }
  return EntryBuilder{line, folder, problems}.build(*members);
}

}  // namespace solvane::tool
