#pragma once

#include <solvane/testing/CapturedLog.hpp>

namespace solvane {

/// The log that is in force in every test program; a test that makes the library log claims it.
testing::CapturedLog& capturedLog();

}  // namespace solvane
