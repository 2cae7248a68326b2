// SPDX-License-Identifier: Apache-2.0
#include "simulator/contact_sheet.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "simulator/wording.h"

namespace simulator {
namespace {

constexpr std::size_t kErrorsMost = 1000;

const char* const kHead =
    "<!DOCTYPE html>\n"
    "<html lang=\"en\">\n"
    "<head>\n"
    "<meta charset=\"utf-8\">\n"
    "<title>TQR7 sheets</title>\n"
    "<style>\n"
    "body { font-family: sans-serif; margin: 2em; background: #eee; }\n"
    "section { background: #fff; padding: 1em; margin-bottom: 1em; overflow: auto; }\n"
    "section img { float: left; margin: 0 1em 1em 0; border: 1px solid #999; }\n"
    "table { float: left; margin-right: 2em; border-collapse: collapse; font-size: small; }\n"
    "caption, th { text-align: left; }\n"
    "th { font-weight: normal; padding-right: 1em; }\n"
    ".errors { color: #a00; }\n"
    "</style>\n"
    "</head>\n"
    "<body>\n";

std::string table(const char* caption, const std::vector<decoder::NamedField>& fields) {
  std::string html = std::string("<table>\n<caption>") + caption + "</caption>\n";
  for (const decoder::NamedField& field : fields) {
    html += "<tr><th>" + escaped(field.name) + "</th><td>" + escaped(field.value) + "</td></tr>\n";
  }
  return html + "</table>\n";
}

std::string section(const ContactEntry& entry) {
  return "<section>\n<h2>" + escaped(entry.title) + "</h2>\n<p>" + escaped(entry.words) +
         "</p>\n<a href=\"" + escaped(entry.file) + "\"><img src=\"" + escaped(entry.thumbnail) +
         "\" alt=\"" + escaped(entry.file) + "\"></a>\n" + table("Job header", entry.job) +
         table("Image header", entry.image) + "</section>\n";
}

std::string write_file(const std::filesystem::path& path, const std::string& text) {
  std::FILE* const file = std::fopen(path.c_str(), "we");
  if (file == nullptr) {
    return error_words(errno);
  }
  const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
  const int writeError = errno;
  const bool closed = std::fclose(file) == 0;
  return written && closed ? "" : error_words(written ? errno : writeError);
}

}  // namespace

std::string escaped(const std::string& text) {
  std::string html;
  for (const char character : text) {
    switch (character) {
      case '&':
        html += "&amp;";
        break;
      case '<':
        html += "&lt;";
        break;
      case '>':
        html += "&gt;";
        break;
      case '"':
        html += "&quot;";
        break;
      case '\'':
        html += "&#39;";
        break;
      default:
        html += character;
    }
  }
  return html;
}

std::string ContactSheet::Begin(const std::filesystem::path& folder) {
  folder_ = folder;
  changed_ = true;
  return Write();
}

std::string ContactSheet::Add(const ContactEntry& entry) {
  sheets_.push_back(section(entry));
  changed_ = true;
  return Write();
}

void ContactSheet::AddError(const std::string& line) {
  changed_ = true;
  if (errors_.size() < kErrorsMost) {
    errors_.push_back("<li>" + escaped(line) + "</li>\n");
  } else {
    ++furtherErrors_;
  }
}

std::string ContactSheet::Page() const {
  const std::uint64_t errors = errors_.size() + furtherErrors_;
  std::string html = kHead;
  html += "<h1>" + counted(sheets_.size(), "sheet") + ", " + counted(errors, "error") + "</h1>\n";
  if (errors > 0) {
    html += "<section class=\"errors\">\n<ul>\n";
    for (const std::string& error : errors_) {
      html += error;
    }
    html += "</ul>\n";
    if (furtherErrors_ > 0) {
      html += "<p>" + counted(furtherErrors_, "further error") + "</p>\n";
    }
    html += "</section>\n";
  }
  for (const std::string& sheet : sheets_) {
    html += sheet;
  }
  return html + "</body>\n</html>\n";
}

std::string ContactSheet::Write() {
  if (!changed_) {
    return {};
  }
  const std::filesystem::path part = folder_ / (".index-" + std::to_string(::getpid()) + ".part");
  std::string why = write_file(part, Page());
  if (why.empty() && std::rename(part.c_str(), (folder_ / "index.html").c_str()) != 0) {
    why = error_words(errno);
  }
  if (!why.empty()) {
    ::unlink(part.c_str());
    return why;
  }
  changed_ = false;
  return {};
}

}  // namespace simulator
