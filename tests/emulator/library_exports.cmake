# The library exports its three calls and nothing else: whatever else it showed could get in the way of the program's
# own, since both are made from the same rooms.

execute_process(COMMAND ${NM} --dynamic --defined-only --format=posix ${LIBRARY}
  OUTPUT_VARIABLE listing RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "${NM} could not list ${LIBRARY}")
endif()
string(REGEX MATCHALL "[^\n]+" lines "${listing}")
set(names "")
foreach(line IN LISTS lines)
  string(REGEX MATCH "^[^ ]+" name "${line}")
  list(APPEND names "${name}")
endforeach()
list(SORT names)
set(expected util_get_range_report util_send_cmd_to_ecr util_send_logo_to_ecr)
if(NOT names STREQUAL expected)
  message(FATAL_ERROR "exported: ${names}\nexpected: ${expected}")
endif()
