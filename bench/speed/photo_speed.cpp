// SPDX-License-Identifier: Apache-2.0
//
// Prints what a photo's page costs: photo_speed [--rounds N]. phototopage makes pages of JPEG
// photos of 12 and 24 megapixels, in turn with the system's filter for pictures, which took them
// before.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

// jpeglib.h uses FILE and size_t without declaring them.
#include <jpeglib.h>

#include "bench/speed/command_line.h"
#include "bench/speed/contestants.h"
#include "bench/spread.h"
#include "bench/table_printer.h"

namespace {

using bench::Entrant;
using bench::MeteredRun;

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

struct Camera {
  const char* name;
  unsigned width;
  unsigned height;
  bool inSteps;  ///< a progressive JPEG, as programs for the web write them
};

// Slow gradients with noise on them, which a JPEG of this quality keeps: some 0.2 bytes a pixel.
void take_photo(const Camera& camera, const std::string& path) {
  const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "wb"));
  if (file == nullptr) {
    throw std::runtime_error("no photo can be written");
  }
  jpeg_error_mgr errors;
  jpeg_compress_struct jpeg;
  jpeg.err = jpeg_std_error(&errors);
  jpeg_create_compress(&jpeg);
  jpeg_stdio_dest(&jpeg, file.get());
  jpeg.image_width = camera.width;
  jpeg.image_height = camera.height;
  jpeg.input_components = 3;
  jpeg.in_color_space = JCS_RGB;
  jpeg_set_defaults(&jpeg);
  jpeg_set_quality(&jpeg, 92, TRUE);
  if (camera.inSteps) {
    jpeg_simple_progression(&jpeg);
  }
  jpeg_start_compress(&jpeg, TRUE);
  // The same photo each time.
  std::minstd_rand noise(7);  // NOLINT(cert-msc32-c,cert-msc51-cpp)
  std::vector<unsigned char> row(3UL * camera.width);
  for (unsigned y = 0; y < camera.height; ++y) {
    for (unsigned x = 0; x < camera.width; ++x) {
      const auto grain = static_cast<unsigned>(noise() >> 8U);
      row[3UL * x] = static_cast<unsigned char>(200 * x / camera.width + (grain & 15U));
      row[3UL * x + 1] = static_cast<unsigned char>(200 * y / camera.height + (grain >> 4U & 15U));
      row[3UL * x + 2] = static_cast<unsigned char>(100 + (grain >> 8U & 15U));
    }
    unsigned char* line = row.data();
    jpeg_write_scanlines(&jpeg, &line, 1);
  }
  jpeg_finish_compress(&jpeg);
  jpeg_destroy_compress(&jpeg);
}

MeteredRun run_of(const std::string& program, const std::string& photo) {
  MeteredRun run;
  run.argv = {program, "1", "anna", "Beach", "1", "PageSize=RQ_10x15 print-scaling=fill", photo};
  run.environment = {{"PPD", TQR7_PPD},
                     {"CONTENT_TYPE", "image/jpeg"},
                     {"FINAL_CONTENT_TYPE", "application/vnd.cups-raster"}};
  run.bytes = 3UL * 1848 * 1228;
  return run;
}

std::vector<std::string> row_of(const char* camera, const Entrant& entrant) {
  std::vector<double> walls;
  for (const bench::Usage& use : entrant.uses) {
    walls.push_back(use.wall);
  }
  return {camera, entrant.name, bench::number(bench::median_of(walls), 2),
          bench::number(bench::median_cpu(entrant), 2),
          bench::number(static_cast<double>(bench::largest_peak(entrant)) / 1024, 0)};
}

void print_speeds(int rounds) {
  const std::string folder =
      (std::filesystem::temp_directory_path() / "tqr7-photo-speed-XXXXXX").string();
  std::string path = folder;
  if (mkdtemp(path.data()) == nullptr) {
    throw std::runtime_error("no folder for the photos");
  }
  bench::Table table{{"Photo", "Program", "Seconds", "Processor, s", "Memory, MB"}, {}};
  for (const Camera& camera :
       {Camera{"12 megapixels", 4000, 3000, false}, Camera{"24 megapixels", 6000, 4000, false},
        Camera{"24 megapixels, progressive", 6000, 4000, true}}) {
    take_photo(camera, path + "/photo.jpg");
    Entrant ours{"phototopage", run_of(PHOTOTOPAGE, path + "/photo.jpg")};
    Entrant before{"imagetoraster", run_of(IMAGETORASTER, path + "/photo.jpg")};
    bench::run_in_turn({&ours, &before}, rounds);
    table.rows.push_back(row_of(camera.name, ours));
    table.rows.push_back(row_of(camera.name, before));
  }
  std::filesystem::remove_all(path);
  bench::print_table(table);
}

}  // namespace

int main(int argc, char** argv) {
  int rounds = 5;
  return bench::run_program(
      "Prints what a photo's page costs.", argc, argv,
      [&rounds](CLI::App& app) { app.add_option("--rounds", rounds, "runs of each program"); },
      [&rounds] { print_speeds(rounds); });
}
