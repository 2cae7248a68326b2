# SPDX-License-Identifier: Apache-2.0
#
# Fails unless the conversion library exports MVChangeImage alone, carries the file name that the
# filter looks for, and needs no library but the compiler's runtime and Little CMS (colours).
execute_process(COMMAND ${NM} -D --defined-only ${LIBRARY}
  OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "[0-9a-f]+ " "" symbols "${symbols}")
if(NOT symbols STREQUAL "T MVChangeImage\n")
  message(FATAL_ERROR "exported symbols:\n${symbols}")
endif()

execute_process(COMMAND ${READELF} -d ${LIBRARY}
  OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
if(NOT dynamic MATCHES "SONAME[^\n]*\\[libTQR7mervale\\.so\\.1\\]")
  message(FATAL_ERROR "no or another SONAME:\n${dynamic}")
endif()

set(allowed "^lib(stdc\\+\\+|m|gcc_s|c|lcms2)\\.so")
if(SANITIZE)
  set(allowed "^lib(stdc\\+\\+|m|gcc_s|c|lcms2|asan|ubsan)\\.so")
endif()
string(REGEX MATCHALL "NEEDED[^\n]*" needed "${dynamic}")
foreach(line IN LISTS needed)
  string(REGEX REPLACE ".*\\[(.*)\\]" "\\1" name "${line}")
  if(NOT name MATCHES "${allowed}" AND NOT name MATCHES "^ld-linux")
    message(FATAL_ERROR "needs ${name}")
  endif()
endforeach()
