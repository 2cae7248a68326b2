// SPDX-License-Identifier: Apache-2.0
// Writes a picture of four flat quarters:
//
//   make-test-picture FILE.jpg|.png|.pdf WIDTH HEIGHT [PAGES [vivid]]
//
// Page 1 is red (top left), green (top right), blue (bottom left) and yellow (bottom right); each
// further page moves the colours on by one place. Dyes can print them all, but for the vivid ones,
// which are the screen's own extremes. A PDF's pages measure WIDTH x HEIGHT dots at 300 dots an
// inch.
#include <png.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <jpeglib.h>

#include "image/file_handle.h"

namespace {

struct Rgb {
  unsigned char red, green, blue;
};

using Quarters = std::array<Rgb, 4>;

constexpr Quarters kModerate = {{{200, 90, 80}, {80, 150, 90}, {70, 90, 150}, {210, 180, 90}}};
constexpr Quarters kVivid = {{{255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {255, 255, 0}}};

const Rgb& quarter(const Quarters& colours, int page, bool right, bool bottom) {
  return colours[static_cast<std::size_t>(page + (right ? 1 : 0) + (bottom ? 2 : 0)) % 4];
}

std::vector<unsigned char> pixels(const Quarters& colours, int width, int height) {
  std::vector<unsigned char> out;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const Rgb& colour = quarter(colours, 0, x >= width / 2, y >= height / 2);
      out.insert(out.end(), {colour.red, colour.green, colour.blue});
    }
  }
  return out;
}

bool write_jpeg(std::FILE* file, const Quarters& colours, int width, int height) {
  std::vector<unsigned char> rgb = pixels(colours, width, height);
  jpeg_error_mgr errors;
  jpeg_compress_struct jpeg;
  jpeg.err = jpeg_std_error(&errors);
  jpeg_create_compress(&jpeg);
  jpeg_stdio_dest(&jpeg, file);
  jpeg.image_width = static_cast<JDIMENSION>(width);
  jpeg.image_height = static_cast<JDIMENSION>(height);
  jpeg.input_components = 3;
  jpeg.in_color_space = JCS_RGB;
  jpeg_set_defaults(&jpeg);
  jpeg_set_quality(&jpeg, 95, TRUE);
  jpeg_start_compress(&jpeg, TRUE);
  for (std::size_t y = 0; y < static_cast<std::size_t>(height); ++y) {
    unsigned char* lines[] = {&rgb[y * static_cast<std::size_t>(width) * 3]};
    jpeg_write_scanlines(&jpeg, lines, 1);
  }
  jpeg_finish_compress(&jpeg);
  jpeg_destroy_compress(&jpeg);
  return true;
}

bool write_png(std::FILE* file, const Quarters& colours, int width, int height) {
  const std::vector<unsigned char> rgb = pixels(colours, width, height);
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  png.width = static_cast<png_uint_32>(width);
  png.height = static_cast<png_uint_32>(height);
  png.format = PNG_FORMAT_RGB;
  return png_image_write_to_stdio(&png, file, 0, rgb.data(), 0, nullptr) != 0;
}

// A filled rectangle in points; PDF counts from the bottom left corner.
std::string pdf_quarter(const Rgb& colour, double x, double y, double width, double height) {
  char text[160];
  std::snprintf(text, sizeof(text), "%.5f %.5f %.5f rg %.3f %.3f %.3f %.3f re f\n",
                colour.red / 255.0, colour.green / 255.0, colour.blue / 255.0, x, y, width, height);
  return text;
}

std::string pdf_page_content(const Quarters& colours, int page, double width, double height) {
  const double w = width / 2.0;
  const double h = height / 2.0;
  return pdf_quarter(quarter(colours, page, false, false), 0.0, h, w, h) +
         pdf_quarter(quarter(colours, page, true, false), w, h, w, h) +
         pdf_quarter(quarter(colours, page, false, true), 0.0, 0.0, w, h) +
         pdf_quarter(quarter(colours, page, true, true), w, 0.0, w, h);
}

// Objects 1 and 2 are the catalogue and the page tree; each page takes two more.
std::vector<std::string> pdf_objects(const Quarters& colours, int pages, double width,
                                     double height) {
  char box[80];
  std::snprintf(box, sizeof(box), "[0 0 %.2f %.2f]", width, height);
  std::string kids;
  std::vector<std::string> objects = {"<< /Type /Catalog /Pages 2 0 R >>", ""};
  for (int page = 0; page < pages; ++page) {
    const std::string content = pdf_page_content(colours, page, width, height);
    const std::string stream = std::to_string(objects.size() + 2);
    kids += std::to_string(objects.size() + 1) + " 0 R ";
    objects.push_back("<< /Type /Page /Parent 2 0 R /MediaBox " + std::string(box) +
                      " /Resources << >> /Contents " + stream + " 0 R >>");
    objects.push_back("<< /Length " + std::to_string(content.size()) + " >>\nstream\n" + content +
                      "endstream");
  }
  objects[1] = "<< /Type /Pages /Count " + std::to_string(pages) + " /Kids [ " + kids + "] >>";
  return objects;
}

bool write_pdf(std::FILE* file, const Quarters& colours, int width, int height, int pages) {
  const auto objects = pdf_objects(colours, pages, width * 0.24, height * 0.24);
  std::string pdf = "%PDF-1.4\n";
  std::string table = "xref\n0 " + std::to_string(objects.size() + 1) + "\n0000000000 65535 f \n";
  for (std::size_t i = 0; i < objects.size(); ++i) {
    char entry[32];
    std::snprintf(entry, sizeof(entry), "%010zu 00000 n \n", pdf.size());
    table += entry;
    pdf += std::to_string(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
  }
  const std::string start = std::to_string(pdf.size());
  pdf += table + "trailer << /Size " + std::to_string(objects.size() + 1) +
         " /Root 1 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
  return std::fwrite(pdf.data(), 1, pdf.size(), file) == pdf.size();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4 || argc > 6) {
    std::fprintf(stderr,
                 "usage: make-test-picture FILE.jpg|.png|.pdf WIDTH HEIGHT [PAGES [vivid]]\n");
    return 2;
  }
  const std::string name = argv[1];
  const Quarters& colours = argc == 6 && argv[5] == std::string("vivid") ? kVivid : kModerate;
  const int width = std::atoi(argv[2]);
  const int height = std::atoi(argv[3]);
  const FileHandle file(std::fopen(argv[1], "wb"));
  if (!file || width <= 0 || height <= 0) {
    std::fprintf(stderr, "make-test-picture: cannot write %s, %d x %d\n", argv[1], width, height);
    return 1;
  }
  bool written = false;
  if (name.ends_with(".jpg")) {
    written = write_jpeg(file.get(), colours, width, height);
  } else if (name.ends_with(".png")) {
    written = write_png(file.get(), colours, width, height);
  } else if (name.ends_with(".pdf")) {
    written = write_pdf(file.get(), colours, width, height, argc >= 5 ? std::atoi(argv[4]) : 1);
  }
  return written ? 0 : 1;
}
