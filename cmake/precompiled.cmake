# Precompiled headers: reading headers is most of what a source costs. Each set below serves all targets that are
# compiled alike and read most of it.

set(LIBRARY_HEADERS <algorithm> <array> <cmath> <functional> <map> <memory> <optional> <string> <string_view> <utility>
    <variant> <vector>)
# Nearly all of the program's sources begin with the record of the program.
set(PROGRAM_HEADERS workspace/program.h)
set(QT_HEADERS <QApplication> <QPainter> <QWidget>)

# They serve the tests' builds. In an optimised one g++ 12 takes the library's headers for the program's own and warns of
# copies in them that there are not; besides, sources that lack an include are found there.
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()

# veldrin_precompile(HEADERS TARGET...): a list of headers, in <> or named from src/ or the root, is compiled with the
# first of the targets that exist, for all of them.
function(veldrin_precompile headers)
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
