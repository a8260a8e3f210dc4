#pragma once

#include <iosfwd>

#include <solvane/platform/CSSearchableItem.hpp>
#include <solvane/platform/NSUserActivity.hpp>

/// Prints the library's values in full, an attribute to a line, so that a failed comparison shows
/// the whole difference. Include it where tests compare them.
namespace solvane {

std::ostream& operator<<(std::ostream& out, const Date& date);
std::ostream& operator<<(std::ostream& out, const Data& data);
std::ostream& operator<<(std::ostream& out, const CSSearchableItemAttributeSet& attributeSet);
std::ostream& operator<<(std::ostream& out, const CSSearchableItem& item);
std::ostream& operator<<(std::ostream& out, const NSUserActivity& activity);

}  // namespace solvane
