#include "FieldValue.hpp"

#include <utility>

#include "Base64.hpp"
#include "Iso8601.hpp"
#include "ThumbnailFile.hpp"

namespace solvane::tool {
namespace {

Error wrongType(const JsonValue& value, const std::string& wanted) {
  return {1, "is " + std::string{describe(value)} + "; give " + wanted};
}

Result<FieldValue> convertNumber(const JsonValue& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return FieldValue{double(*whole)};
  if (const auto* whole = std::get_if<std::uint64_t>(&value)) return FieldValue{double(*whole)};
  if (const auto* number = std::get_if<double>(&value)) return FieldValue{*number};
  return wrongType(value, "a number");
}

Result<FieldValue> convertInteger(const JsonValue& value) {
  const Error outOfRange{1, "is a number too large; give a whole number of at most 64 bits"};
  if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    if (!std::in_range<Integer>(*whole)) return outOfRange;
    return FieldValue{static_cast<Integer>(*whole)};
  }
  if (const auto* whole = std::get_if<std::uint64_t>(&value)) {
    if (!std::in_range<Integer>(*whole)) return outOfRange;
    return FieldValue{static_cast<Integer>(*whole)};
  }
  return wrongType(value, "a whole number");
}

template <class Value>
Result<FieldValue> asField(Result<Value> result) {
  if (!result) return result.error();
  return FieldValue{*std::move(result)};
}

std::string wantedText(FieldType type) {
  switch (type) {
    case FieldType::date:
      return "an ISO 8601 date as a text";
    case FieldType::base64:
      return "the image's bytes in base64 as a text";
    case FieldType::path:
      return "the image's file name as a text";
    default:
      return "a text";
  }
}

}  // namespace

Result<FieldValue> convertField(const JsonValue& value, FieldType type,
                                const std::filesystem::path& folder) {
  if (type == FieldType::number) return convertNumber(value);
  if (type == FieldType::integer) return convertInteger(value);
  const auto* text = std::get_if<std::string>(&value);
  if (text == nullptr) return wrongType(value, wantedText(type));
  if (type == FieldType::date) return asField(parseIso8601(*text));
  if (type == FieldType::base64) return asField(decodeBase64(*text));
  if (type == FieldType::path) return asField(readThumbnail(folder, *text));
  return FieldValue{*text};
}

}  // namespace solvane::tool
