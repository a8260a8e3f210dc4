# find_package(solvane CONFIG [COMPONENTS sqlite testing]) and pkg-config.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/solvane)

# pkg-config files find their prefix from where they are, wherever the whole is moved to.
set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH prefix_from_pkgconfig /${pkgconfig_folder} /)

# Each component has an export of its own, so that asking for one does not need another's
# dependencies.
function(solvane_install_component component)
  set(suffix "-${component}")
  set(further_headers "")
  if(component STREQUAL "solvane")
    set(suffix "")
    set(further_headers FILE_SET backends DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  endif()
  install(
    TARGETS solvane_${component}
    EXPORT solvane${suffix}-targets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} ${further_headers})
  install(EXPORT solvane${suffix}-targets NAMESPACE Solvane:: DESTINATION ${package_folder})
  configure_file(cmake/solvane${suffix}.pc.in solvane${suffix}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/solvane${suffix}.pc
          DESTINATION ${pkgconfig_folder})
endfunction()

foreach(component solvane sqlite testing)
  if(TARGET solvane_${component})
    solvane_install_component(${component})
  endif()
endforeach()

configure_package_config_file(cmake/solvane-config.cmake.in solvane-config.cmake
                              INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(solvane-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/solvane-config.cmake
              ${PROJECT_BINARY_DIR}/solvane-config-version.cmake DESTINATION ${package_folder})
