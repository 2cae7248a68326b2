// SPDX-License-Identifier: Apache-2.0
#include "conversion/printer_table.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdio>
#include <mutex>
#include <new>

#include "conversion/profile_file.h"
#include "conversion/table_from_profile.h"
#include "model/printer_model.h"

namespace {

constexpr const char* kNoMemory = "there is no memory";

/// The last profile that was not the model's, and the table or the fault that it led to.
struct Kept {
  std::mutex lock;
  unsigned char* content = nullptr;  ///< null: none
  std::size_t size = 0;
  const char* fault = nullptr;  ///< null: the table is good
  ColourTable table;
};

/// Never destroyed: a process may end while another thread uses it, or by a signal.
Kept& kept_profile() {
  alignas(Kept) static std::array<std::byte, sizeof(Kept)> place;
  static Kept* const kept = new (place.data()) Kept;
  return *kept;
}

/// Replaces the profile that is kept with the file's.
const char* keep(const ProfileFile& file, Kept& kept) {
  delete[] kept.content;
  kept.content = nullptr;
  const std::size_t size = file.size();
  std::unique_ptr<unsigned char[]> content(new (std::nothrow) unsigned char[size]);
  if (content == nullptr) {
    return kNoMemory;
  }
  if (!file.read(content.get())) {
    return "it changed while it was read";
  }
  kept.fault = make_colour_table({content.get(), size}, kept.table);
  kept.size = size;
  kept.content = content.release();
  return kept.fault;
}

/// Copies the table of an owner's profile into `table`. Returns null, or why there is none.
const char* take_owners_table(const ProfileFile& file, std::unique_ptr<ColourTable>& table) {
  Kept& kept = kept_profile();
  const std::lock_guard<std::mutex> guard(kept.lock);
  const bool same = kept.content != nullptr && file.has_content({kept.content, kept.size});
  const char* fault = same ? kept.fault : keep(file, kept);
  if (fault != nullptr) {
    return fault;
  }
  table.reset(new (std::nothrow) ColourTable(kept.table));
  return table == nullptr ? kNoMemory : nullptr;
}

/// A path for the log: its beginning, without characters that would break the line.
struct ShownPath {
  std::array<char, 1001> text{};
  const char* separator = "/";

  explicit ShownPath(const char* path) {
    std::size_t length = 0;
    for (; path != nullptr && path[length] != '\0' && length + 1 < text.size(); ++length) {
      const auto c = static_cast<unsigned char>(path[length]);
      text[length] = c < ' ' || c == 0x7F ? '?' : path[length];
    }
    if (length == 0 || text[length - 1] == '/') {
      separator = "";
    }
  }
};

void tell_refused(const char* modulePath, const char* fault) {
  static std::atomic<bool> told{false};
  if (!told.exchange(true)) {
    const ShownPath path(modulePath);
    std::fprintf(stderr,
                 "DEBUG: Printer profile %.1000s%s%s is not used (%s); colours by the built-in "
                 "model.\n",
                 path.text.data(), path.separator, kProfileName, fault);
  }
}

}  // namespace

void PrinterTable::load(const char* modulePath) noexcept {
  owners_.reset();
  ProfileFile file;
  const char* fault = file.open_in(modulePath);
  if (fault == nullptr && file.is_open() && !file.has_content(printer_model_profile())) {
    fault = take_owners_table(file, owners_);
  }
  if (fault != nullptr) {
    tell_refused(modulePath, fault);
  }
}
