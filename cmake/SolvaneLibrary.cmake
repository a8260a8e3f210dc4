# Solvane::solvane: the library with the platform of this system. Standard library and libc only.
add_library(
  solvane_solvane STATIC
  solvane/activity/UserActivity.cpp
  solvane/config/SolvaneConfig.cpp
  solvane/config/SolvaneLocalizations.cpp
  solvane/content/AlbumContent.cpp
  solvane/content/ArtistContent.cpp
  solvane/content/PlaylistContent.cpp
  solvane/content/assembleItem.cpp
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
  backends/posix/PosixCalendar.cpp
  backends/posix/PosixDispatch.cpp
  backends/posix/PosixLog.cpp
  backends/posix/StandardPlatform.cpp
  backends/posix/detail/ThreadPool.cpp)
add_library(Solvane::solvane ALIAS solvane_solvane)

target_compile_features(solvane_solvane PUBLIC cxx_std_20)
target_include_directories(
  solvane_solvane
  PUBLIC $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>
         $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/backends/memory/include>
         $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/backends/posix/include>
         $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_link_libraries(solvane_solvane PUBLIC Threads::Threads)
set_target_properties(solvane_solvane PROPERTIES EXPORT_NAME solvane OUTPUT_NAME solvane
                                                 POSITION_INDEPENDENT_CODE ON
                                                 CXX_EXTENSIONS OFF)
solvane_use_warnings(solvane_solvane)
