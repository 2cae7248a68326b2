// SPDX-License-Identifier: Apache-2.0
#include "tools/command_line.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <utility>

#include "language/command_line_words.h"
#include "language/messages.h"
#include "tools/subcommands.h"

namespace tools {

using language::_;

Argument& Argument::Called(const std::string& word) {
  option_->type_name(word);
  return *this;
}

Argument& Argument::Required() {
  option_->required();
  return *this;
}

Argument& Argument::NotWith(const Argument& other) {
  option_->excludes(other.option_);
  return *this;
}

Argument& Argument::OneOf(const std::vector<std::string>& values) {
  option_->check(CLI::IsMember(values));
  return *this;
}

Argument& Argument::Repeated() {
  option_->join(' ');
  return *this;
}

bool Argument::Given() const {
  return option_->count() > 0;
}

Argument Subcommand::Text(const std::string& name, std::string& value, const std::string& help) {
  return Argument(app_->add_option(name, value, help));
}

Argument Subcommand::Text(const std::string& name, std::optional<std::string>& value,
                          const std::string& help) {
  return Argument(app_->add_option(name, value, help));
}

Argument Subcommand::Texts(const std::string& name, std::vector<std::string>& values,
                           const std::string& help) {
  return Argument(app_->add_option(name, values, help));
}

Argument Subcommand::Seconds(const std::string& name, double& value, const std::string& help) {
  constexpr double kLeast = 0.1;
  constexpr double kMost = 86400;
  return Argument(
      app_->add_option(name, value, help)->check(CLI::Range(kLeast, kMost))->capture_default_str());
}

Argument Subcommand::Flag(const std::string& name, bool& value, const std::string& help) {
  return Argument(app_->add_flag(name, value, help));
}

void Subcommand::Runs(std::function<int()> action) {
  app_->callback([action = std::move(action), status = status_] { *status = action(); });
}

void Subcommand::IsMissing(const std::string& what) {
  throw CLI::RequiredError(what);
}

CommandLine::CommandLine(const std::string& name, const std::string& version,
                         const std::string& help)
    : app_(std::make_unique<CLI::App>(help, name)), status_(kExitGood) {
  language::translate_help(*app_);
  app_->set_version_flag("--version", name + " " + version, _("show the version and exit"));
  app_->get_option("--help")->description(_("show this help and exit"));
  app_->require_subcommand(1);
}

CommandLine::~CommandLine() = default;

Subcommand CommandLine::Add(const std::string& name, const std::string& help) {
  CLI::App* const app = app_->add_subcommand(name, help);
  app->group(language::subcommands_heading());
  app->get_option("--help")->description(_("show this help and exit"));
  return {app, &status_};
}

int CommandLine::Run(int argc, char** argv) {
  try {
    app_->parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
      return app_->exit(error);  // help or version
    }
    const std::string what = language::translate_complaint(error.what());
    std::fprintf(stderr, _("%s: %s (see --help)\n"), app_->get_name().c_str(), what.c_str());
    return kExitCannotTell;
  }
  return status_;
}

}  // namespace tools
