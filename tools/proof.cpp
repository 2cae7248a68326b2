// SPDX-License-Identifier: Apache-2.0
//
// tqr7 proof: prints the sheets of a captured command stream to PNG files, as the simulated printer
// does.
#include <cstdint>
#include <cstdio>
#include <memory>
#include <span>
#include <string>

#include "decoder/command_listener.h"
#include "decoder/proof_choice.h"
#include "decoder/soft_proof.h"
#include "decoder/stream_parser.h"
#include "simulator/sheet_folder.h"
#include "simulator/sheet_printer.h"
#include "simulator/wording.h"
#include "tools/byte_source.h"
#include "tools/command_line.h"
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

// Makes the proofs of one stream, and says what it makes and what is wrong.
class StreamProofer : private decoder::CommandListener {
 public:
  /// The printer must outlive the proofer.
  explicit StreamProofer(simulator::SheetPrinter& printer) : printer_(printer), parser_(*this) {}

  /// Takes the next bytes of the stream.
  void Feed(std::span<const std::uint8_t> bytes) { parser_.Feed(bytes); }

  /// Ends the stream. Feed nothing afterwards.
  void Finish() { parser_.EndOfStream(); }

  /// Sums the stream up in one line. Returns the exit status.
  int SumUp() const {
    std::printf("%s, %s\n", simulator::counted(sheets_, "sheet").c_str(),
                simulator::counted(parser_.ErrorCount(), "error").c_str());
    if (failures_ > 0) {
      return kExitCannotTell;
    }
    return parser_.ErrorCount() > 0 || parser_.Offset() == 0 ? kExitNotGood : kExitGood;
  }

 private:
  void OnSheetBegin(const decoder::Sheet& sheet) override {
    sheet_ = sheet;
    printer_.Begin(sheet);
  }

  void OnImageRow(std::uint32_t row, std::span<const std::uint16_t> samples) override {
    printer_.ImageRow(row, samples);
  }

  void OnMatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) override {
    printer_.MatteRow(row, bytes);
  }

  void OnSheetEnd(const decoder::SheetEnd& /*end*/) override {
    ++sheets_;
    Say(printer_.End(), simulator::printed_sheet_words(sheet_));
  }

  void OnSheetCut() override {
    Say(printer_.Cut(), "cut off, " + simulator::printed_sheet_words(sheet_));
  }

  void OnError(const decoder::StreamError& error) override {
    constexpr std::uint64_t kErrorsSaidMost = 20;  // tqr7 inspect lists all
    if (parser_.ErrorCount() <= kErrorsSaidMost) {
      complain("proof", to_string(error));
    }
  }

  void Say(const simulator::SheetResult& result, const std::string& what) {
    for (const std::string* const error : {&result.error, &result.listError}) {
      if (!error->empty()) {
        ++failures_;
        complain("proof", result.path.string() + ": " + *error);
      }
    }
    if (result.error.empty()) {
      std::printf("%s: %s\n", result.path.c_str(), what.c_str());
    }
  }

  simulator::SheetPrinter& printer_;
  decoder::StreamParser parser_;
  decoder::Sheet sheet_{};
  std::uint64_t sheets_ = 0;    ///< that are whole
  std::uint64_t failures_ = 0;  ///< files that could not be written
};

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
  StreamProofer proofer(printer);
  const std::string why =
      for_each_piece(options.file, [&proofer](auto bytes) { proofer.Feed(bytes); });
  proofer.Finish();
  return why.empty() ? proofer.SumUp() : cannot(options.file, why);
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
