# SPDX-License-Identifier: Apache-2.0
#
# The filter's folders but for its main. MVChangeImage stays undefined here: whoever links them
# brings a conversion library, or a test's stand-in.
#
# An optimized build has them twice: what is installed has the C library's checked calls, and in the
# library for tests and tools each call can be replaced. Other builds have no checked calls.
set(TQR7_CORE_SOURCES
  diag/csv_values.cpp
  diag/dump.cpp
  diag/enum_names.cpp
  diag/image_files.cpp
  filter/descriptors.cpp
  filter/filter_hooks.cpp
  filter/job_options.cpp
  job/job_state.cpp
  filter/memory_watch.cpp
  filter/module_path.cpp
  filter/page_conversion.cpp
  filter/page_loop.cpp
  job/paper_table.cpp
  filter/ppd_options.cpp
  job/progress.cpp
  filter/sheet_assembly.cpp
  image/band_image.cpp
  image/page_memory.cpp
  image/rect.cpp
  protocol/image_header.cpp
  protocol/job_header.cpp
  protocol/plane_transfer.cpp
  protocol/print_image.cpp
  protocol/readiness_check.cpp
  status/connection_check.cpp
  status/printer_check.cpp
  status/printer_exchange.cpp
  status/printer_state.cpp
  status/reason_table.cpp
  status/state_reasons.cpp
  status/status_query.cpp)

set(libraries tqr7_core)
if(NOT TQR7_SANITIZE AND NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
  list(APPEND libraries tqr7_core_installed)
endif()
foreach(library IN LISTS libraries)
  add_library(${library} STATIC ${TQR7_CORE_SOURCES})
  target_include_directories(${library} PUBLIC "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${library} PUBLIC Cups::Cups "${CUPSIMAGE_LIBRARY}")
  # The driver interface of CUPS (PPD files, raster version 1) is marked deprecated in its headers, and
  # is what a filter is given to work with.
  target_compile_options(${library} PRIVATE -Wno-deprecated-declarations ${TQR7_OVER_PIXELS})
endforeach()
set_target_properties(tqr7_core PROPERTIES TQR7_REPLACEABLE_CALLS ON)
if(NOT TARGET tqr7_core_installed)
  add_library(tqr7_core_installed ALIAS tqr7_core)
endif()

# tqr7_counted(TARGET...): which lines and branches of these run is counted, where TQR7_COVERAGE is on.
# The tests are not counted, only what they reach. A process that ends by _exit has to write its
# counts itself: tests/filter/interposed_calls.cpp calls __gcov_dump for it, where it finds one.
function(tqr7_counted)
  if(TQR7_COVERAGE)
    foreach(target IN LISTS ARGN)
      target_compile_options(${target} PRIVATE --coverage -fprofile-abs-path)
      target_link_options(${target} PUBLIC --coverage
        "LINKER:--undefined=__gcov_dump,--export-dynamic-symbol=__gcov_dump")
    endforeach()
  endif()
endfunction()
tqr7_counted(tqr7_core)
