// SPDX-License-Identifier: Apache-2.0
#include "language/messages.h"

#ifdef TQR7_HAS_GETTEXT
#include <libintl.h>
#endif
#ifdef __APPLE__
#include <mach-o/dyld.h>
#endif

#include <array>
#include <clocale>
#include <cstdarg>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace language {
namespace {

int gEnglish = 0;  // how many English objects there are
std::string gDecimalSign = ".";

#ifdef TQR7_HAS_GETTEXT

namespace fs = std::filesystem;

// The program's own file; empty where the system does not say it.
fs::path own_file() {
  std::error_code error;
#ifdef __APPLE__
  std::array<char, 4096> path{};
  auto size = static_cast<std::uint32_t>(path.size());
  return ::_NSGetExecutablePath(path.data(), &size) == 0 ? fs::canonical(path.data(), error)
                                                         : fs::path();
#else
  return fs::read_symlink("/proc/self/exe", error);
#endif
}

// The folder that has LANGUAGE/LC_MESSAGES/tqr7.mo: beside the program, installed or in a build
// folder, or else the one that was named when the program was built.
std::string locale_folder() {
  const fs::path programs = own_file().parent_path();
  if (!programs.empty()) {
    std::error_code error;
    for (const fs::path& folder :
         {programs / "share" / "locale", programs.parent_path() / "share" / "locale"}) {
      if (fs::is_directory(folder, error)) {
        return folder.string();
      }
    }
  }
  return TQR7_LOCALE_DIR;
}

#endif

}  // namespace

void begin() {
  std::setlocale(LC_ALL, "");
  gDecimalSign = std::localeconv()->decimal_point;
  // Numbers in options, settings and JSON have a decimal point in every country.
  std::setlocale(LC_NUMERIC, "C");
#ifdef TQR7_HAS_GETTEXT
  ::bindtextdomain(TQR7_TEXT_DOMAIN, locale_folder().c_str());
  ::bind_textdomain_codeset(TQR7_TEXT_DOMAIN, "UTF-8");
#endif
}

const char* _(const char* english) {
#ifdef TQR7_HAS_GETTEXT
  // For an empty message, gettext returns the catalogue's head.
  return gEnglish > 0 || *english == '\0' ? english : ::dgettext(TQR7_TEXT_DOMAIN, english);
#else
  return english;
#endif
}

const char* _n(const char* one, const char* several, std::size_t count) {
#ifdef TQR7_HAS_GETTEXT
  if (gEnglish == 0) {
    return ::dngettext(TQR7_TEXT_DOMAIN, one, several, count);
  }
#endif
  return count == 1 ? one : several;
}

std::string filled(const char* format, ...) {
  std::va_list values;
  va_start(values, format);
  std::va_list again;
  va_copy(again, values);
  const int length = std::vsnprintf(nullptr, 0, format, values);
  va_end(values);
  std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
  std::vsnprintf(text.data(), text.size() + 1, format, again);
  va_end(again);
  return text;
}

std::string decimal(double value, int places) {
  std::string text = filled("%.*f", places, value);
  const std::size_t point = text.find('.');
  if (gEnglish == 0 && point != std::string::npos) {
    text.replace(point, 1, gDecimalSign);
  }
  return text;
}

English::English(bool wanted) : wanted_(wanted) {
  gEnglish += wanted_ ? 1 : 0;
}

English::~English() {
  gEnglish -= wanted_ ? 1 : 0;
}

}  // namespace language
