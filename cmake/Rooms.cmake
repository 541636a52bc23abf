# A room is a folder below src/ with a static library of the same name. Rooms that hold logic are declared with
# model_room and see the standard library only; rooms with screens are declared with screen_room and may use Qt.

include(CMakeParseArguments)

function(_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ROOM_USES} PRIVATE vermanto_warnings)
endfunction()

# Declared here too for the test that keeps the wall: the sources of every room that must not know the toolkit.
function(model_room name)
  _room(${name} ${ARGN})
  takes_precompiled(${name} precompiled_standard)
  set_property(GLOBAL APPEND PROPERTY VERMANTO_MODEL_ROOMS ${name})
  get_target_property(sources ${name} SOURCES)
  list(TRANSFORM sources PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  set_property(GLOBAL APPEND PROPERTY VERMANTO_MODEL_SOURCES ${sources})
endfunction()

function(screen_room name)
  _room(${name} ${ARGN})
  takes_precompiled(${name} precompiled_toolkit)
  target_link_libraries(${name} PUBLIC Qt6::Widgets)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
endfunction()
