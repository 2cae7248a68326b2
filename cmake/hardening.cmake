# SPDX-License-Identifier: Apache-2.0
#
# What the compiler and the linker can do against a mistake of ours being turned into somebody else's
# code: programs at a random place, a guard on the stack, checked copies of the C library, tables of
# the loader that nobody writes after start, and no stack that runs code.
# A target with the property TQR7_REPLACEABLE_CALLS does without the checked copies. Those are called
# by names of their own (__snprintf_chk), past whatever a test puts in a function's place.
include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

check_cxx_compiler_flag(-fstack-protector-strong TQR7_HAS_STACK_PROTECTOR)
if(TQR7_HAS_STACK_PROTECTOR)
  add_compile_options(-fstack-protector-strong)
endif()
check_cxx_compiler_flag(-fstack-clash-protection TQR7_HAS_STACK_CLASH_PROTECTION)
if(TQR7_HAS_STACK_CLASH_PROTECTION)
  add_compile_options(-fstack-clash-protection)
endif()

# The checked copies need the optimizer, and would hide from the sanitizers what they look for.
# The highest level that compiler and C library know; a distribution's own setting gives way.
if(NOT TQR7_SANITIZE AND NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
  set(CMAKE_REQUIRED_FLAGS "-O2 -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -Werror")
  check_cxx_source_compiles("#include <cstring>\nint main() { return 0; }" TQR7_HAS_FORTIFY_3)
  unset(CMAKE_REQUIRED_FLAGS)
  if(TQR7_HAS_FORTIFY_3)
    set(level 3)
  else()
    set(level 2)
  endif()
  set(replaceable "$<BOOL:$<TARGET_PROPERTY:TQR7_REPLACEABLE_CALLS>>")
  add_compile_options(-U_FORTIFY_SOURCE "$<$<NOT:${replaceable}>:-D_FORTIFY_SOURCE=${level}>")
endif()

if(NOT APPLE)
  add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endif()
