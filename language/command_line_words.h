// SPDX-License-Identifier: Apache-2.0
//
// What the library that reads command lines says by itself, in the person's language.
#ifndef TQR7_LANGUAGE_COMMAND_LINE_WORDS_H
#define TQR7_LANGUAGE_COMMAND_LINE_WORDS_H

#include <string>

namespace CLI {
class App;
}  // namespace CLI

namespace language {

/// --help in the person's language, its columns by the width of the letters. Before subcommands are
/// added: they take it over.
void translate_help(CLI::App& app);

/// The heading above subcommands in --help: their group.
std::string subcommands_heading();

/// What the library says is wrong with a command line.
std::string translate_complaint(const std::string& english);

}  // namespace language

#endif  // TQR7_LANGUAGE_COMMAND_LINE_WORDS_H
