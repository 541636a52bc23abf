# Runs one target from its seeds for a while: cmake -D TARGET= -D CORPUS= -D WORDS= -D LENGTH= -D FOUND= -P search.cmake
# The environment variable VERMANTO_FUZZ_SECONDS says for how long; ten seconds from a fixed seed if it does not. An input
# that breaks the target is kept in FOUND; nothing else is left behind.

string(RANDOM LENGTH 16 name)
set(place $ENV{TMPDIR})
if(NOT place)
  set(place /tmp)
  if(IS_DIRECTORY /dev/shm)
    set(place /dev/shm)
  endif()
endif()
set(work ${place}/vermanto-fuzz-${name})
file(MAKE_DIRECTORY ${work}/inputs)

set(seconds $ENV{VERMANTO_FUZZ_SECONDS})
if(seconds)
  set(range -max_total_time=${seconds})
else()
  set(range -seed=1 -runs=20000 -max_total_time=10)
endif()

set(words "")
if(WORDS)
  set(words -dict=${WORDS})
endif()
file(MAKE_DIRECTORY ${FOUND})
set(ENV{TMPDIR} ${work})
# New inputs go to the first folder, the seeds stay as they are.
execute_process(
  COMMAND ${TARGET} ${range} -timeout=10 -rss_limit_mb=1024 -max_len=${LENGTH} ${words}
    -artifact_prefix=${FOUND}/ ${work}/inputs ${CORPUS}
  WORKING_DIRECTORY ${work}
  RESULT_VARIABLE result
  OUTPUT_VARIABLE said
  ERROR_VARIABLE said)
file(REMOVE_RECURSE ${work})
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${said}\n${TARGET} ended with ${result}; the input is in ${FOUND}")
endif()
# A target that runs nothing would pass for ever.
if(NOT said MATCHES "Done ([0-9]+) runs" OR CMAKE_MATCH_1 LESS 100)
  message(FATAL_ERROR "${said}\n${TARGET} made too few runs")
endif()
message(STATUS "${CMAKE_MATCH_0}")
