# A room is one folder of sources and one static library; the link arrows are the law between them.
include_guard()
include(Hardening)

add_library(gallopade_warnings INTERFACE)
target_compile_options(gallopade_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
  -Wcast-align -Wunused)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  target_compile_options(gallopade_warnings INTERFACE -Wduplicated-cond -Wlogical-op)
endif()
if(GALLOPADE_WERROR)
  target_compile_options(gallopade_warnings INTERFACE -Werror)
endif()

# add_room(NAME sources...): the library gallopade_NAME. Headers are included from the root.
function(add_room name)
  add_library(gallopade_${name} STATIC ${ARGN})
  target_include_directories(gallopade_${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(gallopade_${name} PRIVATE gallopade_warnings gallopade_hardening)
  # Rooms with Qt get the -fPIC of Qt after it.
  if(GALLOPADE_HARDENING)
    target_compile_options(gallopade_${name} PRIVATE -fPIE)
  endif()
endfunction()

# The headers of Qt and of GoogleTest, compiled once for all programs of tests with windows.
function(share_window_test_headers)
  if(NOT GALLOPADE_PCH)
    return()
  endif()
  foreach(target ${ARGN})
    target_precompile_headers(${target} REUSE_FROM gallopade_window_test_headers)
  endforeach()
endfunction()

# add_room_tests(ROOM sources...): the GoogleTest program ROOM_tests. Its tests are registered one by
# one under the room's label; with GALLOPADE_WHOLE_TESTS the program is one test, which is quicker.
# Tests with windows say WINDOWS; the others are compiled with GALLOPADE_TEST_FLAGS as well.
function(add_room_tests room)
  cmake_parse_arguments(PARSE_ARGV 1 THIS "WINDOWS" "" "")
  set(program ${room}_tests)
  add_executable(${program} ${THIS_UNPARSED_ARGUMENTS})
  target_link_libraries(${program} PRIVATE gallopade_warnings GTest::gtest)
  target_compile_definitions(${program} PRIVATE
    TEST_DATA_DIRECTORY="${PROJECT_SOURCE_DIR}/tests/data/")
  if(THIS_WINDOWS)
    share_window_test_headers(${program})
  else()
    target_compile_options(${program} PRIVATE ${GALLOPADE_TEST_FLAGS})
    if(GALLOPADE_PCH)
      target_precompile_headers(${program} PRIVATE <gtest/gtest.h>)
    endif()
  endif()
  if(GALLOPADE_WHOLE_TESTS)
    add_test(NAME ${room} COMMAND ${program} --gtest_brief=1)
    set_tests_properties(${room} PROPERTIES LABELS ${room})
  else()
    gtest_discover_tests(${program} DISCOVERY_MODE PRE_TEST PROPERTIES LABELS ${room})
  endif()
endfunction()
