# SPDX-License-Identifier: Apache-2.0
#
# The inner loops of the filter and of the conversion, each by itself. They need Google Benchmark, which
# nothing else does: without it they are left out of speed_programs.
find_package(benchmark QUIET)
if(NOT benchmark_FOUND)
  message(STATUS "Google Benchmark (libbenchmark-dev) is missing: bench/kernels cannot be built")
  return()
endif()

tqr7_speed_program(kernels
  ../little_cms_peers.cpp
  conversion_loops.cpp
  filter_loops.cpp
  kernel_race.cpp
  kernels.cpp)
# The conversion's files by themselves, ahead of the shared library, which only shows MVChangeImage.
target_link_libraries(kernels PRIVATE
  tqr7_conversion tqr7_core_installed tqr7_colour_measure benchmark::benchmark)
target_compile_definitions(kernels PRIVATE TQR7_MODULE_FOLDER="${CMAKE_BINARY_DIR}/")
add_dependencies(kernels tqr7.icc)
