# Our own targets compile without a warning; what a consumer builds is left alone.
add_library(solvane_warnings INTERFACE)
target_compile_options(
  solvane_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
                             $<$<BOOL:${SOLVANE_WARNINGS_AS_ERRORS}>:-Werror>)

function(solvane_use_warnings target)
  if(PROJECT_IS_TOP_LEVEL)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:solvane_warnings>)
  endif()
endfunction()
