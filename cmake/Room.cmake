# What most files read is compiled once for all rooms, and once with GoogleTest for all tests; each reuses what the first
# of them has made. The preset asan builds without, so that a file that leans on it is found. So do optimised builds, in
# which GCC 12 would warn of the standard library's own code.
function(reuse_headers target first)
  if(NOT CMAKE_BUILD_TYPE STREQUAL Debug)
    return()
  endif()
  if(target STREQUAL first)
    target_precompile_headers(${target} PRIVATE ${ARGN} <algorithm> <filesystem> <functional> <memory> <optional> <string>
      <string_view> <vector>)
  else()
    target_precompile_headers(${target} REUSE_FROM ${first})
  endif()
endfunction()

# One library per folder. A room's include path is its own folder and reaches only those who link it, so an
# include against the arrows does not compile.
#
#   add_room(tasks SOURCES a.cpp b.cpp USES controls session INSIDE sqlite3)
#
# USES    rooms or libraries that the room's headers name: whoever uses the room sees them too
# INSIDE  rooms or libraries that only the room's own sources name
function(add_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES;INSIDE" ${ARGN})
  if(ROOM_SOURCES)
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ROOM_USES} PRIVATE ${ROOM_INSIDE})
    reuse_headers(${name} runtime)
  else()
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} INTERFACE ${ROOM_USES})
  endif()
  set_property(GLOBAL APPEND PROPERTY ROOMS ${name})
endfunction()

# add_room_test(tasks SOURCES x_test.cpp USES tasks support): one test program per room, named <room>_tests. LONG ones
# start before the others, so that none of them runs on alone at the end.
function(add_room_test room)
  cmake_parse_arguments(TEST "LONG" "" "SOURCES;USES" ${ARGN})
  add_executable(${room}_tests ${TEST_SOURCES})
  target_link_libraries(${room}_tests PRIVATE ${TEST_USES} GTest::gtest GTest::gtest_main)
  if(NOT room STREQUAL qt)  # Qt compiles executables in another way, so that they can't share
    reuse_headers(${room}_tests runtime_tests <gtest/gtest.h>)
  endif()
  if(TEST_LONG)
    set(order PROPERTIES COST 100)
  endif()
  gtest_discover_tests(${room}_tests TEST_PREFIX ${room}. DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES ${order})
endfunction()
