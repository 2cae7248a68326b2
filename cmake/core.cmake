# SPDX-License-Identifier: Apache-2.0
#
# The filter's five folders but for its main. MVChangeImage stays undefined here: whoever links this
# library brings a conversion library, or a test's stand-in.
add_library(tqr7_core STATIC
  diag/csv_values.cpp
  diag/dump.cpp
  diag/enum_names.cpp
  diag/image_files.cpp
  filter/descriptors.cpp
  filter/filter_hooks.cpp
  filter/job_options.cpp
  filter/job_state.cpp
  filter/module_path.cpp
  filter/page_conversion.cpp
  filter/page_loop.cpp
  filter/paper_table.cpp
  filter/ppd_options.cpp
  filter/progress.cpp
  filter/sheet_assembly.cpp
  image/band_image.cpp
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
target_include_directories(tqr7_core PUBLIC "${PROJECT_SOURCE_DIR}")
target_link_libraries(tqr7_core PUBLIC Cups::Cups "${CUPSIMAGE_LIBRARY}")
# The driver interface of CUPS (PPD files, raster version 1) is marked deprecated in its headers, and
# is what a filter is given to work with.
target_compile_options(tqr7_core PRIVATE -Wno-deprecated-declarations)
