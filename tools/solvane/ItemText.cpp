#include "ItemText.hpp"

#include <iomanip>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Iso8601.hpp"
#include "Printable.hpp"

namespace solvane::tool {
namespace {

/// The artist and the album, as far as there are any that differ from the title.
std::string credit(const CSSearchableItemAttributeSet& attributes) {
  const auto title = attributes.title.value_or("");
  std::string text;
  for (const auto* part : {&attributes.artist, &attributes.album}) {
    if (!*part || (*part)->empty() || **part == title) continue;
    if (!text.empty()) text += " – ";
    text += printable(**part);
  }
  return text;
}

class Attributes {
 public:
  explicit Attributes(std::ostream& out) : _out(out) {}

  void write(std::string_view label, const std::string& value) {
    _out << std::left << std::setw(16) << label << printable(value) << '\n';
  }
  void write(std::string_view label, const std::optional<std::string>& value) {
    if (value) write(label, *value);
  }
  void write(std::string_view label, const std::optional<Date>& date, std::string (*format)(Date)) {
    if (date) write(label, format(*date));
  }

 private:
  std::ostream& _out;
};

std::optional<std::string> joined(const std::optional<std::vector<std::string>>& words) {
  if (!words) return std::nullopt;
  std::string text;
  for (const auto& word : *words) text += (text.empty() ? "" : " | ") + word;
  return text;
}

}  // namespace

void writeItemLines(std::ostream& out, std::size_t number, const CSSearchableItem& item) {
  const auto& attributes = item.attributeSet;
  out << std::right << std::setw(4) << number << ". " << printable(attributes.title.value_or(""))
      << '\n'
      << "      " << printable(item.domainIdentifier);
  if (const auto text = credit(attributes); !text.empty()) out << " · " << text;
  out << " · " << printable(item.uniqueIdentifier) << '\n';
}

void writeItemInFull(std::ostream& out, const CSSearchableItem& item) {
  const auto& set = item.attributeSet;
  Attributes attributes{out};
  attributes.write("Identifier", item.uniqueIdentifier);
  attributes.write("Domain", item.domainIdentifier);
  attributes.write("Content type", set.contentType);
  attributes.write("Related item", set.relatedUniqueIdentifier);
  attributes.write("Title", set.title);
  attributes.write("Artist", set.artist);
  attributes.write("Album", set.album);
  if (set.audioTrackNumber) attributes.write("Track number", std::to_string(*set.audioTrackNumber));
  attributes.write("Genre", set.musicalGenre);
  attributes.write("Recorded", set.recordingDate, &formatIso8601);
  attributes.write("Description", set.contentDescription);
  attributes.write("Keywords", joined(set.keywords));
  if (const auto& data = set.thumbnailData) {
    attributes.write("Thumbnail", std::to_string(data->size()) + " bytes");
  }
  attributes.write("Findable until", item.expirationDate, &formatLocalTime);
}

}  // namespace solvane::tool
