# Read by ctest each time it starts: each suite of a test program becomes one test, whose cases run in one process.

# add_suites(PROGRAM PREFIX CASES SHARDS PROPERTIES...): the cases whose names fit the pattern CASES; of each suite SHARDS
# tests, which divide its cases among them. A program that is missing or lists no case becomes a test that cannot be run,
# and so fails.
function(add_suites program prefix cases shards)
  if(NOT EXISTS ${program})
    add_test(${prefix}_is_not_built ${prefix}_is_not_built)
    return()
  endif()
  execute_process(COMMAND ${program} --gtest_list_tests --gtest_filter=*.${cases}
    OUTPUT_VARIABLE listed RESULT_VARIABLE result)
  # A suite's line ends in a point, or in a comment after it; those of its cases are indented.
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
  math(EXPR last "${shards} - 1")
  foreach(suite IN LISTS suites)
    foreach(shard RANGE ${last})
      set(name ${prefix}.${suite})
      if(shards GREATER 1)
        set(name ${name}.${shard})
      endif()
      add_test(${name} ${program} --gtest_filter=${suite}.${cases} --gtest_brief=1)
      set_tests_properties(${name} PROPERTIES
        ENVIRONMENT_MODIFICATION "GTEST_TOTAL_SHARDS=set:${shards};GTEST_SHARD_INDEX=set:${shard}" ${ARGN})
    endforeach()
  endforeach()
endfunction()
