// SPDX-License-Identifier: Apache-2.0
//
// The programs as somebody runs them whose language is not English: people read their own language,
// and what programs read is the same everywhere.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/unit/tool_process.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

ToolRun run_in(const std::string& locale, const std::string& languages,
               const std::vector<std::string>& words) {
  std::vector<std::string> all = {"env", "LC_ALL=" + locale, "LANGUAGE=" + languages,
                                  "LOCPATH=" TQR7_TEST_LOCALES};
  all.insert(all.end(), words.begin(), words.end());
  return run_program(all);
}

ToolRun run_in_german(const std::vector<std::string>& words) {
  return run_in("de_DE.UTF-8", "de", words);
}

}  // namespace

TEST(ProgramLanguage, IsThePersonsInWhatTheToolExplains) {
  const ToolRun run = run_in_german({TQR7_TOOL, "explain", "0015"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(
      run.out,
      "Nummer:    0015\n"
      "Klasse:    0015\n"
      "Bedeutung: 0015 ist keine Fehlernummer, sondern eine Klasse von ihnen: Sie umfasst "
      "2202. Wofür die Klasse steht, ist hier nicht bekannt.\n"
      "Zu tun:    Nach einer ihrer Nummern fragen, wie sie der Drucker oder die Warteschlange "
      "zeigt.\n");
  EXPECT_EQ(run.errors, "tqr7 explain: »0015« steht nicht in der Tabelle der Druckerfehler\n");
}

TEST(ProgramLanguage, IsThePersonsInHelp) {
  const ToolRun run = run_in_german({TQR7_TOOL, "explain", "--help"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out,
            "sagen, was eine Fehlernummer oder der Grund einer Warteschlange bedeutet und was zu "
            "tun ist\n"
            "Aufruf: tqr7 explain [OPTIONEN] [NUMBER|KEYWORD]\n"
            "\n"
            "Argumente:\n"
            "  NUMBER|KEYWORD TEXT schließt aus: --all\n"
            "                              Fehlernummer in hexadezimalen Ziffern, oder ein Grund, "
            "den die Warteschlange zeigt\n"
            "\n"
            "Optionen:\n"
            "  -h,--help                   dies ausgeben und enden\n"
            "  --all schließt aus: NUMBER|KEYWORD\n"
            "                              die Tabelle der Druckerfehler ausgeben\n"
            "  --json                      ein JSON-Dokument ausgeben\n"
            "\n");
}

TEST(ProgramLanguage, IsThePersonsInComplaintsOnTheCommandLine) {
  EXPECT_EQ(run_in_german({TQR7_TOOL}).errors, "tqr7: Ein Unterbefehl fehlt (siehe --help)\n");
  EXPECT_EQ(run_in_german({TQR7_TOOL, "check", "photo.jpg"}).errors,
            "tqr7: --size fehlt (siehe --help)\n");
}

TEST(ProgramLanguage, IsEnglishInTheSimulatedPrinter) {
  EXPECT_EQ(run_in_german({TQR7_SIMULATOR, "--port", "70000"}).errors,
            "tqr7-printer-sim: --port: \"70000\" is not a number from 0 to 65535 (see --help)\n");
  EXPECT_EQ(run_in_german({TQR7_SIMULATOR, "--fault", "status 0x2665 for ever"}).errors,
            "tqr7-printer-sim: --fault 1:19: came \"ever\", expected a number of seconds "
            "from 0.001 to 86400 and then \"s\"\n");
}

TEST(ProgramLanguage, IsEnglishInTheDevelopersCommands) {
  EXPECT_THAT(run_in_german({TQR7_TOOL, "inspect", "--help"}).out,
              HasSubstr("leave the fields of the commands out\n"));
  EXPECT_THAT(run_in_german({TQR7_TOOL, "proof", "--help"}).out,
              HasSubstr("show the printer's own values and not the colours of the print\n"));
}

TEST(ProgramLanguage, ChangesNoJson) {
  for (const char* const text : {"2665", "0004", "0015", "paused", "nonsense"}) {
    const ToolRun english = run_in("C", "", {TQR7_TOOL, "explain", "--json", text});
    const ToolRun german = run_in_german({TQR7_TOOL, "explain", "--json", text});
    EXPECT_EQ(german.out, english.out);
    EXPECT_EQ(german.status, english.status);
    EXPECT_THAT(english.out, StartsWith("{\n"));
  }
}

TEST(ProgramLanguage, ReadsNumbersWithAPoint) {
  // The seconds are taken; without a scheduler it ends there.
  const ToolRun run = run_in_german(
      {"env", "CUPS_SERVER=/nonexistent/socket", TQR7_TOOL, "status", "--interval", "2.5"});
  EXPECT_EQ(run.status, 2);
  EXPECT_THAT(run.errors, StartsWith("tqr7 status: der Druckdienst antwortet nicht: "));
}

TEST(ProgramLanguage, IsEnglishWhereThereIsNoCatalogue) {
  const ToolRun english = run_in("C", "", {TQR7_TOOL, "--help"});
  EXPECT_THAT(english.out, HasSubstr("show the state of each queue, and what to do about it"));
  EXPECT_EQ(run_in("de_DE.UTF-8", "tlh", {TQR7_TOOL, "--help"}).out, english.out);
  EXPECT_EQ(run_in("xx_XX.UTF-8", "de", {TQR7_TOOL, "--help"}).out, english.out);
}

TEST(ProgramLanguage, IsEnglishInTheCLocaleWhateverTheListOfLanguages) {
  EXPECT_EQ(run_in("C", "de", {TQR7_TOOL}).errors, "tqr7: A subcommand is required (see --help)\n");
}
