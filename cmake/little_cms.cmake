# SPDX-License-Identifier: Apache-2.0
#
# Little CMS, the colour engine, as the target LittleCms::LittleCms.
find_path(LITTLE_CMS_INCLUDE_DIR lcms2.h REQUIRED)
find_library(LITTLE_CMS_LIBRARY lcms2 REQUIRED)
mark_as_advanced(LITTLE_CMS_INCLUDE_DIR LITTLE_CMS_LIBRARY)

add_library(LittleCms::LittleCms UNKNOWN IMPORTED)
set_target_properties(LittleCms::LittleCms PROPERTIES
  IMPORTED_LOCATION "${LITTLE_CMS_LIBRARY}"
  INTERFACE_INCLUDE_DIRECTORIES "${LITTLE_CMS_INCLUDE_DIR}")
