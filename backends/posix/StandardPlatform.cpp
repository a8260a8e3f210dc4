#include <solvane/memory/MemoryIndex.hpp>
#include <solvane/platform/Platform.hpp>
#include <solvane/posix/PosixCalendar.hpp>
#include <solvane/posix/PosixDispatch.hpp>
#include <solvane/posix/PosixLog.hpp>

namespace solvane {
namespace {

// Items expire by the clock that they were stamped by, also where a host installs another.
Date presentMoment() { return Platform::current().calendar->now(); }

}  // namespace

Platform Platform::standard() {
  return {.searchableIndex = std::make_shared<MemoryIndex>(presentMoment),
          .calendar = std::make_shared<PosixCalendar>(),
          .log = std::make_shared<PosixLog>(),
          .dispatch = std::make_shared<PosixDispatch>(),
          .operatingSystemVersion = OperatingSystemVersion{9, 0, 0}};
}

}  // namespace solvane
