// SPDX-License-Identifier: Apache-2.0
//
// Reads a file of printer commands as the scheduler hands it on (application/vnd.cups-command). It
// may have any bytes.
#ifndef TQR7_COMMANDS_COMMAND_FILE_H
#define TQR7_COMMANDS_COMMAND_FILE_H

#include <cstddef>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

inline constexpr std::size_t kLongestCommandLine = 255;        ///< bytes; the rest is skipped
inline constexpr std::size_t kLongestCommandFile = 1'048'576;  ///< bytes; the rest is not read

/// One line of the file.
struct Command {
  std::string name;
  std::string parameters;  ///< what follows the name; empty for most commands

  /// Compares the name, in upper or lower case.
  bool is(std::string_view other) const;
};

/// Reads a command file from start to end. It does not close the stream.
class CommandFile {
 public:
  explicit CommandFile(std::FILE* stream) : stream_(stream) {}

  /// Reads the first line, which must begin with "#CUPS-COMMAND".
  bool begins_as_command_file();

  /// The next command; nothing at the end of the file, or when it cannot be read.
  std::optional<Command> next();

 private:
  std::optional<std::string> read_line();

  std::FILE* stream_;
  std::size_t bytes_read_ = 0;
};

#endif  // TQR7_COMMANDS_COMMAND_FILE_H
