#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <solvane/model/Album.hpp>
#include <solvane/model/Artist.hpp>
#include <solvane/model/NSObject.hpp>
#include <solvane/model/Playlist.hpp>
#include <solvane/model/SearchAPIAlbum.hpp>
#include <solvane/model/SearchAPIArtist.hpp>
#include <solvane/model/SearchAPIPlaylist.hpp>
#include <solvane/model/SearchAPITrack.hpp>
#include <solvane/model/Track.hpp>
#include <solvane/platform/CSSearchableItem.hpp>
#include <solvane/platform/DateComponents.hpp>
#include <solvane/platform/DispatchQueue.hpp>
#include <solvane/platform/UniqueFunction.hpp>

namespace solvane {

/// Publishes a catalogue to the device's search index, and takes it back out.
///
///     auto solvane = std::make_shared<solvane::Solvane>();
///     solvane->indexTracks({solvane::Track{"track/42", "So What", 545.0, 1, "Miles Davis",
///                                          "Kind of Blue", std::nullopt, "Jazz", std::nullopt}});
///
/// Every operation may be called from any thread, returns before its work is done, and reports
/// nothing: an index that is unavailable, or that fails, is passed over in silence. Items are built
/// on the service's own concurrent queue and handed to the index in one call per operation, in the
/// order of the list, without filtering; an item replaces what stands under its identifier. Calls
/// are independent: two of them may be carried out in either order or at the same time, also when
/// one thread makes one after the other.
///
/// Except where told otherwise, an operation asks on the caller's thread whether its list is empty,
/// then whether the index is available, and queues nothing if either says no. A list of records
/// that is moved in costs the caller the same whatever its length. Objects are converted with
/// `structify()` on the caller's thread, and none of them may be null.
///
/// A service held by a `std::shared_ptr` is kept alive by its queued lists of records. One that is
/// not may go away while they wait; they run all the same.
class Solvane : public NSObject {
 public:
  /// Receives the unique identifier of the item that was handed to the index.
  using ArtistCompletion = UniqueFunction<void(std::string)>;

  /// Makes the service with a queue of its own from the platform in force.
  Solvane();

  /// Indexes tracks in the domain `domainID`, be it empty, or in "tracks" when it is absent.
  virtual void indexTracks(const std::vector<std::shared_ptr<SearchAPITrack>>& tracks,
                           std::optional<std::string> domainID);
  virtual void indexTracks(std::vector<Track> tracks,
                           std::optional<std::string> domainID = std::nullopt);

  /// Removes items by identifier, whatever domain they were indexed in. So do the others.
  virtual void deleteTracks(std::vector<std::string> identifiers);

  /// Indexes one artist, then calls `completion` once, on the work queue, without waiting for the
  /// index: it tells that the item was handed over, not that it was accepted. Never called when the
  /// index is unavailable. It may call the service, release it, and be slow; it may not throw.
  virtual void indexArtist(const std::shared_ptr<SearchAPIArtist>& searchAPIArtist,
                           ArtistCompletion completion);
  virtual void indexArtist(Artist artist, ArtistCompletion completion);

  virtual void indexArtists(const std::vector<std::shared_ptr<SearchAPIArtist>>& artists);
  virtual void indexArtists(std::vector<Artist> artists);
  virtual void deleteArtists(std::vector<std::string> identifiers);

  virtual void indexAlbums(const std::vector<std::shared_ptr<SearchAPIAlbum>>& albums);
  virtual void indexAlbums(std::vector<Album> albums);
  virtual void deleteAlbums(std::vector<std::string> identifiers);

  virtual void indexPlaylists(const std::vector<std::shared_ptr<SearchAPIPlaylist>>& playlists);
  virtual void indexPlaylists(std::vector<Playlist> playlists);

  /// Unlike the deletions, always queues its task, which then asks what they ask beforehand.
  virtual void removePlaylists(std::vector<std::string> identifiers);

  /// Calls `deleteAllItemsWithDomains`, overridden or not, with the one domain of playlists.
  virtual void deleteAllPlaylists();

  /// Removes every item of these domains, compared whole. Always queues its task, which then asks
  /// whether the list is empty and the index available.
  virtual void deleteAllItemsWithDomains(std::vector<std::string> domainIdentifiers);

 private:
  struct ArtistItem {
    CSSearchableItem searchableItem;
    std::string uniqueID;
  };

  static CSSearchableItem createAudioSearchableItem(const Track& track,
                                                    const std::optional<std::string>& domainID);
  static ArtistItem createArtistSearchableItem(const Artist& artist);
  static CSSearchableItem createAlbumSearchableItem(const Album& album);
  static CSSearchableItem createPlaylistSearchableItem(const Playlist& playlist);

  template <class Record, class Builder>
  void indexRecords(std::vector<Record> records, Builder buildItem);
  void deleteItems(std::vector<std::string> identifiers, std::string (*uniqueID)(std::string));
  void queueRemoval(std::vector<std::string> list, void (*remove)(std::vector<std::string>));

  // Nothing reads it; it belongs to the service's layout.
  DateComponents _dateComponents;
  std::shared_ptr<DispatchQueue> _queue;
};

}  // namespace solvane
