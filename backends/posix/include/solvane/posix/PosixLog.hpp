#pragma once

#include <string_view>

#include <solvane/platform/SystemLog.hpp>

namespace solvane {

/// The system's log as syslog(3) reaches it, under the identity that the host has given itself.
class PosixLog final : public SystemLog {
 public:
  void write(std::string_view line) override;
};

}  // namespace solvane
