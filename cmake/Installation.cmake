# The installation: one folder with the program, the link library, Setup/, Dati/, help/ and the emulated register's own
# folder. The build lays it out, untouched by any run, in build/<preset>/app; `cmake --install` copies it to a prefix, in
# two components, so that an update can leave alone what the emulated register holds:
#   program   the program, libraries, pictures, texts, default files
#   register  the emulated register as it is at first

set(VERMANTO_APP_DIR ${CMAKE_BINARY_DIR}/app)
add_custom_target(installation ALL)

# installed_files(FOLDER FILES... [COMPONENT program|register]): copies files to a folder of the installation, in one step
# that is done again when one of them has changed.
function(installed_files folder)
  cmake_parse_arguments(INSTALLED "" "COMPONENT" "FILES" ${ARGN})
  if(NOT INSTALLED_COMPONENT)
    set(INSTALLED_COMPONENT program)
  endif()
  foreach(file IN LISTS INSTALLED_FILES)
    get_filename_component(source ${file} ABSOLUTE)
    get_filename_component(name ${file} NAME)
    # Without the folder that all of them lie below, so that the command line stays short.
    file(RELATIVE_PATH short ${CMAKE_CURRENT_SOURCE_DIR} ${source})
    list(APPEND shorts ${short})
    list(APPEND sources ${source})
    list(APPEND targets ${VERMANTO_APP_DIR}/${folder}/${name})
  endforeach()
  add_custom_command(OUTPUT ${targets}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${VERMANTO_APP_DIR}/${folder}
    COMMAND ${CMAKE_COMMAND} -E copy ${shorts} ${VERMANTO_APP_DIR}/${folder}
    DEPENDS ${sources} WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}
    COMMENT "Laying out ${folder}" VERBATIM)
  installed_output(${folder} "${targets}" ${INSTALLED_COMPONENT})
endfunction()

# installed_output(FOLDER FILES COMPONENT): declares files that a command of the build writes into the installation.
function(installed_output folder files component)
  set_property(DIRECTORY APPEND PROPERTY VERMANTO_INSTALLED ${files})
  install(FILES ${files} DESTINATION ${folder} COMPONENT ${component})
endfunction()

# installation_target(NAME): a target for all that was declared in this folder so far.
function(installation_target name)
  get_property(files DIRECTORY PROPERTY VERMANTO_INSTALLED)
  add_custom_target(${name} DEPENDS ${files})
  add_dependencies(installation ${name})
endfunction()

# installed_program(TARGET): the executable or library goes to the top of the installation.
function(installed_program target)
  set_target_properties(${target} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${VERMANTO_APP_DIR}
    LIBRARY_OUTPUT_DIRECTORY ${VERMANTO_APP_DIR}
    INSTALL_RPATH "$ORIGIN")
  add_dependencies(installation ${target})
  install(TARGETS ${target} RUNTIME DESTINATION . COMPONENT program LIBRARY DESTINATION . COMPONENT program)
endfunction()
