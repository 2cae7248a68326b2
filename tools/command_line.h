// SPDX-License-Identifier: Apache-2.0
//
// What the tool's command line holds: subcommands and what each takes. Only the source knows the
// library that reads it, whose headers take longer to compile than any subcommand.
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

/// One thing that a subcommand takes. It belongs to the program.
class Argument {
 public:
  explicit Argument(CLI::Option* option) : option_(option) {}

  /// The word that stands for the value in --help.
  Argument& Called(const std::string& word);
  Argument& Required();
  /// It and the other exclude each other.
  Argument& NotWith(const Argument& other);
  Argument& OneOf(const std::vector<std::string>& values);
  /// The person may give it several times: the values come with spaces between them.
  Argument& Repeated();

  /// Whether the person gave it: known once the subcommand runs.
  bool Given() const;

 private:
  CLI::Option* option_;
};

/// One subcommand. What its arguments leave their values in must live as long as the program.
class Subcommand {
 public:
  Subcommand(CLI::App* app, int* status) : app_(app), status_(status) {}

  // An option by its name with dashes, or what stands by itself.
  Argument Text(const std::string& name, std::string& value, const std::string& help);
  Argument Text(const std::string& name, std::optional<std::string>& value,
                const std::string& help);
  Argument Texts(const std::string& name, std::vector<std::string>& values,
                 const std::string& help);
  /// A time between a tenth of a second and a day; --help shows the value that it has now.
  Argument Seconds(const std::string& name, double& value, const std::string& help);
  Argument Flag(const std::string& name, bool& value, const std::string& help);

  /// What runs when the person asks for the subcommand, and gives its exit status.
  void Runs(std::function<int()> action);

  /// Ends what runs as if something required had not been given.
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

  /// Runs the subcommand that is asked for, or says what is wrong. The program's exit status.
  int Run(int argc, char** argv);

 private:
  std::unique_ptr<CLI::App> app_;
  int status_;
};

}  // namespace tools

#endif  // TQR7_TOOLS_COMMAND_LINE_H
