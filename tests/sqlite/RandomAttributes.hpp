#pragma once

#include <limits>
#include <random>
#include <string>

#include <solvane/platform/CSSearchableItemAttributeSet.hpp>

namespace solvane {

/// Attribute sets of every shape: each attribute absent, empty or of any bytes, in any combination.
class RandomAttributes {
 public:
  explicit RandomAttributes(unsigned seed) : _engine(seed) {}

  CSSearchableItemAttributeSet next() {
    CSSearchableItemAttributeSet set{chance(2) ? std::string{kUTTypeAudio} : string()};
    for (auto* text : {&set.relatedUniqueIdentifier, &set.title, &set.artist, &set.album,
                       &set.musicalGenre, &set.contentDescription}) {
      if (chance(2)) *text = string();
    }
    if (chance(2)) set.audioTrackNumber = integer();
    if (chance(2)) set.recordingDate = date();
    if (chance(2)) set.thumbnailData = Data{std::vector<std::uint8_t>(number(5000), 0xAB)};
    if (chance(2)) {
      set.keywords.emplace(number(5));
      for (auto& keyword : *set.keywords) keyword = string();
      if (!set.keywords->empty() && chance(2)) set.keywords->push_back(set.keywords->front());
    }
    return set;
  }

  /// Any bytes; often empty, sometimes longer than a one-byte length says.
  std::string string() {
    std::string bytes(chance(4) ? 0 : number(chance(8) ? 300 : 12), '\0');
    for (auto& byte : bytes) byte = static_cast<char>(number(255));
    return bytes;
  }

  std::size_t number(std::size_t most) {
    return std::uniform_int_distribution<std::size_t>{0, most}(_engine);
  }

  Integer integer() {
    using Limits = std::numeric_limits<Integer>;
    const Integer edges[] = {0, 1, -1, 63, 64, -64, -65, Limits::min(), Limits::max()};
    return edges[number(std::size(edges) - 1)];
  }

  Date date() {
    using Limits = std::numeric_limits<std::int64_t>;
    const std::int64_t edges[] = {0, -1, 1'700'000'000, Limits::min(), Limits::max()};
    return Date::fromUnixTime(edges[number(std::size(edges) - 1)],
                              static_cast<std::int32_t>(number(999'999'999)));
  }

 private:
  bool chance(std::size_t oneIn) { return number(oneIn - 1) == 0; }

  std::mt19937 _engine;
};

}  // namespace solvane
