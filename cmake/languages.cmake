# SPDX-License-Identifier: Apache-2.0
#
# The languages: one catalogue each, ppd/po/LANGUAGE.po, for the PPD's texts and for the programs'
# messages.
file(GLOB catalogues CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/ppd/po/*.po")
set(TQR7_LANGUAGES "")
foreach(catalogue IN LISTS catalogues)
  cmake_path(GET catalogue STEM language)
  list(APPEND TQR7_LANGUAGES ${language})
endforeach()
