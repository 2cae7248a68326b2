// SPDX-License-Identifier: Apache-2.0
//
// The start and the end of a page: its buffers, what SIGTERM does when, and a cancelled job.
#include "filter/filter_hooks.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <string>

#include "job/job_state.h"
#include "tests/unit/capture.h"
#include "tests/unit/failing_allocator.h"
#include "tests/unit/filter/job_fixture.h"
#include "tests/unit/settings.h"

namespace {

using FilterHooks = JobTest;

bool IsPlain(const struct sigaction& action) {
  for (int signal_number = 1; signal_number < NSIG; ++signal_number) {
    if (sigismember(&action.sa_mask, signal_number) == 1) {
      return false;
    }
  }
  // The C library marks actions with a flag of its own on some machines.
  constexpr auto kFlags = static_cast<unsigned>(SA_RESTART | SA_NODEFER | SA_SIGINFO | SA_ONSTACK |
                                                SA_NOCLDSTOP | SA_NOCLDWAIT) |
                          static_cast<unsigned>(SA_RESETHAND);
  return (static_cast<unsigned>(action.sa_flags) & kFlags) == 0;
}

/// Runs `body` in a process of its own and gives its wait status and what it wrote.
template <typename Body>
int RunInChild(Body body, std::string* out_text, std::string* err_text) {
  Capture out(stdout);
  Capture err(stderr);
  const pid_t child = fork();
  if (child == 0) {
    body();
    _exit(99);  // the body should have ended the process
  }
  int status = -1;
  waitpid(child, &status, 0);
  *err_text = err.Text();
  *out_text = out.Text();
  return status;
}

}  // namespace

TEST_F(FilterHooks, APageStartsWithALineBufferAndAWhitePage) {
  const cups_page_header_t header = Header(1000);
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  const long before = LiveArrays();
  StartPage(nullptr, &header, &settings);
  EXPECT_EQ(LiveArrays(), before + 2);
  ASSERT_NE(Planes[0], nullptr);
  std::fill_n(Planes[0], 1000, static_cast<unsigned char>(1));  // under a sanitizer: all there
  ASSERT_NE(Planes[1], nullptr);
  EXPECT_EQ(Bytes(Planes[1], 24), std::string(24, '\xFF'));
  EXPECT_EQ(LastArraySize(), 24U);
}

TEST_F(FilterHooks, APageStartsWritingNothing) {
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  Capture out(stdout);
  Capture err(stderr);
  StartPage(nullptr, &header, &settings);
  const std::string messages = err.Text();
  EXPECT_EQ(out.Text(), "");
  EXPECT_EQ(messages, "");
}

TEST_F(FilterHooks, APageStartsAtLineZero) {
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  curLine = 17;
  StartPage(nullptr, &header, &settings);
  EXPECT_EQ(curLine, 0);
}

TEST_F(FilterHooks, FromAPagesStartSigtermCancelsTheJob) {
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  StartPage(nullptr, &header, &settings);
  const struct sigaction action = TermAction();
  EXPECT_EQ(action.sa_handler, &CancelJob);
  EXPECT_TRUE(IsPlain(action));
}

TEST_F(FilterHooks, AfterAPagesEndSigtermIsIgnored) {
  const tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  RunPage(settings);
  const struct sigaction action = TermAction();
  EXPECT_EQ(action.sa_handler, SIG_IGN);
  EXPECT_TRUE(IsPlain(action));
}

TEST_F(FilterHooks, AfterAPageThatFailedSigtermIsIgnoredToo) {
  NextConversions().push_back({3, 0, 0, 'x', 'm'});
  EXPECT_FALSE(RunPage(SettingsOfSmallSheet()).result);
  EXPECT_EQ(TermAction().sa_handler, SIG_IGN);
}

TEST_F(FilterHooks, TheNextPageCanBeCancelledAgain) {
  RunPage(SettingsOfSmallJoinedSheet());
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  StartPage(nullptr, &header, &settings);
  EXPECT_EQ(TermAction().sa_handler, &CancelJob);
}

TEST_F(FilterHooks, WithoutMemoryForThePageThereIsAnErrorAndNoBuffer) {
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  const long before = LiveArrays();
  Capture err(stderr);
  {
    const ArraysRefused refused(24);  // the line buffer can be had
    StartPage(nullptr, &header, &settings);
  }
  const std::string messages = err.Text();
  EXPECT_EQ(messages.substr(0, 7), "ERROR: ");
  EXPECT_EQ(messages.find('\n'), messages.size() - 1);
  EXPECT_EQ(Planes[0], nullptr);
  EXPECT_EQ(Planes[1], nullptr);
  EXPECT_EQ(LiveArrays(), before);
}

TEST_F(FilterHooks, WithoutMemoryForALineThereIsAnErrorAndNoBuffer) {
  const cups_page_header_t header = Header(0xFFFFFFFF);
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  const long before = LiveArrays();
  Capture err(stderr);
  {
    const ArraysRefused refused(1000);  // the page buffer can be had
    StartPage(nullptr, &header, &settings);
  }
  const std::string messages = err.Text();
  EXPECT_EQ(messages.substr(0, 7), "ERROR: ");
  EXPECT_EQ(messages.find('\n'), messages.size() - 1);
  EXPECT_EQ(Planes[0], nullptr);
  EXPECT_EQ(Planes[1], nullptr);
  EXPECT_EQ(LiveArrays(), before);
}

TEST_F(FilterHooks, APagesEndReleasesItsBuffers) {
  const long before = LiveArrays();
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  PrinterTakesASheet();
  EXPECT_TRUE(RunPage(settings).result);
  EXPECT_EQ(Planes[0], nullptr);
  EXPECT_EQ(Planes[1], nullptr);
  EXPECT_EQ(LiveArrays(), before);
}

TEST_F(FilterHooks, AFailedPagesEndReleasesItsBuffersToo) {
  const long before = LiveArrays();
  NextConversions().push_back({3, 0, 0, 'x', 'm'});
  EXPECT_FALSE(RunPage(SettingsOfSmallSheet()).result);
  EXPECT_EQ(Planes[0], nullptr);
  EXPECT_EQ(Planes[1], nullptr);
  EXPECT_EQ(LiveArrays(), before);
}

TEST_F(FilterHooks, APagesEndFlushesThePrintersStream) {
  NextConversions().push_back({3, 0, 0, 'x', 'm'});  // so that nothing else flushes
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  Capture out(stdout);
  Capture err(stderr);
  StartPage(nullptr, &header, &settings);
  std::fputs("tail", stdout);
  EndPage(&header, &settings, "/");
  const std::string arrived = out.Arrived();
  err.Text();
  out.Text();
  EXPECT_EQ(arrived, "tail");
}

TEST_F(FilterHooks, APageThatIsDroppedIsReleasedWithoutConversion) {
  const long before = LiveArrays();
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  Capture out(stdout);
  Capture err(stderr);
  StartPage(nullptr, &header, &settings);
  std::fputs("tail", stdout);
  const bool result = EndPage(nullptr, nullptr, nullptr);
  const std::string arrived = out.Arrived();
  const std::string messages = err.Text();
  out.Text();
  EXPECT_TRUE(result);
  EXPECT_EQ(arrived, "tail");
  EXPECT_EQ(messages, "");
  EXPECT_TRUE(ConversionCalls().empty());
  EXPECT_EQ(Planes[0], nullptr);
  EXPECT_EQ(Planes[1], nullptr);
  EXPECT_EQ(LiveArrays(), before);
  EXPECT_EQ(TermAction().sa_handler, SIG_IGN);
}

TEST_F(FilterHooks, DroppingAPageThatNeverStartedIsHarmless) {
  Capture out(stdout);
  const bool result = EndPage(nullptr, nullptr, nullptr);
  EXPECT_EQ(out.Text(), "");
  EXPECT_TRUE(result);
}

TEST_F(FilterHooks, ACancelledJobEndsWithStatusZeroAndFlushes) {
  std::string out;
  std::string err;
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  const int status = RunInChild(
      [&] {
        StartPage(nullptr, &header, &settings);
        std::fputs("tail", stdout);
        CancelJob(SIGTERM);
      },
      &out, &err);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  EXPECT_EQ(out, "tail");
  EXPECT_EQ(err, "");
}

TEST_F(FilterHooks, ACancelledJobLeavesAStreamAloneThatIsInUse) {
  // The signal cut into a write: the stream's buffer is half changed, and flushing it could hang.
  std::string out;
  std::string err;
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  const int status = RunInChild(
      [&] {
        StartPage(nullptr, &header, &settings);
        std::fputs("tail", stdout);
        const OutputCall under_way;
        CancelJob(SIGTERM);
      },
      &out, &err);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  EXPECT_EQ(out, "");
}

TEST_F(FilterHooks, SigtermWithinAPageEndsTheJobWithStatusZero) {
  std::string out;
  std::string err;
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  const int status = RunInChild(
      [&] {
        StartPage(nullptr, &header, &settings);
        std::raise(SIGTERM);
      },
      &out, &err);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  EXPECT_EQ(out, "");
  EXPECT_EQ(err, "");
}

TEST_F(FilterHooks, SigtermAfterAPageLeavesTheJobAlone) {
  std::string out;
  std::string err;
  const int status = RunInChild(
      [&] {
        RunPage(SettingsOfSmallJoinedSheet());
        std::raise(SIGTERM);
        _exit(42);
      },
      &out, &err);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 42) << status;
}

TEST_F(FilterHooks, SigtermWhileAWaitingSheetIsHeldPrintsNothingOfIt) {
  std::string out;
  std::string err;
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  const int status = RunInChild(
      [&] {
        StartPage(nullptr, &header, &settings);
        EndPage(&header, &settings, "/");
        StartPage(nullptr, &header, &settings);
        std::raise(SIGTERM);
      },
      &out, &err);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  EXPECT_EQ(out, "");
}

TEST_F(FilterHooks, SetupAndShutdownDoNothing) {
  Capture out(stdout);
  Capture err(stderr);
  ::Setup();
  ::Shutdown();
  const std::string messages = err.Text();
  EXPECT_EQ(out.Text(), "");
  EXPECT_EQ(messages, "");
}
