# SPDX-License-Identifier: Apache-2.0
#
# tqr7_add_emulated_tests(PROGRAM LABEL): a program's tests in the emulator, without those that
# left_out.txt names. The tests of the filter as a process are many: each program of them runs in parts.
#
# tqr7_started(TARGET VARIABLE): a script that starts the program in the emulator.
set(TQR7_LEFT_OUT "${CMAKE_CURRENT_LIST_DIR}/left_out.txt")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${TQR7_LEFT_OUT}")
file(STRINGS "${TQR7_LEFT_OUT}" TQR7_LEFT_OUT_ROWS REGEX "^[a-z]")

function(tqr7_add_emulated_tests program label)
  set(patterns)
  foreach(row IN LISTS TQR7_LEFT_OUT_ROWS)
    if(row MATCHES "^${program} ([^ ]+) ")
      list(APPEND patterns "${CMAKE_MATCH_1}")
    endif()
  endforeach()
  list(JOIN patterns ":" patterns)
  set(parts 1)
  if(label STREQUAL "filter")
    set(parts 8)
  endif()
  add_dependencies(${program} start-emulated)
  foreach(part RANGE 1 ${parts})
    set(name ${program})
    if(parts GREATER 1)
      set(name ${program}.${part})
    endif()
    math(EXPR index "${part} - 1")
    add_test(NAME ${name} COMMAND ${program} "--gtest_filter=-${patterns}")
    set_tests_properties(${name} PROPERTIES LABELS ${label} COST 50 TIMEOUT 1800
      ENVIRONMENT
      "GTEST_TOTAL_SHARDS=${parts};GTEST_SHARD_INDEX=${index};QEMU_SET_ENV=LD_PRELOAD=$<TARGET_FILE:start-emulated>")
  endforeach()
endfunction()

function(tqr7_started target variable)
  set(script "${CMAKE_BINARY_DIR}/tests/emulated-${target}")
  file(GENERATE OUTPUT "${script}"
    CONTENT "#!/bin/sh\nexec '${TQR7_EMULATOR}' -L '${CMAKE_SYSROOT}' '$<TARGET_FILE:${target}>' \"$@\"\n"
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                     WORLD_READ WORLD_EXECUTE)
  set(${variable} "${script}" PARENT_SCOPE)
endfunction()
