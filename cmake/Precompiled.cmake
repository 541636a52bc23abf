# Headers that nearly every file reads are compiled once for all rooms and once for all tests. A file still includes what
# it uses: configure with -DVERMANTO_PRECOMPILE=OFF to see whether it does. The presets `release` and `bench` do: under full
# optimisation GCC 12 finds overflows in std::string's own copying where its headers come precompiled.

option(VERMANTO_PRECOMPILE "Compile the headers of the standard library, the toolkit and the tests once for all" ON)

# precompiled(NAME HEADERS... [USES libraries] [PROGRAMS]): an empty library whose compiled headers others take over. With
# PROGRAMS these are executables, whose code is made in a way of its own.
function(precompiled name)
  cmake_parse_arguments(PRECOMPILED "PROGRAMS" "" "HEADERS;USES" ${ARGN})
  set(source ${CMAKE_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "" @ONLY)
  add_library(${name} OBJECT ${source})
  target_link_libraries(${name} PRIVATE vermanto_warnings ${PRECOMPILED_USES})
  if(PRECOMPILED_PROGRAMS AND NOT WIN32)
    set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
    target_compile_options(${name} PRIVATE -fPIE)
  endif()
  target_precompile_headers(${name} PRIVATE ${PRECOMPILED_HEADERS})
endfunction()

# takes_precompiled(TARGET NAME): TARGET's files begin with NAME's headers.
function(takes_precompiled target name)
  if(VERMANTO_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM ${name})
  endif()
endfunction()

if(VERMANTO_PRECOMPILE)
  set(VERMANTO_STANDARD_HEADERS
    <algorithm> <array> <charconv> <cstdint> <cstring> <filesystem> <functional> <map> <memory> <optional> <span>
    <string> <string_view> <utility> <variant> <vector>)
  precompiled(precompiled_standard HEADERS ${VERMANTO_STANDARD_HEADERS})
  if(VERMANTO_PROGRAM)
    set(VERMANTO_TOOLKIT_HEADERS
      <QApplication> <QBoxLayout> <QCheckBox> <QComboBox> <QEvent> <QGridLayout> <QLabel> <QLineEdit> <QMouseEvent>
      <QPainter> <QPushButton> <QString> <QStringList> <QTabWidget> <QTableView> <QWidget>)
    precompiled(precompiled_toolkit HEADERS ${VERMANTO_STANDARD_HEADERS} ${VERMANTO_TOOLKIT_HEADERS} USES Qt6::Widgets)
  endif()
  if(VERMANTO_TESTS AND VERMANTO_CASES)
    precompiled(precompiled_cases HEADERS ${VERMANTO_STANDARD_HEADERS} <gtest/gtest.h> USES GTest::gtest PROGRAMS)
    if(VERMANTO_PROGRAM)
      precompiled(precompiled_screen_cases
        HEADERS ${VERMANTO_STANDARD_HEADERS} ${VERMANTO_TOOLKIT_HEADERS} <gtest/gtest.h> USES Qt6::Widgets GTest::gtest
        PROGRAMS)
    endif()
  endif()
endif()
