// SPDX-License-Identifier: Apache-2.0
//
// tqr7 proof: writes the sheets of a captured command stream as PNG files.
#include <cstdio>
#include <memory>
#include <string>

#include "decoder/proof_choice.h"
#include "decoder/soft_proof.h"
#include "simulator/sheet_folder.h"
#include "simulator/sheet_printer.h"
#include "simulator/wording.h"
#include "tools/byte_source.h"
#include "tools/command_line.h"
#include "tools/stream_proofer.h"
#include "tools/subcommands.h"

namespace tools {
namespace {

struct Options {
  std::string file;
  std::string folder;
  decoder::ProofChoice proof;
  bool marks = false;
};

int cannot(const std::string& what, const std::string& why) {
  complain("proof", what + ": " + why);
  return kExitCannotTell;
}

ProofReport report_to_person() {
  const auto say = [](const std::string& text) { std::printf("%s\n", text.c_str()); };
  const auto say_wrong = [](const std::string& text) { complain("proof", text); };
  return {say, say_wrong, say_wrong};
}

int status_of(const ProofTotals& totals) {
  if (totals.failures > 0) {
    return kExitCannotTell;
  }
  return totals.errors > 0 || totals.bytes == 0 ? kExitNotGood : kExitGood;
}

int proof(const Options& options) {
  std::unique_ptr<decoder::SoftProof> softProof;
  if (const std::string why = decoder::make_proof(options.proof, softProof); !why.empty()) {
    return cannot(*options.proof.profile, why);
  }
  simulator::SheetFolder folder;
  if (const std::string why = folder.Open(options.folder); !why.empty()) {
    return cannot(options.folder, why);
  }
  simulator::SheetPrinter printer(folder, softProof.get(), {.marks = options.marks});
  StreamProofer proofer(printer, report_to_person());
  const std::string why =
      for_each_piece(options.file, [&proofer](auto bytes) { proofer.Feed(bytes); });
  const ProofTotals& totals = proofer.Finish();
  if (!why.empty()) {
    return cannot(options.file, why);
  }
  std::printf("%s, %s\n", simulator::counted(totals.sheets, "sheet").c_str(),
              simulator::counted(totals.errors, "error").c_str());
  return status_of(totals);
}

}  // namespace

void add_proof(CommandLine& program) {
  Subcommand sub =
      program.Add("proof", "show the sheets of a captured command stream as PNG files");
  const auto options = std::make_shared<Options>();
  sub.Text("FILE", options->file, "the stream; - is the standard input").Required();
  sub.Text("-o,--output", options->folder, "folder for the sheets, made where it is missing")
      .Called("DIR")
      .Required();
  const Argument profile =
      sub.Text("--profile", options->proof.profile,
               "ICC profile to show the colours of the print through (the model built in)")
          .Called("FILE");
  sub.Flag("--device-values", options->proof.deviceValues,
           "show the printer's own values and not the colours of the print")
      .NotWith(profile);
  sub.Flag("--marks", options->marks, "draw the cut and the white border's edge into the sheets");
  sub.Runs([options] { return proof(*options); });
}

}  // namespace tools
