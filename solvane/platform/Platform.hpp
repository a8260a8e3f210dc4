#pragma once

#include <memory>
#include <optional>

#include <solvane/platform/CSSearchableIndex.hpp>
#include <solvane/platform/Calendar.hpp>
#include <solvane/platform/DispatchQueue.hpp>
#include <solvane/platform/OperatingSystemVersion.hpp>
#include <solvane/platform/SystemLog.hpp>

namespace solvane {

/// Everything the library asks of the system it runs on, one member for each role.
///
/// A program that installs nothing runs on `Platform::standard()`. A host that has a search index
/// of its own installs it before it uses the library:
///
///     solvane::Platform::install({.searchableIndex = myIndex});
struct Platform {
  std::shared_ptr<CSSearchableIndex> searchableIndex{};
  std::shared_ptr<Calendar> calendar{};
  std::shared_ptr<SystemLog> log{};
  std::shared_ptr<Dispatch> dispatch{};
  std::optional<OperatingSystemVersion> operatingSystemVersion{};

  /// The bundle in force, complete: no member is null. Any thread; takes no lock.
  [[nodiscard]] static const Platform& current() noexcept;

  /// Puts `platform` in force for everything that is built, queued or read from now on, in the
  /// whole process. A member left null keeps the one in force. Any thread, best before first use:
  /// a task that is running may still be using the members it replaces. For the same reason a
  /// replaced bundle stays alive until the process ends, so this is a thing to do a few times, and
  /// not for every operation.
  static void install(Platform platform);

  /// A fresh bundle for this system: an in-memory index, queues on the process-wide thread pool,
  /// the local calendar, the system log.
  [[nodiscard]] static Platform standard();
};

}  // namespace solvane
