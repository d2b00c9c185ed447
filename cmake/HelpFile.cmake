# GallopadeNova.hlp, made from the pages in assets/help.
include_guard()

set(GALLOPADE_HELP_SOURCES ${PROJECT_SOURCE_DIR}/assets/help)
set(GALLOPADE_HELP_FILE ${CMAKE_BINARY_DIR}/help/GallopadeNova.hlp)

# The project file lists every page; the build reads the list there.
file(STRINGS ${GALLOPADE_HELP_SOURCES}/GallopadeNova.qhp GALLOPADE_HELP_PAGES
  REGEX "<file>.*</file>")
list(TRANSFORM GALLOPADE_HELP_PAGES
  REPLACE " *<file>(.*)</file>" "${GALLOPADE_HELP_SOURCES}/\\1")
set_property(DIRECTORY APPEND PROPERTY
  CMAKE_CONFIGURE_DEPENDS ${GALLOPADE_HELP_SOURCES}/GallopadeNova.qhp)

find_program(GALLOPADE_HELP_GENERATOR qhelpgenerator
  HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS} /usr/lib/qt6/libexec
  REQUIRED)

add_custom_command(OUTPUT ${GALLOPADE_HELP_FILE}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/help
  COMMAND ${GALLOPADE_HELP_GENERATOR} -s ${GALLOPADE_HELP_SOURCES}/GallopadeNova.qhp
    -o ${GALLOPADE_HELP_FILE}
  DEPENDS ${GALLOPADE_HELP_SOURCES}/GallopadeNova.qhp ${GALLOPADE_HELP_PAGES}
  COMMENT "Binding GallopadeNova.hlp"
  VERBATIM)
add_custom_target(gallopade_help ALL DEPENDS ${GALLOPADE_HELP_FILE})
