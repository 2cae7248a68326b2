# SPDX-License-Identifier: Apache-2.0
#
# Puts leaks_of_others.cpp into every program below a folder.
add_library(tqr7_leaks_of_others OBJECT "${CMAKE_CURRENT_LIST_DIR}/leaks_of_others.cpp")

function(tqr7_pass_over_leaks_of_others folder)
  get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "EXECUTABLE")
      target_sources(${target} PRIVATE $<TARGET_OBJECTS:tqr7_leaks_of_others>)
    endif()
  endforeach()
  get_property(folders DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
  foreach(below IN LISTS folders)
    tqr7_pass_over_leaks_of_others("${below}")
  endforeach()
endfunction()
