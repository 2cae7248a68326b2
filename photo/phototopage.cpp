// SPDX-License-Identifier: Apache-2.0
//
// phototopage: makes the printer's pages of a photo. The scheduler runs it for JPEG and PNG files,
// ahead of the printer's own filter.
#include <cups/cups.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <memory>
#include <string>

#include "image/file_handle.h"
#include "photo/filter_program.h"
#include "photo/job_page.h"
#include "photo/job_wishes.h"
#include "photo/page_picture.h"

namespace {

int refuse(const std::string& why) {
  return photo::say_cannot_be_printed("photo", why);
}

int fail(const char* why) {
  return photo::say_not_printed("photo", why);
}

// A photo is read several times, which a pipe cannot be.
FileHandle copy_input() {
  std::array<char, 1024> name{};
  const int descriptor = cupsTempFd(name.data(), static_cast<int>(name.size()));
  if (descriptor < 0) {
    return nullptr;
  }
  unlink(name.data());
  FileHandle copy(fdopen(descriptor, "w+b"));
  std::array<char, 65536> piece{};
  std::size_t length = 0;
  while (copy != nullptr && (length = std::fread(piece.data(), 1, piece.size(), stdin)) > 0) {
    if (std::fwrite(piece.data(), 1, length, copy.get()) != length) {
      return nullptr;
    }
  }
  return copy != nullptr && std::fflush(copy.get()) == 0 ? std::move(copy) : nullptr;
}

bool print_page(cups_raster_t* raster, const photo::JobPage& page, const photo::Picture& picture) {
  static int printed = 0;
  std::fprintf(stderr, "INFO: Formatting page %d.\n", ++printed);
  return photo::write_page(raster, page.header, picture.rgb.data());
}

// Copies come page by page, 1 1 2 2, or set by set.
int print_pages(std::FILE* file, const photo::Layout& layout, const photo::JobWishes& wishes,
                const photo::JobPage& page) {
  photo::Raster raster;
  const int sets = wishes.collate ? wishes.copies : 1;
  const int each = wishes.collate ? 1 : wishes.copies;
  photo::PagePicture made;
  for (int set = 0; set < sets; ++set) {
    for (std::size_t number = 0; number < layout.pages.size(); ++number) {
      if (set == 0 || layout.pages.size() > 1) {
        std::string why = photo::make_page(file, layout, number, wishes, made);
        if (made.profilePassedOver) {
          std::fputs("DEBUG: The photo's colour profile cannot be used and is passed over.\n",
                     stderr);
        }
        if (!why.empty()) {
          return refuse(why);
        }
      }
      if (raster == nullptr && (raster = photo::open_output()) == nullptr) {
        return fail("no page can be written");
      }
      for (int copy = 0; copy < each; ++copy) {
        if (!print_page(raster.get(), page, made.picture)) {
          return fail("the printer's filter takes no more");
        }
      }
    }
  }
  return 0;
}

int print_photo(const char* optionText, const char* copies, std::FILE* file) {
  const photo::JobOptions options(optionText);
  photo::JobPage page;
  if (!photo::read_job_page(optionText, options, page)) {
    return fail("the queue's PPD file cannot be read");
  }
  const photo::JobWishes wishes = photo::read_wishes(options, copies, page.borderless);
  std::fputs("INFO: Reading the photo.\n", stderr);
  photo::PlannedPhoto plan;
  if (std::string why = photo::plan_pages(file, page.width, page.height, wishes, plan);
      !why.empty()) {
    return refuse(why);
  }
  return print_pages(file, plan.layout, wishes, page);
}

int print_photo(int argc, char* argv[]) {
  const FileHandle file =
      argc == photo::kArgumentsWithFile ? FileHandle(std::fopen(argv[6], "rbe")) : copy_input();
  if (file == nullptr) {
    return fail("its file cannot be read");
  }
  return print_photo(argv[5], argv[4], file.get());
}

}  // namespace

int main(int argc, char* argv[]) {
  return photo::run_filter("photo", print_photo, argc, argv);
}
