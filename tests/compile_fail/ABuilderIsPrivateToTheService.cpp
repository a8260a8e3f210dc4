#include <solvane/service/Solvane.hpp>

auto contentOf(const solvane::Album& album) {
#ifdef MUST_NOT_COMPILE
  return solvane::Solvane::createAlbumSearchableItem(album);
#else
  return solvane::CSSearchableItemAttributeSet::searchableItemAttributeSetWithAlbum(album, "id");
#endif
}
