#include <solvane/model/Playlist.hpp>

#ifdef MUST_NOT_COMPILE
solvane::Playlist playlist{"playlist/1", "Late night"};
#else
solvane::Playlist playlist{"playlist/1", "Late night", std::nullopt};
#endif
