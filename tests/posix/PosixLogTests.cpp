#include <cstdarg>
#include <cstdio>
#include <string>
#include <vector>

#include <solvane/posix/PosixLog.hpp>

#include <gtest/gtest.h>

namespace {

std::vector<std::string> written;

}  // namespace

// Stands in front of the C library's own for this program, so that the line is seen exactly as it
// is handed over, whether or not a log daemon runs here.
extern "C" void syslog(int /*priority*/, const char* format, ...) {
  char line[256];
  std::va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(line, sizeof line, format, arguments);
  va_end(arguments);
  written.emplace_back(line);
}

namespace solvane {
namespace {

TEST(PosixLog, HandsTheLineOverAsItIs) {
  written.clear();
  PosixLog{}.write("SearchAPI: Could not produce expiration date");
  EXPECT_EQ(written, std::vector<std::string>{"SearchAPI: Could not produce expiration date"});
}

TEST(PosixLog, TakesPercentSignsForThemselves) {
  written.clear();
  PosixLog{}.write("100% %s %n");
  EXPECT_EQ(written, std::vector<std::string>{"100% %s %n"});
}

TEST(PosixLog, WritesNoFurtherThanTheLineReaches) {
  written.clear();
  PosixLog{}.write(std::string_view{"line and more"}.substr(0, 4));
  EXPECT_EQ(written, std::vector<std::string>{"line"});
}

}  // namespace
}  // namespace solvane
