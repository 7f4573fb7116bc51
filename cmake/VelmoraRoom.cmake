# What all targets share, and how a room of the house is declared.

set(CMAKE_CXX_STANDARD 23)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)

# What generators write is not ours to lint: clang-tidy takes the nearest settings above a file.
file(WRITE ${CMAKE_BINARY_DIR}/.clang-tidy "Checks: '-*,misc-definitions-in-headers'\n")

add_library(velmora_options INTERFACE)
target_compile_options(velmora_options INTERFACE -Wall -Wextra -Werror)
target_compile_definitions(velmora_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
target_include_directories(velmora_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 11)
  target_compile_options(velmora_options INTERFACE -fcoroutines)
endif()
if(VELMORA_SANITIZE)
  target_compile_options(velmora_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(velmora_options INTERFACE -fsanitize=address,undefined)
endif()

# An allocator that keeps what was freed for the next of its size. Merely linked, it takes the place of the C library's,
# which spends a quarter of a run's time on it: every opening of the history is hundreds of small pieces, all freed a
# moment later. Not under the sanitizers, which watch every allocation with one of their own.
if(NOT APPLE AND NOT VELMORA_SANITIZE)
  target_link_libraries(velmora_options INTERFACE mimalloc)
  target_compile_definitions(velmora_options INTERFACE VELMORA_MIMALLOC)
endif()

# velmora_look_for_types(<target> <sources>)
# Lets moc look again when a file has come or gone since it last did: a new file alone does not.
function(velmora_look_for_types target sources)
  set(seen_file ${CMAKE_CURRENT_BINARY_DIR}/${target}_sources.txt)
  set(seen "")
  if(EXISTS ${seen_file})
    file(READ ${seen_file} seen)
  endif()
  if(NOT seen STREQUAL sources)
    file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp)
    file(WRITE ${seen_file} "${sources}")
  endif()
endfunction()

# velmora_room(<name> [USES <room>...] [LINK <library>...])
# The static library velmora_<name> of all sources in the current folder. USES names the rooms that it
# may include; LINK the libraries of others.
function(velmora_room name)
  cmake_parse_arguments(ROOM "" "" "USES;LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_library(velmora_${name} STATIC ${sources})
  set_target_properties(velmora_${name} PROPERTIES LINKER_LANGUAGE CXX)
  velmora_look_for_types(velmora_${name} "${sources}")
  list(TRANSFORM ROOM_USES PREPEND velmora_)
  target_link_libraries(velmora_${name} PUBLIC velmora_options ${ROOM_USES} Qt6::Core ${ROOM_LINK})
  if(NOT name STREQUAL core)
    target_precompile_headers(velmora_${name} REUSE_FROM velmora_core)
  endif()
endfunction()
