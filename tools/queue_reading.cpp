// SPDX-License-Identifier: Apache-2.0
#include "tools/queue_reading.h"

#include <cups/cups.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace tools {
namespace {

// One attribute of an answer. It may have any type, so each value is read only if the type is
// right.
class Attribute {
 public:
  explicit Attribute(ipp_attribute_t* attribute)
      : attribute_(attribute), name_(ippGetName(attribute)) {}

  bool Is(const char* name) const { return std::strcmp(name_, name) == 0; }

  void To(std::string& value) const {
    const char* const text = IsText() ? ippGetString(attribute_, 0, nullptr) : nullptr;
    if (text != nullptr) {
      value = text;
    }
  }

  void To(std::vector<std::string>& values) const {
    if (!IsText()) {
      return;
    }
    values.clear();
    for (int i = 0; i < ippGetCount(attribute_); ++i) {
      const char* const text = ippGetString(attribute_, i, nullptr);
      values.emplace_back(text != nullptr ? text : "");
    }
  }

  void To(int& value) const {
    const ipp_tag_t tag = ippGetValueTag(attribute_);
    if (tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM) {
      value = ippGetInteger(attribute_, 0);
    }
  }

  void To(std::int64_t& value) const {
    int number = 0;
    To(number);
    value = std::max(number, 0);
  }

  void To(bool& value) const {
    if (ippGetValueTag(attribute_) == IPP_TAG_BOOLEAN) {
      value = ippGetBoolean(attribute_, 0) != 0;
    }
  }

 private:
  bool IsText() const {
    constexpr std::array kTags = {IPP_TAG_NAME,     IPP_TAG_NAMELANG, IPP_TAG_TEXT,
                                  IPP_TAG_TEXTLANG, IPP_TAG_KEYWORD,  IPP_TAG_URI,
                                  IPP_TAG_MIMETYPE};
    return std::find(kTags.begin(), kTags.end(), ippGetValueTag(attribute_)) != kTags.end();
  }

  ipp_attribute_t* attribute_;
  const char* name_;
};

// Calls take(group number, attribute) for each attribute with that group tag. Attributes that
// follow each other form one group.
template <typename Take>
void for_each_in_groups(ipp_t* response, ipp_tag_t tag, const Take& take) {
  std::size_t group = 0;
  bool within = false;
  for (ipp_attribute_t* attribute = ippFirstAttribute(response); attribute != nullptr;
       attribute = ippNextAttribute(response)) {
    // An attribute without a name separates two groups.
    const bool belongs = ippGetName(attribute) != nullptr && ippGetGroupTag(attribute) == tag;
    if (belongs && !within) {
      ++group;
    }
    within = belongs;
    if (belongs) {
      take(group - 1, Attribute(attribute));
    }
  }
}

QueueState queue_state(int number) {
  const bool known = number >= static_cast<int>(QueueState::Idle) &&
                     number <= static_cast<int>(QueueState::Stopped);
  return known ? static_cast<QueueState>(number) : QueueState::Unknown;
}

JobState job_state(int number) {
  const bool known = number >= static_cast<int>(JobState::Pending) &&
                     number <= static_cast<int>(JobState::Completed);
  return known ? static_cast<JobState>(number) : JobState::Unknown;
}

void read_into(Queue& queue, const Attribute& attribute) {
  if (attribute.Is("printer-name")) {
    attribute.To(queue.name);
  } else if (attribute.Is("member-names")) {
    attribute.To(queue.members);
  } else if (attribute.Is("printer-type")) {
    int type = 0;
    attribute.To(type);
    queue.isClass = (static_cast<unsigned>(type) & CUPS_PRINTER_CLASS) != 0;
  } else if (attribute.Is("printer-make-and-model")) {
    attribute.To(queue.makeAndModel);
  } else if (attribute.Is("printer-state")) {
    int number = 0;
    attribute.To(number);
    queue.state = queue_state(number);
  } else if (attribute.Is("printer-state-message")) {
    attribute.To(queue.message);
  } else if (attribute.Is("printer-state-reasons")) {
    attribute.To(queue.reasons);
  } else if (attribute.Is("printer-state-change-time")) {
    attribute.To(queue.changedAt);
  } else if (attribute.Is("printer-is-accepting-jobs")) {
    attribute.To(queue.accepting);
  } else if (attribute.Is("device-uri")) {
    attribute.To(queue.deviceUri);
  } else if (attribute.Is("printer-error-policy")) {
    attribute.To(queue.errorPolicy);
  } else if (attribute.Is("printer-commands")) {
    attribute.To(queue.commands);
  }
}

void read_into(Job& job, const Attribute& attribute) {
  if (attribute.Is("job-id")) {
    attribute.To(job.id);
  } else if (attribute.Is("job-printer-uri")) {
    std::string uri;
    attribute.To(uri);
    job.queue = queue_of_uri(uri.c_str());
  } else if (attribute.Is("job-state")) {
    int number = 0;
    attribute.To(number);
    job.state = job_state(number);
  } else if (attribute.Is("job-state-reasons")) {
    attribute.To(job.reasons);
  } else if (attribute.Is("job-printer-state-message")) {
    attribute.To(job.printerMessage);
  } else if (attribute.Is("job-printer-state-reasons")) {
    attribute.To(job.printerReasons);
  } else if (attribute.Is("time-at-processing")) {
    attribute.To(job.processingSince);
  } else if (attribute.Is("job-impressions-completed")) {
    attribute.To(job.impressions);
  } else if (attribute.Is("document-format") || attribute.Is("document-format-detected")) {
    // There is a detected format only for a file that was sent without one.
    attribute.To(job.format);
  }
}

template <typename Record>
std::vector<Record> read_records(ipp_t* response, ipp_tag_t tag) {
  std::vector<Record> records;
  for_each_in_groups(response, tag, [&](std::size_t group, const Attribute& attribute) {
    records.resize(std::max(records.size(), group + 1));
    read_into(records[group], attribute);
  });
  return records;
}

}  // namespace

std::string queue_of_uri(const char* uri) {
  char scheme[32];
  char user[256];
  char host[256];
  char resource[1024];
  int port = 0;
  const http_uri_status_t status =
      httpSeparateURI(HTTP_URI_CODING_ALL, uri, scheme, sizeof scheme, user, sizeof user, host,
                      sizeof host, &port, resource, sizeof resource);
  if (status < HTTP_URI_STATUS_OK) {
    return {};
  }
  const char* const slash = std::strrchr(resource, '/');
  return slash != nullptr ? slash + 1 : "";
}

QueueList read_queues(ipp_t* response) {
  QueueList list{read_records<Queue>(response, IPP_TAG_PRINTER)};
  std::erase_if(list.queues, [](const Queue& queue) { return queue.name.empty(); });
  std::sort(list.queues.begin(), list.queues.end(),
            [](const Queue& left, const Queue& right) { return left.name < right.name; });
  return list;
}

void read_jobs(ipp_t* response, QueueList& list) {
  std::vector<Job> jobs = read_records<Job>(response, IPP_TAG_JOB);
  std::sort(jobs.begin(), jobs.end(),
            [](const Job& left, const Job& right) { return left.id < right.id; });
  for (const Job& job : jobs) {
    for (Queue& queue : list.queues) {
      if (job.id > 0 && queue.name == job.queue) {
        queue.jobs.push_back(job);
      }
    }
  }
}

}  // namespace tools
