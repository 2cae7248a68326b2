// SPDX-License-Identifier: Apache-2.0
//
// Translates what the library for command lines says by itself.
#ifndef TQR7_LANGUAGE_COMMAND_LINE_WORDS_H
#define TQR7_LANGUAGE_COMMAND_LINE_WORDS_H

#include <string>

namespace CLI {
class App;
}  // namespace CLI

namespace language {

/// Writes --help in the person's language, with columns that fit wide letters. Call it before
/// subcommands are added, because they inherit it.
void translate_help(CLI::App& app);

/// The heading of the subcommands in --help, which the library calls their group.
std::string subcommands_heading();

/// Translates what the library says is wrong with a command line.
std::string translate_complaint(const std::string& english);

}  // namespace language

#endif  // TQR7_LANGUAGE_COMMAND_LINE_WORDS_H
