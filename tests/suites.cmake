# Read by ctest each time it starts: each suite of a test program becomes one test, whose cases run in one process.

# add_suites(PROGRAM PREFIX FILTER PROPERTIES...)
# A program that is missing or lists nothing becomes a test that cannot be run, and so fails.
function(add_suites program prefix filter)
  if(NOT EXISTS ${program})
    add_test(${prefix}_is_not_built ${prefix}_is_not_built)
    return()
  endif()
  execute_process(COMMAND ${program} --gtest_list_tests --gtest_filter=${filter}
    OUTPUT_VARIABLE listed RESULT_VARIABLE result)
  # A suite's line ends in a point, or in a comment behind it; those of its cases are indented.
  string(REGEX MATCHALL "[^\n]+" lines "${listed}")
  set(suites "")
  foreach(line IN LISTS lines)
    if(line MATCHES "^([^ ]+)\\.( |$)")
      list(APPEND suites ${CMAKE_MATCH_1})
    endif()
  endforeach()
  if(NOT result EQUAL 0 OR suites STREQUAL "")
    add_test(${prefix}_lists_no_cases ${prefix}_lists_no_cases)
    return()
  endif()
  foreach(suite IN LISTS suites)
    add_test(${prefix}.${suite} ${program} --gtest_filter=${suite}.* --gtest_brief=1)
    set_tests_properties(${prefix}.${suite} PROPERTIES ${ARGN})
  endforeach()
endfunction()
