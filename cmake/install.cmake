# SPDX-License-Identifier: Apache-2.0
#
# What is installed, and where. Components: driver (what a queue needs) and tools (the operator's tool
# and the simulated printer).
#
#   cmake --preset release -DCMAKE_INSTALL_PREFIX=/usr
#   cmake --build --preset release
#   cmake --install build/release [--component driver]
#
# The prefix is settled when the tree is configured, because the PPD names the filter by its whole
# path. DESTDIR, as a package's build uses it, moves everything and changes no name.
include(GNUInstallDirs)

# The module directory: all of it in this list. The filter finds the rest beside itself.
set(TQR7_MODULE_PROGRAMS rastertoprinter commandtoprinter phototopage rastertopage)  # targets
set(TQR7_MODULE_LIBRARIES TQR7mervale)                      # targets
set(TQR7_MODULE_FILES tqr7.icc)                             # targets and files at the build's top

# macOS keeps drivers in folders of its own, whatever the prefix. Elsewhere the layout can be looked at.
option(TQR7_MACOS_LAYOUT "Install the driver where macOS looks for printer drivers" ${APPLE})

if(TQR7_MACOS_LAYOUT)
  set(module_dir /Library/Printers/CORVANTIEL/filter)
else()
  set(module_dir "${CMAKE_INSTALL_PREFIX}/lib/cups/filter/tqr7")
endif()
set(TQR7_FILTER_DIR "" CACHE PATH
    "Absolute folder of filter, library and profile, as the PPD names it; empty: ${module_dir}")
# Build trees from before there was an install had the build folder here.
if(TQR7_FILTER_DIR STREQUAL "" OR TQR7_FILTER_DIR STREQUAL CMAKE_BINARY_DIR)
  set(TQR7_FILTER_DIR "${module_dir}")
endif()
if(NOT IS_ABSOLUTE "${TQR7_FILTER_DIR}")
  message(FATAL_ERROR "TQR7_FILTER_DIR must be an absolute folder: ${TQR7_FILTER_DIR}")
endif()
# The scheduler's list of drivers is made of what lies in its own share/cups/drv.
set(TQR7_DRV_DIR "${CMAKE_INSTALL_DATADIR}/cups/drv" CACHE PATH "Folder of the PPD's source, tqr7.drv")
# Empty, so that they follow when the same build folder gets another prefix.
set(TQR7_DATA_DIR "" CACHE PATH
    "Absolute folder of what the PPD's source reads, its catalogues; empty: below the prefix")
if(TQR7_DATA_DIR STREQUAL "")
  set(TQR7_DATA_DIR "${CMAKE_INSTALL_FULL_DATADIR}/tqr7")
endif()
set(TQR7_LOCALE_DIR "" CACHE PATH
    "Absolute folder of the programs' catalogues, where there is none beside the programs; empty: \
below the prefix")
if(TQR7_LOCALE_DIR STREQUAL "")
  set(TQR7_LOCALE_DIR "${CMAKE_INSTALL_FULL_LOCALEDIR}")
endif()

# A scheduler starts no filter from a folder that others than root can write to.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

install(CODE "
  if(NOT CMAKE_INSTALL_PREFIX STREQUAL \"${CMAKE_INSTALL_PREFIX}\")
    message(FATAL_ERROR \"The PPD names ${TQR7_FILTER_DIR}: for another prefix configure again, \"
                        \"with -DCMAKE_INSTALL_PREFIX=\${CMAKE_INSTALL_PREFIX}\")
  endif()" ALL_COMPONENTS)

# Called once every target is there.
function(tqr7_install)
  set(programs ${TQR7_MODULE_PROGRAMS} ${TQR7_MODULE_LIBRARIES})
  install(TARGETS ${programs}
    RUNTIME DESTINATION "${TQR7_FILTER_DIR}" COMPONENT driver
    LIBRARY DESTINATION "${TQR7_FILTER_DIR}" COMPONENT driver NAMELINK_SKIP)
  list(TRANSFORM TQR7_MODULE_FILES PREPEND "${CMAKE_BINARY_DIR}/" OUTPUT_VARIABLE files)
  install(FILES ${files} DESTINATION "${TQR7_FILTER_DIR}" COMPONENT driver)

  # For who makes a module directory of his own, as the tests' schedulers do: build them, and copy
  # the files that module-files lists.
  add_custom_target(tqr7_module DEPENDS ${programs} ${TQR7_MODULE_FILES})
  set(names ${TQR7_MODULE_FILES})
  foreach(target ${TQR7_MODULE_PROGRAMS})
    list(APPEND names "$<TARGET_FILE_NAME:${target}>")
  endforeach()
  foreach(target ${TQR7_MODULE_LIBRARIES})
    list(APPEND names "$<TARGET_SONAME_FILE_NAME:${target}>")
  endforeach()
  file(GENERATE OUTPUT "${CMAKE_BINARY_DIR}/module-files" CONTENT "$<JOIN:${names},\n>\n")

  if(TQR7_MACOS_LAYOUT)  # its scheduler's share/cups/drv is sealed
    install(FILES "${CMAKE_BINARY_DIR}/installed/tqr7.ppd"
      DESTINATION /Library/Printers/PPDs/Contents/Resources COMPONENT driver)
  else()
    install(FILES "${CMAKE_BINARY_DIR}/tqr7.drv" DESTINATION "${TQR7_DRV_DIR}" COMPONENT driver)
  endif()
  list(TRANSFORM TQR7_LANGUAGES REPLACE "(.+)" "${CMAKE_BINARY_DIR}/po/\\1.po" OUTPUT_VARIABLE catalogues)
  install(FILES ${catalogues} DESTINATION "${TQR7_DATA_DIR}/po" COMPONENT driver)
  install(FILES docs/rastertoprinter.8 docs/commandtoprinter.8 docs/phototopage.8 docs/rastertopage.8
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man8" COMPONENT driver)

  install(TARGETS tqr7 tqr7-printer-sim
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tools)
  install(FILES docs/tqr7.1 docs/tqr7-printer-sim.1
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT tools)
  install(FILES "${CMAKE_BINARY_DIR}/completion/tqr7"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT tools)

  install(FILES packaging/metainfo/com.corvantiel.tqr7.metainfo.xml
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT driver)
  # The documents, with the files that docs/security.md names.
  install(FILES README.md CHANGELOG.md LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT driver)
  install(DIRECTORY docs DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT driver
    PATTERN "*.[18]" EXCLUDE)
  install(DIRECTORY packaging/apparmor packaging/systemd
    DESTINATION "${CMAKE_INSTALL_DOCDIR}/packaging" COMPONENT driver)
endfunction()
