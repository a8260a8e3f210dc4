#include <solvane/model/identifiers.hpp>
#include <solvane/service/Solvane.hpp>
#include <solvane/service/detail/tasks.hpp>

namespace solvane {

void Solvane::indexAlbums(const std::vector<std::shared_ptr<SearchAPIAlbum>>& albums) {
  indexAlbums(detail::structified(albums));
}

void Solvane::indexAlbums(std::vector<Album> albums) {
  indexRecords(std::move(albums), createAlbumSearchableItem);
}

void Solvane::deleteAlbums(std::vector<std::string> identifiers) {
  deleteItems(std::move(identifiers), String::album);
}

}  // namespace solvane
