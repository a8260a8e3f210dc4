#pragma once

/// All that a host needs.
///
///     #include <solvane/solvane.hpp>
///
///     int main() {
///       solvane::SolvaneConfig::sharedInstance()->setAppName("Tamberly");
///       auto solvane = std::make_shared<solvane::Solvane>();
///       solvane->indexTracks({solvane::Track{"track/42", "So What", 545.0, 1, "Miles Davis",
///                                            "Kind of Blue", std::nullopt, "Jazz",
///                                            std::nullopt}});
///     }

#include <solvane/activity/UserActivity.hpp>
#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/config/SolvaneLocalizations.hpp>
#include <solvane/model/identifiers.hpp>
#include <solvane/platform/Platform.hpp>
#include <solvane/service/Solvane.hpp>
#include <solvane/version.hpp>
