#include "detail/AttributeCodec.hpp"

#include <limits>

#include "detail/ByteStream.hpp"
#include "detail/SortableDate.hpp"

namespace solvane::sqlite {
namespace {

constexpr std::uint8_t version = 1;

// Written into files: a tag keeps its number.
enum class Tag : std::uint8_t {
  contentType = 1,
  relatedUniqueIdentifier = 2,
  title = 3,
  artist = 4,
  audioTrackNumber = 5,
  album = 6,
  musicalGenre = 7,
  recordingDate = 8,
  contentDescription = 9,
  keywords = 10,
};

using OptionalString = std::optional<std::string> CSSearchableItemAttributeSet::*;

OptionalString stringBehind(Tag tag) {
  using Set = CSSearchableItemAttributeSet;
  switch (tag) {
    case Tag::relatedUniqueIdentifier:
      return &Set::relatedUniqueIdentifier;
    case Tag::title:
      return &Set::title;
    case Tag::artist:
      return &Set::artist;
    case Tag::album:
      return &Set::album;
    case Tag::musicalGenre:
      return &Set::musicalGenre;
    case Tag::contentDescription:
      return &Set::contentDescription;
    default:
      return nullptr;
  }
}

class Encoder {
 public:
  explicit Encoder(const CSSearchableItemAttributeSet& set) : _set(set) { _out.byte(version); }

  void attribute(Tag tag) {
    if (const auto member = stringBehind(tag)) {
      if (const auto& value = _set.*member) text(tag, *value);
    } else if (tag == Tag::contentType) {
      if (_set.contentType != kUTTypeAudio) text(tag, _set.contentType);
    } else if (tag == Tag::audioTrackNumber) {
      if (_set.audioTrackNumber) start(tag).signedNumber(*_set.audioTrackNumber);
    } else if (tag == Tag::recordingDate) {
      if (_set.recordingDate) start(tag).raw(SortableDate{*_set.recordingDate}.bytes());
    } else if (_set.keywords) {
      list(tag, *_set.keywords);
    }
  }

  [[nodiscard]] std::string take() && { return std::move(_out).take(); }

 private:
  ByteWriter& start(Tag tag) {
    _out.byte(static_cast<std::uint8_t>(tag));
    return _out;
  }

  void text(Tag tag, std::string_view value) { start(tag).string(value); }

  void list(Tag tag, const std::vector<std::string>& values) {
    start(tag).number(values.size());
    for (const auto& value : values) _out.string(value);
  }

  const CSSearchableItemAttributeSet& _set;
  ByteWriter _out;
};

bool decodeNumber(ByteReader& in, std::optional<Integer>& number) {
  const auto value = in.signedNumber();
  using Limits = std::numeric_limits<Integer>;
  if (!value || *value < Limits::min() || *value > Limits::max()) return false;
  number = static_cast<Integer>(*value);
  return true;
}

bool decodeDate(ByteReader& in, std::optional<Date>& date) {
  const auto bytes = in.raw(SortableDate::size);
  if (bytes) date = SortableDate::decode(*bytes);
  return date.has_value();
}

bool decodeList(ByteReader& in, std::optional<std::vector<std::string>>& list) {
  const auto count = in.number();
  // A value takes a byte at least: a greater count is a lie, and must not reserve memory.
  if (!count || *count > in.remaining()) return false;
  list.emplace().reserve(static_cast<std::size_t>(*count));
  for (std::uint64_t i = 0; i < *count; ++i) {
    const auto value = in.string();
    if (!value) return false;
    list->emplace_back(*value);
  }
  return true;
}

template <class Destination>
bool decodeText(ByteReader& in, Destination& destination) {
  const auto value = in.string();
  if (value) destination = std::string{*value};
  return value.has_value();
}

bool decodeAttribute(Tag tag, ByteReader& in, CSSearchableItemAttributeSet& set) {
  if (const auto member = stringBehind(tag)) return decodeText(in, set.*member);
  switch (tag) {
    case Tag::contentType:
      return decodeText(in, set.contentType);
    case Tag::audioTrackNumber:
      return decodeNumber(in, set.audioTrackNumber);
    case Tag::recordingDate:
      return decodeDate(in, set.recordingDate);
    case Tag::keywords:
      return decodeList(in, set.keywords);
    default:
      return false;
  }
}

}  // namespace

std::string AttributeCodec::encode(const CSSearchableItemAttributeSet& attributes) {
  Encoder encoder{attributes};
  for (auto tag = static_cast<std::uint8_t>(Tag::contentType);
       tag <= static_cast<std::uint8_t>(Tag::keywords); ++tag) {
    encoder.attribute(static_cast<Tag>(tag));
  }
  return std::move(encoder).take();
}

std::optional<CSSearchableItemAttributeSet> AttributeCodec::decode(std::string_view bytes) {
  ByteReader in{bytes};
  if (in.byte() != version) return std::nullopt;
  CSSearchableItemAttributeSet set{std::string{kUTTypeAudio}};
  for (std::uint8_t last = 0; !in.atEnd();) {
    const auto tag = in.byte();
    if (!tag || *tag <= last) return std::nullopt;
    if (!decodeAttribute(static_cast<Tag>(*tag), in, set)) return std::nullopt;
    last = *tag;
  }
  return set;
}

}  // namespace solvane::sqlite
