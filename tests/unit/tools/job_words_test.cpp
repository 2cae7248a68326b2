// SPDX-License-Identifier: Apache-2.0
//
// The words of a job that do not go into a bug report.
#include "tools/personal_words.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

struct DeleteIpp {
  void operator()(ipp_t* ipp) const { ippDelete(ipp); }
};

// A text with the words of a job replaced that came from a phone to one of two printers.
std::string without_words_of_job(const std::string& text) {
  const std::unique_ptr<ipp_t, DeleteIpp> job(ippNew());
  const auto add = [&job](ipp_tag_t tag, const char* name, const char* value) {
    ippAddString(job.get(), IPP_TAG_JOB, tag, name, nullptr, value);
  };
  ippAddInteger(job.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", 12);
  add(IPP_TAG_NAME, "job-name", "Erna am See");
  add(IPP_TAG_NAME, "document-name-supplied", "IMG_2024.jpg");
  add(IPP_TAG_NAME, "job-originating-user-name", "erna");
  add(IPP_TAG_NAME, "job-originating-host-name", "phone.example.org");
  add(IPP_TAG_KEYWORD, "media", "RQ_10x15");
  return tools::words_of_job(job.get(), {"socket://tqr7.lan:9100/", "socket://192.168.1.7",
                                         "usb://CORVANTIEL/TQR7", "no address"})
      .Without(text);
}

}  // namespace

TEST(WordsOfJob, AreItsTitleAndItsDocuments) {
  EXPECT_EQ(without_words_of_job("of Erna am See, IMG_2024.jpg"), "of (title), (title)");
}

TEST(WordsOfJob, AreItsUserAndTheMachineThatItCameFrom) {
  EXPECT_EQ(without_words_of_job("erna@phone.example.org, phone, phones"),
            "(user)@(host), (host), phones");
}

TEST(WordsOfJob, AreTheMachinesOfThePrinters) {
  EXPECT_EQ(without_words_of_job("Looking up \"tqr7.lan\"..., tqr7, 192.168.1.7, 192"),
            "Looking up \"(printer)\"..., (printer), (printer), 192");
}

TEST(WordsOfJob, AreNoOtherAttributes) {
  EXPECT_EQ(without_words_of_job("RQ_10x15 12"), "RQ_10x15 12");
}
