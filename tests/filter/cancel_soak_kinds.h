// SPDX-License-Identifier: Apache-2.0
//
// The kinds of jobs that the soak cancels: what the reader and the printer do, and when SIGTERM
// comes.
#ifndef TQR7_TESTS_FILTER_CANCEL_SOAK_KINDS_H
#define TQR7_TESTS_FILTER_CANCEL_SOAK_KINDS_H

#include <array>
#include <random>
#include <string>

#include "tests/filter/filter_process.h"
#include "tests/papers.h"

namespace cancel_soak {

/// What is printed.
struct Sheets {
  const filter_test::Paper* paper = nullptr;
  bool matte = false;

  bool joined() const { return paper == &filter_test::kJoined; }
  std::string Words() const;
};

/// What the printer does once the first page is there.
enum class Printer { Ready, Busy, Silent };

/// What comes on standard input.
enum class Input {
  Job,        ///< all pages, and their end
  NoPage,     ///< the beginning of a job whose first page does not come
  NoEndSoon,  ///< all pages; their end comes only before SIGTERM
};

struct Kind {
  const char* words;
  Printer printer;
  int (*pages)(const Sheets& sheets);
  Input input;
  /// Plays to the moment at which SIGTERM is due. `undisturbed`: how long the job lasts without it.
  void (*play)(filter_test::FilterProcess& filter, std::mt19937& random, double undisturbed);
  bool resumes;  ///< the reader takes everything only some time after SIGTERM
};

extern const std::array<Kind, 7> kKinds;

/// The job, not cancelled.
filter_test::Job MakeJob(const Kind& kind, const Sheets& sheets);

/// A moment up to this many seconds.
std::chrono::microseconds RandomTime(std::mt19937& random, double seconds);

}  // namespace cancel_soak

#endif  // TQR7_TESTS_FILTER_CANCEL_SOAK_KINDS_H
