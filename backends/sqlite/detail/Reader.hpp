#pragma once

#include <chrono>
#include <string>

#include "detail/Connection.hpp"
#include "detail/Tokenizer.hpp"

namespace solvane::sqlite {

/// What one reading thread needs for itself.
struct Reader {
  Reader(const std::string& file, std::chrono::milliseconds busyTimeout)
      : connection(file, Connection::Access::read, busyTimeout), tokenizer(connection) {}

  Connection connection;
  Tokenizer tokenizer;
};

}  // namespace solvane::sqlite
