# The installation: one folder with the program, the link library, Setup/, Dati/, help/ and the emulated register's own
# folder. The build lays it out, untouched by any run, in build/<preset>/app; `cmake --install` copies it to a prefix, in
# two components, so that an update can leave alone what the emulated register holds:
#   program   the program, libraries, pictures, texts, default files
#   register  the emulated register as it is at first

set(VERMANTO_APP_DIR ${CMAKE_BINARY_DIR}/app)
add_custom_target(installation ALL)

# installed_files(FOLDER FILES... [COMPONENT program|register]): copies files to a folder of the installation.
function(installed_files folder)
  cmake_parse_arguments(INSTALLED "" "COMPONENT" "FILES" ${ARGN})
  if(NOT INSTALLED_COMPONENT)
    set(INSTALLED_COMPONENT program)
  endif()
  foreach(file IN LISTS INSTALLED_FILES)
    get_filename_component(source ${file} ABSOLUTE)
    get_filename_component(name ${file} NAME)
    set(target ${VERMANTO_APP_DIR}/${folder}/${name})
    add_custom_command(OUTPUT ${target}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${VERMANTO_APP_DIR}/${folder}
      COMMAND ${CMAKE_COMMAND} -E copy ${source} ${target}
      DEPENDS ${source} VERBATIM)
    installed_output(${folder} ${target} ${INSTALLED_COMPONENT})
  endforeach()
endfunction()

# installed_output(FOLDER FILE COMPONENT): declares a file that a command of the build writes into the installation.
function(installed_output folder file component)
  string(MAKE_C_IDENTIFIER "installed_${folder}_${file}" name)
  string(MD5 short ${name})
  add_custom_target(installed_${short} DEPENDS ${file})
  add_dependencies(installation installed_${short})
  install(FILES ${file} DESTINATION ${folder} COMPONENT ${component})
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
