#include "JsonOutput.hpp"

#include <optional>

#include "Base64.hpp"
#include "Iso8601.hpp"
#include "Printable.hpp"

namespace solvane::tool {
namespace {

template <class Value>
void put(Json& object, const char* key, const std::optional<Value>& value) {
  if (value) object[key] = *value;
}

void putDate(Json& object, const char* key, const std::optional<Date>& date) {
  if (date) object[key] = formatIso8601(*date);
}

}  // namespace

Json itemToJson(const CSSearchableItem& item, Thumbnail thumbnail) {
  const auto& attributes = item.attributeSet;
  Json object = Json::object();
  object["uniqueIdentifier"] = item.uniqueIdentifier;
  object["domainIdentifier"] = item.domainIdentifier;
  object["contentType"] = attributes.contentType;
  put(object, "relatedUniqueIdentifier", attributes.relatedUniqueIdentifier);
  put(object, "title", attributes.title);
  put(object, "artist", attributes.artist);
  put(object, "audioTrackNumber", attributes.audioTrackNumber);
  put(object, "album", attributes.album);
  put(object, "musicalGenre", attributes.musicalGenre);
  putDate(object, "recordingDate", attributes.recordingDate);
  put(object, "contentDescription", attributes.contentDescription);
  put(object, "keywords", attributes.keywords);
  if (const auto& data = attributes.thumbnailData) {
    object["thumbnailSize"] = data->size();
    if (thumbnail == Thumbnail::bytes) object["thumbnailData"] = encodeBase64(data->bytes());
  }
  putDate(object, "expirationDate", item.expirationDate);
  return object;
}

void writeJson(std::ostream& out, const Json& document) {
  out << printableJson(document.dump(2, ' ', false, Json::error_handler_t::replace)) << '\n';
}

}  // namespace solvane::tool
