# Solvane::solvane: the library with the platform of this system. Standard library and libc only.
add_library(
  solvane_solvane STATIC
  solvane/activity/UserActivity.cpp
  solvane/config/SolvaneConfig.cpp
  solvane/config/SolvaneLocalizations.cpp
  solvane/content/AlbumContent.cpp
  solvane/content/ArtistContent.cpp
  solvane/content/PlaylistContent.cpp
  solvane/content/detail/assembleItem.cpp
  solvane/detail/fatalError.cpp
  solvane/detail/format.cpp
  solvane/model/Data.cpp
  solvane/model/SearchAPIAlbum.cpp
  solvane/model/SearchAPIArtist.cpp
  solvane/model/SearchAPIPlaylist.cpp
  solvane/model/SearchAPITrack.cpp
  solvane/platform/Platform.cpp
  solvane/service/Albums.cpp
  solvane/service/Artists.cpp
  solvane/service/Domains.cpp
  solvane/service/Playlists.cpp
  solvane/service/Solvane.cpp
  solvane/service/TrackContent.cpp
  solvane/service/Tracks.cpp
  backends/memory/MemoryIndex.cpp
  backends/posix/BackgroundSignals.cpp
  backends/posix/PosixCalendar.cpp
  backends/posix/PosixDispatch.cpp
  backends/posix/PosixLog.cpp
  backends/posix/StandardPlatform.cpp
  backends/posix/detail/ThreadPool.cpp)
add_library(Solvane::solvane ALIAS solvane_solvane)

target_sources(
  solvane_solvane
  PUBLIC FILE_SET
         HEADERS
         BASE_DIRS
         .
         FILES
         solvane/activity/UserActivity.hpp
         solvane/config/SolvaneConfig.hpp
         solvane/config/SolvaneLocalizations.hpp
         solvane/model/Album.hpp
         solvane/model/Artist.hpp
         solvane/model/Data.hpp
         solvane/model/Date.hpp
         solvane/model/Integer.hpp
         solvane/model/NSObject.hpp
         solvane/model/Playlist.hpp
         solvane/model/SearchAPIAlbum.hpp
         solvane/model/SearchAPIArtist.hpp
         solvane/model/SearchAPIPlaylist.hpp
         solvane/model/SearchAPITrack.hpp
         solvane/model/Track.hpp
         solvane/model/identifiers.hpp
         solvane/platform/CSSearchableIndex.hpp
         solvane/platform/CSSearchableItem.hpp
         solvane/platform/CSSearchableItemAttributeSet.hpp
         solvane/platform/Calendar.hpp
         solvane/platform/DateComponents.hpp
         solvane/platform/DispatchQueue.hpp
         solvane/platform/Error.hpp
         solvane/platform/NSUserActivity.hpp
         solvane/platform/OperatingSystemVersion.hpp
         solvane/platform/Platform.hpp
         solvane/platform/SystemLog.hpp
         solvane/platform/UniqueFunction.hpp
         solvane/service/Solvane.hpp
         solvane/solvane.hpp
         solvane/version.hpp
         FILE_SET
         backends
         TYPE
         HEADERS
         BASE_DIRS
         backends/memory/include
         backends/posix/include
         FILES
         backends/memory/include/solvane/memory/MemoryIndex.hpp
         backends/posix/include/solvane/posix/BackgroundSignals.hpp
         backends/posix/include/solvane/posix/PosixCalendar.hpp
         backends/posix/include/solvane/posix/PosixDispatch.hpp
         backends/posix/include/solvane/posix/PosixLog.hpp)
target_compile_features(solvane_solvane PUBLIC cxx_std_20)
target_link_libraries(solvane_solvane PUBLIC Threads::Threads)
set_target_properties(solvane_solvane PROPERTIES EXPORT_NAME solvane OUTPUT_NAME solvane
                                                 POSITION_INDEPENDENT_CODE ON
                                                 CXX_EXTENSIONS OFF)
solvane_use_warnings(solvane_solvane)
