// SPDX-License-Identifier: Apache-2.0
//
// Prints what a job of one page costs the filter and other raster filters of the distribution:
// peer_filters PPD-FOLDER [--rounds N]. Each gets the same photo on a sheet of the same size, in
// the raster that its PPD asks for, and writes all of it to /dev/null.
#include <unistd.h>

#include <cstdio>
#include <deque>
#include <map>
#include <string>
#include <vector>

#include "bench/speed/command_line.h"
#include "bench/speed/contestants.h"
#include "bench/speed/raster_file.h"
#include "bench/table_printer.h"

namespace {

using bench::Entrant;
using bench::Library;
using bench::MeteredRun;
using bench::number;
using bench::RasterColours;
using bench::RasterStyle;

struct Peer {
  const char* filter;
  const char* ppd;
  const char* work;     ///< what it does with the page
  RasterStyle style;    ///< as the PPD has it
  std::uint64_t least;  ///< bytes of output without which the page was not printed
  double most;          ///< what our filter may take of its time; 0 for no target
};

constexpr RasterStyle kPackBits = {.compression = 2};
constexpr RasterStyle kJets = {.compression = 1, .row_count = 90, .row_step = 103};
constexpr RasterStyle kPlanes = {.colours = RasterColours::KcmyPlanes, .compression = 1};
constexpr RasterStyle kBlack = {.colours = RasterColours::Black};

const std::vector<Peer> kPeers = {
    {"rastertopwg", "pwg", "RGB, run lengths", {}, 6'000'000, 0.0},
    {"rastertopclx", "pcl-rgb", "RGB as it is, PackBits", kPackBits, 6'000'000, 0.0},
    {"rastertopclx", "pcl-cmyk", "RGB to four inks, dithered", kPackBits, 500'000, 0.5},
    {"rastertops", "ps", "RGB, deflate", {}, 3'000'000, 0.2},
    {"rastertopdf", "pdf", "RGB, deflate", {}, 3'000'000, 0.2},
    {"rastertoescpx", "escp", "RGB to four inks, dithered, bands of jets", kJets, 500'000, 0.15},
    {"rastertoepson", "epson", "four planes of bits, run lengths", kPlanes, 100'000, 0.0},
    {"rastertolabel", "label", "black bits", kBlack, 20'000, 0.0},
    {"rastertobrlaser", "laser", "black bits", kBlack, 20'000, 0.0},
};

/// Each kind of raster once, whoever reads it.
class Rasters {
 public:
  const std::string& of(const RasterStyle& style) {
    const auto key = std::make_tuple(style.colours, style.compression, style.row_count);
    const auto found = files_.find(key);
    if (found != files_.end()) {
      return found->second.path();
    }
    return files_.try_emplace(key, page_, 1, style).first->second.path();
  }

 private:
  const bench::Picture page_ = bench::page_picture(bench::Content::Photo, 1852, 1232, 1);
  std::map<std::tuple<RasterColours, unsigned, unsigned>, bench::RasterFile> files_;
};

MeteredRun peer_run(const Peer& peer, const std::string& ppds) {
  MeteredRun run;
  run.argv = {std::string("/usr/lib/cups/filter/") + peer.filter, "7", "anna", "Beach", "1", ""};
  run.environment["PPD"] = ppds + "/" + peer.ppd + ".ppd";
  run.bytes = peer.least;
  return run;
}

std::deque<Entrant> entrants_of(Rasters& rasters, const std::string& ppds) {
  std::deque<Entrant> entrants;
  MeteredRun ours = bench::filter_run(
      Library::Ours, "PageSize=RQ_10x15 RQColorConversion=Enabled RQSharpness_Common=Normal");
  ours.input = rasters.of({});
  ours.bytes = bench::kImageBytes;
  entrants.push_back({"rastertoprinter", ours});
  for (const Peer& peer : kPeers) {
    MeteredRun run = peer_run(peer, ppds);
    run.input = rasters.of(peer.style);
    entrants.push_back({peer.filter, run});
  }
  return entrants;
}

std::vector<std::string> table_row(const Entrant& entrant, const char* work, const Entrant& ours) {
  return {entrant.name,
          work,
          number(bench::median_cpu(entrant) * 1e3, 1),
          number(bench::median_cpu(ours) / bench::median_cpu(entrant), 2),
          number(bench::system_share(entrant) * 100, 0),
          number(bench::median_faults(entrant), 0),
          number(static_cast<double>(bench::largest_peak(entrant)) / 1024, 1)};
}

void measure_peers(const std::string& ppds, int rounds) {
  Rasters rasters;
  std::deque<Entrant> entrants = entrants_of(rasters, ppds);
  std::vector<Entrant*> in_turn;
  in_turn.reserve(entrants.size());
  for (Entrant& entrant : entrants) {
    in_turn.push_back(&entrant);
  }
  bench::run_in_turn(in_turn, rounds);

  bench::Table table{
      {"Filter", "Its work", "CPU, ms", "rastertoprinter ×", "System, %", "Faults", "Peak, MB"},
      {}};
  const Entrant& ours = entrants[0];
  table.rows.push_back(table_row(ours, "RGB to 48 bits, profile, sharpening", ours));
  for (std::size_t i = 0; i < kPeers.size(); ++i) {
    const Entrant& peer = entrants[i + 1];
    table.rows.push_back(table_row(peer, kPeers[i].work, ours));
    if (kPeers[i].most > 0.0) {
      bench::tell_target(std::string("whole job, colour and sharpening, against ") +
                             kPeers[i].filter + " (" + kPeers[i].work + ")",
                         kPeers[i].most, bench::median_cpu(ours) / bench::median_cpu(peer));
    }
  }
  std::printf("Raw raster, /dev/null, %d rounds:\n\n", rounds);
  bench::print_table(table);
}

}  // namespace

int main(int argc, char** argv) {
  int rounds = 11;
  std::string ppds;
  return bench::run_program(
      "Prints what a job of one page costs the filter and other raster filters", argc, argv,
      [&](CLI::App& app) {
        app.add_option("ppds", ppds, "folder of the PPDs made of peers.drv")->required();
        app.add_option("--rounds", rounds, "how often each runs")->check(CLI::Range(1, 1000));
      },
      [&] { measure_peers(ppds, rounds); });
}
