// SPDX-License-Identifier: Apache-2.0
//
// The tool's command line: subcommands and their arguments. Only the source includes the library
// that reads it, whose headers take longer to compile than any subcommand.
#ifndef TQR7_TOOLS_COMMAND_LINE_H
#define TQR7_TOOLS_COMMAND_LINE_H

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace tools {

/// One argument of a subcommand. It belongs to the program.
class Argument {
 public:
  explicit Argument(CLI::Option* option) : option_(option) {}

  /// Sets the word for the value in --help.
  Argument& Called(const std::string& word);
  Argument& Required();
  /// Makes it and the other argument exclude each other.
  Argument& NotWith(const Argument& other);
  Argument& OneOf(const std::vector<std::string>& values);
  /// The person may give it several times: the values come with spaces between them.
  Argument& Repeated();

  /// Whether the person gave it. Ask only while the subcommand runs.
  bool Given() const;

 private:
  CLI::Option* option_;
};

/// One subcommand. The variables that get the values must live as long as the program.
class Subcommand {
 public:
  Subcommand(CLI::App* app, int* status) : app_(app), status_(status) {}

  // The name of an option has dashes; another name is an argument without an option.
  Argument Text(const std::string& name, std::string& value, const std::string& help);
  Argument Text(const std::string& name, std::optional<std::string>& value,
                const std::string& help);
  Argument Texts(const std::string& name, std::vector<std::string>& values,
                 const std::string& help);
  /// A time from a tenth of a second to a day. --help shows the present value as the default.
  Argument Seconds(const std::string& name, double& value, const std::string& help);
  Argument Flag(const std::string& name, bool& value, const std::string& help);

  /// Sets what runs when the person asks for the subcommand; it returns the exit status.
  void Runs(std::function<int()> action);

  /// Called while the subcommand runs: ends it with the complaint that this argument is missing.
  [[noreturn]] static void IsMissing(const std::string& what);

 private:
  CLI::App* app_;
  int* status_;
};

/// The whole command line.
class CommandLine {
 public:
  CommandLine(const std::string& name, const std::string& version, const std::string& help);
  CommandLine(const CommandLine&) = delete;
  CommandLine& operator=(const CommandLine&) = delete;
  ~CommandLine();

  Subcommand Add(const std::string& name, const std::string& help);

  /// Runs the subcommand that is asked for, or says what is wrong. Returns the exit status.
  int Run(int argc, char** argv);

 private:
  std::unique_ptr<CLI::App> app_;
  int status_;
};

}  // namespace tools

#endif  // TQR7_TOOLS_COMMAND_LINE_H
