#pragma once

#include <string>

namespace solvane {

/// What a platform's operation reports when it fails: a value, never an exception.
struct Error {
  /// The platform's own number for the failure; its header lists them.
  int code = 0;

  /// One sentence for a person: what failed, where, and what to do about it.
  std::string message;

  friend bool operator==(const Error&, const Error&) = default;
};

}  // namespace solvane
