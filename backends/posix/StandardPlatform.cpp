#include <solvane/memory/MemoryIndex.hpp>
#include <solvane/platform/Platform.hpp>
#include <solvane/posix/PosixCalendar.hpp>
#include <solvane/posix/PosixDispatch.hpp>
#include <solvane/posix/PosixLog.hpp>

namespace solvane {

Platform Platform::standard() {
  return {.searchableIndex = std::make_shared<MemoryIndex>(),
          .calendar = std::make_shared<PosixCalendar>(),
          .log = std::make_shared<PosixLog>(),
          .dispatch = std::make_shared<PosixDispatch>(),
          .operatingSystemVersion = OperatingSystemVersion{9, 0, 0}};
}

}  // namespace solvane
