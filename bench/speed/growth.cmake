# SPDX-License-Identifier: Apache-2.0
#
# Cost against pages, sizes and queues.
find_package(CLI11 REQUIRED)
tqr7_speed_program(growth
  ../../job/paper_table.cpp
  ../cpu_time.cpp
  growth.cpp
  growth_charts.cpp
  growth_figures.cpp
  growth_jobs.cpp
  growth_points.cpp
  growth_queue_tables.cpp
  growth_series.cpp
  growth_size_tables.cpp
  growth_tables.cpp
  line_fit.cpp
  machine_probe.cpp
  papers.cpp
  together.cpp)
target_link_libraries(growth PRIVATE CLI11::CLI11 tqr7_charts tqr7_meter tqr7_raster_pages)
