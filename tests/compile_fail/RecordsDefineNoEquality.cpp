#include <solvane/model/Artist.hpp>

bool compare(const solvane::Artist& one, const solvane::Artist& two) {
#ifdef MUST_NOT_COMPILE
  return one == two;
#else
  return one.artistID() == two.artistID();
#endif
}
