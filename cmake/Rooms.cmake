# A room is one folder of sources and one static library; the link arrows are the law between them.
include_guard()

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
  target_link_libraries(gallopade_${name} PRIVATE gallopade_warnings)
endfunction()

# add_room_tests(ROOM sources...): the GoogleTest program ROOM_tests, labelled with the room's name.
function(add_room_tests room)
  add_executable(${room}_tests ${ARGN})
  target_link_libraries(${room}_tests PRIVATE gallopade_warnings GTest::gtest)
  target_compile_definitions(${room}_tests PRIVATE
    TEST_DATA_DIRECTORY="${PROJECT_SOURCE_DIR}/tests/data/")
endfunction()
