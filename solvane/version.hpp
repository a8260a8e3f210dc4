#pragma once

/// The version of the library: the one place where it is written.
#define SOLVANE_VERSION_MAJOR 0
#define SOLVANE_VERSION_MINOR 1
#define SOLVANE_VERSION_PATCH 0
