# Precompiled headers: reading headers is most of what a source costs. Each set below serves all targets that are
# compiled alike, whether it reads all of it or not: one more set costs as much as three sources. Which room may read
# what of another is told by the test include-arrows, not by what happens to be there.

set(LIBRARY_HEADERS <algorithm> <array> <cmath> <filesystem> <functional> <map> <memory> <optional> <sstream> <string>
    <string_view> <utility> <variant> <vector>)
# Nearly all of the program's sources begin with the record of the program.
set(PROGRAM_HEADERS workspace/program.h)
set(QT_HEADERS <QtWidgets>)

# They serve the tests' builds; targets take this over as they are made. In an optimised build g++ 12 takes the library's
# headers for the program's own and warns of copies in them that there are not; besides, sources that lack an include are
# found there.
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()

# veldrin_precompile(HEADERS TARGET...): a list of headers, in <> or named from src/ or the root, and those of the library
# are compiled with the first of the targets that exist, for all of them.
function(veldrin_precompile headers)
  list(PREPEND headers ${LIBRARY_HEADERS})
  list(TRANSFORM headers REPLACE "^([^<].*)$" "<\\1>")
  foreach(target IN LISTS ARGN)
    if(NOT TARGET ${target})
      continue()
    elseif(owner)
      target_precompile_headers(${target} REUSE_FROM ${owner})
    else()
      target_precompile_headers(${target} PRIVATE ${headers})
      set(owner ${target})
    endif()
  endforeach()
endfunction()
