#include <algorithm>
#include <iomanip>
#include <ostream>
#include <utility>

#include <solvane/testing/printing.hpp>

namespace solvane {
namespace {

void printValue(std::ostream& out, const std::string& text) { out << std::quoted(text); }
void printValue(std::ostream& out, bool value) { out << (value ? "true" : "false"); }
void printValue(std::ostream& out, const auto& value) { out << value; }

template <class Sequence>
void printSequence(std::ostream& out, const Sequence& values) {
  out << '[';
  const char* separator = "";
  for (const auto& value : values) {
    out << std::exchange(separator, ", ");
    printValue(out, value);
  }
  out << ']';
}

void printValue(std::ostream& out, const std::vector<std::string>& values) {
  printSequence(out, values);
}
void printValue(std::ostream& out, const std::set<std::string>& values) {
  printSequence(out, values);
}

void print(std::ostream& out, const char* name, const auto& value) {
  out << "\n  " << name << ": ";
  printValue(out, value);
}

template <class Value>
void print(std::ostream& out, const char* name, const std::optional<Value>& value) {
  if (value) print(out, name, *value);
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Date& date) {
  const char fill = out.fill();
  return out << date.secondsSinceEpoch() << '.' << std::setfill('0') << std::setw(9)
             << date.nanoseconds() << std::setfill(fill) << " s since 1970";
}

std::ostream& operator<<(std::ostream& out, const Data& data) {
  const auto flags = out.flags();
  const char fill = out.fill();
  out << data.size() << " bytes";
  for (const auto byte : data.bytes().first(std::min<std::size_t>(data.size(), 16))) {
    out << ' ' << std::hex << std::setfill('0') << std::setw(2) << unsigned{byte};
  }
  out.flags(flags);
  out.fill(fill);
  return out << (data.size() > 16 ? " ..." : "");
}

std::ostream& operator<<(std::ostream& out, const CSSearchableItemAttributeSet& attributeSet) {
  print(out, "contentType", attributeSet.contentType);
  print(out, "relatedUniqueIdentifier", attributeSet.relatedUniqueIdentifier);
  print(out, "title", attributeSet.title);
  print(out, "artist", attributeSet.artist);
  print(out, "audioTrackNumber", attributeSet.audioTrackNumber);
  print(out, "album", attributeSet.album);
  print(out, "musicalGenre", attributeSet.musicalGenre);
  print(out, "thumbnailData", attributeSet.thumbnailData);
  print(out, "recordingDate", attributeSet.recordingDate);
  print(out, "contentDescription", attributeSet.contentDescription);
  print(out, "keywords", attributeSet.keywords);
  return out;
}

std::ostream& operator<<(std::ostream& out, const CSSearchableItem& item) {
  print(out, "uniqueIdentifier", item.uniqueIdentifier);
  print(out, "domainIdentifier", item.domainIdentifier);
  print(out, "expirationDate", item.expirationDate);
  return out << item.attributeSet;
}

std::ostream& operator<<(std::ostream& out, const NSUserActivity& activity) {
  print(out, "eligibleForSearch", activity.eligibleForSearch);
  print(out, "eligibleForPublicIndexing", activity.eligibleForPublicIndexing);
  print(out, "webpageURL", activity.webpageURL);
  print(out, "expirationDate", activity.expirationDate);
  print(out, "keywords", activity.keywords);
  print(out, "contentAttributeSet", activity.contentAttributeSet);
  return out;
}

}  // namespace solvane
