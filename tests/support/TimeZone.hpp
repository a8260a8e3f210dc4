#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace solvane {

/// The zone in force for the length of a test.
class TimeZone {
 public:
  explicit TimeZone(const char* name) {
    if (const char* before = std::getenv("TZ")) _before = before;
    set(name);
  }
  ~TimeZone() { set(_before ? _before->c_str() : nullptr); }
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;

  static void set(const char* name) {
    name ? ::setenv("TZ", name, 1) : ::unsetenv("TZ");
    ::tzset();
  }

 private:
  std::optional<std::string> _before;
};

}  // namespace solvane
