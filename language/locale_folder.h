// SPDX-License-Identifier: Apache-2.0
//
// Where the programs' catalogues lie: beside the program, installed or in a build folder, or else
// in the folder that was named when it was built.
#ifndef TQR7_LANGUAGE_LOCALE_FOLDER_H
#define TQR7_LANGUAGE_LOCALE_FOLDER_H

#include <string>

namespace language {

/// The folder that has LANGUAGE/LC_MESSAGES/tqr7.mo.
std::string locale_folder();

}  // namespace language

#endif  // TQR7_LANGUAGE_LOCALE_FOLDER_H
