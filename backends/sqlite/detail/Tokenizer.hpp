#pragma once

#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace solvane::sqlite {

class Connection;

/// Splits text into words and folds them, exactly as the index does. One thread at a time.
class Tokenizer {
 public:
  explicit Tokenizer(Connection& connection);
  Tokenizer(Tokenizer&&) noexcept;
  ~Tokenizer();

  /// The words of `text`, whatever its bytes are, up to `limit` of them.
  [[nodiscard]] std::vector<std::string> words(
      std::string_view text, std::size_t limit = std::numeric_limits<std::size_t>::max());

 private:
  struct Unicode;
  std::unique_ptr<Unicode> _unicode;
  std::string _file;
};

}  // namespace solvane::sqlite
