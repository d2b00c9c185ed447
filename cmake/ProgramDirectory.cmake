# The program directory: the executable with all files that belong beside it. Copied elsewhere it
# runs as it is.
include_guard()
include(HelpFile)

set(GALLOPADE_PROGRAM_DIRECTORY ${CMAKE_BINARY_DIR}/GallopadeNova)

file(GLOB GALLOPADE_PICTURES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/assets/images/*.gif)
file(GLOB GALLOPADE_LOOKS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/assets/looks/*.chessboard)

file(GLOB GALLOPADE_ICONS CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/assets/icons/*.png ${PROJECT_SOURCE_DIR}/assets/icons/*.svg)
file(GLOB GALLOPADE_DESKTOP_FILES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/packaging/desktop/*)

function(make_program_directory target)
  set_target_properties(${target} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${GALLOPADE_PROGRAM_DIRECTORY})
  set(stamp ${CMAKE_BINARY_DIR}/program-directory.stamp)
  set(files ${GALLOPADE_PICTURES} ${GALLOPADE_LOOKS} ${PROJECT_SOURCE_DIR}/LICENSE
    ${PROJECT_SOURCE_DIR}/packaging/README ${GALLOPADE_HELP_FILE})
  add_custom_command(OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${GALLOPADE_PROGRAM_DIRECTORY}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${files} ${GALLOPADE_PROGRAM_DIRECTORY}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${GALLOPADE_PROGRAM_DIRECTORY}/desktop/icons
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${GALLOPADE_DESKTOP_FILES}
      ${GALLOPADE_PROGRAM_DIRECTORY}/desktop
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${GALLOPADE_ICONS}
      ${GALLOPADE_PROGRAM_DIRECTORY}/desktop/icons
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${files} ${GALLOPADE_DESKTOP_FILES} ${GALLOPADE_ICONS} gallopade_help
    COMMENT "Completing the program directory"
    VERBATIM)
  add_custom_target(program_directory ALL DEPENDS ${stamp})

  # Installed flat, so that the folder given is the program directory.
  install(TARGETS ${target} RUNTIME DESTINATION .)
  install(FILES ${files} DESTINATION .)
  install(FILES ${GALLOPADE_DESKTOP_FILES} DESTINATION desktop)
  install(PROGRAMS ${PROJECT_SOURCE_DIR}/packaging/desktop/register DESTINATION desktop)
  install(FILES ${GALLOPADE_ICONS} DESTINATION desktop/icons)
endfunction()
