#include <solvane/posix/PosixLog.hpp>

#include <syslog.h>

namespace solvane {

void PosixLog::write(std::string_view line) {
  syslog(LOG_NOTICE, "%.*s", static_cast<int>(line.size()), line.data());
}

}  // namespace solvane
