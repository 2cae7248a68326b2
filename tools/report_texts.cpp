// SPDX-License-Identifier: Apache-2.0
#include "tools/report_texts.h"

#include <archive.h>
#include <cups/cups.h>
#include <cups/ppd.h>
#include <sys/utsname.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <memory>
#include <string_view>

#include "tools/device_connection.h"
#include "tools/plain_text.h"

namespace tools {
namespace {

constexpr std::array<std::string_view, 20> kQueueAttributes = {"copies-default",
                                                               "cups-version",
                                                               "job-hold-until-default",
                                                               "job-sheets-default",
                                                               "media-default",
                                                               "orientation-requested-default",
                                                               "port-monitor",
                                                               "print-color-mode-default",
                                                               "print-quality-default",
                                                               "printer-commands",
                                                               "printer-error-policy",
                                                               "printer-is-accepting-jobs",
                                                               "printer-is-shared",
                                                               "printer-make-and-model",
                                                               "printer-resolution-default",
                                                               "printer-state",
                                                               "printer-state-change-time",
                                                               "printer-state-reasons",
                                                               "printer-type",
                                                               "queued-job-count"};

constexpr std::array<std::string_view, 43> kJobAttributes = {"ColorModel",
                                                             "Collate",
                                                             "collate",
                                                             "copies",
                                                             "crop-to-fit",
                                                             "cupsPrintQuality",
                                                             "document-format",
                                                             "document-format-detected",
                                                             "document-format-supplied",
                                                             "fill",
                                                             "fit-to-page",
                                                             "fitplot",
                                                             "job-hold-until",
                                                             "job-id",
                                                             "job-impressions-completed",
                                                             "job-k-octets",
                                                             "job-media-sheets-completed",
                                                             "job-printer-state-message",
                                                             "job-printer-state-reasons",
                                                             "job-priority",
                                                             "job-state",
                                                             "job-state-reasons",
                                                             "landscape",
                                                             "media",
                                                             "mirror",
                                                             "multiple-document-handling",
                                                             "natural-scaling",
                                                             "number-of-documents",
                                                             "number-up",
                                                             "orientation-requested",
                                                             "output-order",
                                                             "outputorder",
                                                             "page-ranges",
                                                             "position",
                                                             "ppi",
                                                             "print-color-mode",
                                                             "print-quality",
                                                             "print-scaling",
                                                             "scaling",
                                                             "sides",
                                                             "time-at-completed",
                                                             "time-at-creation",
                                                             "time-at-processing"};

template <std::size_t N>
bool is_one_of(std::string_view name, const std::array<std::string_view, N>& names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

std::string value_of(ipp_attribute_t* attribute) {
  std::array<char, 2048> value{};
  ippAttributeString(attribute, value.data(), value.size());
  return plain_text(value.data(), value.size());
}

std::string attribute_line(ipp_attribute_t* attribute) {
  return plain_text(ippGetName(attribute)) + ": " + value_of(attribute) + "\n";
}

// The attributes that are wanted, sorted by name, one on each line.
template <typename IsWanted>
std::string attribute_lines(ipp_t* attributes, const IsWanted& is_wanted) {
  std::vector<std::string> lines;
  for (ipp_attribute_t* attribute = ippFirstAttribute(attributes); attribute != nullptr;
       attribute = ippNextAttribute(attributes)) {
    const char* const name = ippGetName(attribute);
    if (name != nullptr && is_wanted(name)) {
      lines.push_back(attribute_line(attribute));
    }
  }
  std::sort(lines.begin(), lines.end());
  std::string text;
  for (const std::string& line : lines) {
    text += line;
  }
  return text;
}

// "Debian GNU/Linux 12 (bookworm)"
std::string system_name() {
  std::ifstream release("/etc/os-release");
  constexpr std::string_view kKey = "PRETTY_NAME=";
  for (std::string line; std::getline(release, line);) {
    if (line.starts_with(kKey)) {
      line.erase(0, kKey.size());
      std::erase(line, '"');
      return plain_text(line);
    }
  }
  return "unknown";
}

struct ClosePpd {
  void operator()(ppd_file_t* ppd) const { ppdClose(ppd); }
};

std::string text_of(const char* text) {
  return plain_text(text != nullptr ? text : "");
}

void add_option(const ppd_option_t& option, PpdText& ppd) {
  ppd.options.emplace_back(option.keyword);
  ppd.text += plain_text(option.keyword) + ":";
  for (int i = 0; i < option.num_choices; ++i) {
    const std::string choice = plain_text(option.choices[i].choice);
    const bool is_default = std::string_view(option.defchoice) == option.choices[i].choice;
    ppd.text += is_default ? " [" + choice + "]" : " " + choice;
  }
  ppd.text += "\n";
}

void add_group(const ppd_group_t& group, PpdText& ppd) {
  for (int i = 0; i < group.num_options; ++i) {
    add_option(group.options[i], ppd);
  }
  for (int i = 0; i < group.num_subgroups; ++i) {
    add_group(group.subgroups[i], ppd);
  }
}

}  // namespace

std::string versions_text(const std::string& toolVersion, const std::string& cups) {
  utsname system{};
  uname(&system);
  std::string text = "tqr7: " + toolVersion + "\n";
  text += "CUPS, the scheduler: " + (cups.empty() ? "unknown" : plain_text(cups)) + "\n";
  text += "CUPS, this tool was built with: " + std::to_string(CUPS_VERSION_MAJOR) + "." +
          std::to_string(CUPS_VERSION_MINOR) + "." + std::to_string(CUPS_VERSION_PATCH) + "\n";
  text += "libarchive: " + std::string(archive_version_details()) + "\n";
  text += "operating system: " + system_name() + "\n";
  text += "kernel: " + plain_text(system.sysname) + " " + plain_text(system.release) + " " +
          plain_text(system.machine) + "\n";
  return text;
}

std::string queue_text(ipp_t* attributes) {
  std::string text = attribute_lines(
      attributes, [](std::string_view name) { return is_one_of(name, kQueueAttributes); });
  const std::string uri = text_attribute(attributes, "device-uri");
  if (!uri.empty()) {
    text += "device-uri, in part: " + plain_text(without_private_parts(uri)) + "\n";
    text += "bidirectional connection: " + std::string(to_string(bidirectional(uri))) + "\n";
  }
  return text;
}

PpdText ppd_text(const std::string& path) {
  PpdText result;
  const std::unique_ptr<ppd_file_t, ClosePpd> ppd(ppdOpenFile(path.c_str()));
  if (ppd == nullptr) {
    result.text = "The PPD could not be read.\n";
    return result;
  }
  const ppd_attr_t* const version = ppdFindAttr(ppd.get(), "FileVersion", nullptr);
  result.text = "NickName: " + text_of(ppd->nickname) + "\n" +
                "FileVersion: " + text_of(version != nullptr ? version->value : nullptr) + "\n";
  for (int i = 0; i < ppd->num_filters; ++i) {
    result.text += "filter: " + text_of(ppd->filters[i]) + "\n";
  }
  result.text += "\nOptions, the default choice in brackets:\n";
  for (int i = 0; i < ppd->num_groups; ++i) {
    add_group(ppd->groups[i], result);
  }
  return result;
}

std::string job_text(ipp_t* attributes, const std::vector<std::string>& ppdOptions) {
  return attribute_lines(attributes, [&](std::string_view name) {
    return is_one_of(name, kJobAttributes) ||
           std::find(ppdOptions.begin(), ppdOptions.end(), name) != ppdOptions.end();
  });
}

std::string text_attribute(ipp_t* attributes, const char* name) {
  ipp_attribute_t* const attribute = ippFindAttribute(attributes, name, IPP_TAG_ZERO);
  const char* const text = attribute != nullptr ? ippGetString(attribute, 0, nullptr) : nullptr;
  return text != nullptr ? text : "";
}

}  // namespace tools
