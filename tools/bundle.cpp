// SPDX-License-Identifier: Apache-2.0
#include "tools/bundle.h"

#include <archive.h>
#include <archive_entry.h>

#include <cstdio>
#include <filesystem>
#include <memory>

#include "language/messages.h"

namespace tools {
namespace {

struct FreeArchive {
  void operator()(archive* writer) const { archive_write_free(writer); }
};
struct FreeEntry {
  void operator()(archive_entry* entry) const { archive_entry_free(entry); }
};

bool add_file(archive* writer, const std::string& name, const std::string& text) {
  const std::unique_ptr<archive_entry, FreeEntry> entry(archive_entry_new());
  archive_entry_set_pathname(entry.get(), name.c_str());
  archive_entry_set_size(entry.get(), static_cast<la_int64_t>(text.size()));
  archive_entry_set_filetype(entry.get(), AE_IFREG);
  archive_entry_set_perm(entry.get(), 0644);
  archive_entry_set_mtime(entry.get(), 0, 0);
  return archive_write_header(writer, entry.get()) == ARCHIVE_OK &&
         archive_write_data(writer, text.data(), text.size()) ==
             static_cast<la_ssize_t>(text.size());
}

bool add_files(archive* writer, const std::string& folder, const std::vector<BundleFile>& files) {
  for (const BundleFile& file : files) {
    if (!add_file(writer, folder + "/" + file.name, file.text)) {
      return false;
    }
  }
  return archive_write_close(writer) == ARCHIVE_OK;
}

std::string words_of(archive* writer) {
  const char* const words = archive_error_string(writer);
  return words != nullptr ? words : language::_("it cannot be written");
}

// Half a bundle is of no use. A device must not be removed.
void remove_part(const std::string& path) {
  std::error_code none;
  if (std::filesystem::is_regular_file(path, none)) {
    std::remove(path.c_str());
  }
}

}  // namespace

std::string write_bundle(const std::string& path, const std::string& folder,
                         const std::vector<BundleFile>& files) {
  const std::unique_ptr<archive, FreeArchive> writer(archive_write_new());
  archive_write_set_format_ustar(writer.get());
  archive_write_add_filter_gzip(writer.get());
  archive_write_set_filter_option(writer.get(), "gzip", "timestamp", nullptr);
  if (archive_write_open_filename(writer.get(), path.c_str()) != ARCHIVE_OK) {
    return words_of(writer.get());
  }
  if (!add_files(writer.get(), folder, files)) {
    std::string words = words_of(writer.get());
    remove_part(path);
    return words;
  }
  return {};
}

std::string file_name_of(std::string_view text) {
  constexpr std::size_t kMost = 64;
  std::string name;
  for (const char letter : text.substr(0, kMost)) {
    const bool plain = (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
                       (letter >= '0' && letter <= '9') || letter == '-' || letter == '_' ||
                       (letter == '.' && !name.empty());
    name += plain ? letter : '_';
  }
  return name.empty() ? "_" : name;
}

}  // namespace tools
