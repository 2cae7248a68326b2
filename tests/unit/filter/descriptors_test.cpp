// SPDX-License-Identifier: Apache-2.0
//
// The scheduler's descriptors: what a filter finds there that was started without one of them. Each
// case runs in a process of its own.
#include "filter/descriptors.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>

namespace {

/// Closes the descriptor, reserves it, and exits with 0 when reading (or writing) it fails.
void CloseAndUse(int descriptor, bool read_it) {
  close(descriptor);
  reserve_scheduler_descriptors();
  char byte = 0;
  errno = 0;
  const ssize_t result = read_it ? read(descriptor, &byte, 1) : write(descriptor, &byte, 1);
  _exit(result == -1 && errno == EBADF && fcntl(descriptor, F_GETFD) != -1 ? 0 : 1);
}

/// Closes the descriptor, reserves it, and exits with 0 when a file opened later lies above it.
void CloseAndOpen(int descriptor) {
  close(descriptor);
  reserve_scheduler_descriptors();
  _exit(open("/dev/null", O_RDONLY) > 4 ? 0 : 1);
}

void ReserveWithAllOpen() {
  for (int descriptor = 0; descriptor < 5; ++descriptor) {
    dup2(open("/dev/null", O_RDWR), descriptor);
  }
  reserve_scheduler_descriptors();
  for (int descriptor = 0; descriptor < 5; ++descriptor) {
    if ((fcntl(descriptor, F_GETFL) & O_ACCMODE) != O_RDWR) {
      _exit(1);
    }
  }
  _exit(0);
}

/// Exits with 0 when the back channel, and it alone, does not wait for what is not there.
void UnblockBackChannel() {
  int ends[2];
  if (pipe(ends) != 0) {
    _exit(1);
  }
  for (int descriptor = 0; descriptor < 5; ++descriptor) {
    dup2(descriptor == 3 ? ends[0] : open("/dev/null", O_RDWR), descriptor);
  }
  unblock_back_channel();
  for (int descriptor = 0; descriptor < 5; ++descriptor) {
    if (((fcntl(descriptor, F_GETFL) & O_NONBLOCK) != 0) != (descriptor == 3)) {
      _exit(1);
    }
  }
  _exit(0);
}

void ReserveWithNoneOpen() {
  for (int descriptor = 0; descriptor < 5; ++descriptor) {
    close(descriptor);
  }
  reserve_scheduler_descriptors();
  for (int descriptor = 0; descriptor < 5; ++descriptor) {
    if (fcntl(descriptor, F_GETFD) == -1) {
      _exit(1);
    }
  }
  _exit(0);
}

}  // namespace

TEST(SchedulersDescriptors, ThoseThatAreOpenStayAsTheyAre) {
  EXPECT_EXIT(ReserveWithAllOpen(), testing::ExitedWithCode(0), "");
}

TEST(SchedulersDescriptors, TheBackChannelDoesNotWaitForWhatIsNotThere) {
  EXPECT_EXIT(UnblockBackChannel(), testing::ExitedWithCode(0), "");
}

TEST(SchedulersDescriptors, ThoseThatAreClosedAreTaken) {
  EXPECT_EXIT(ReserveWithNoneOpen(), testing::ExitedWithCode(0), "");
}

TEST(SchedulersDescriptors, AClosedInputCannotBeRead) {
  EXPECT_EXIT(CloseAndUse(0, true), testing::ExitedWithCode(0), "");
}

TEST(SchedulersDescriptors, AClosedOutputCannotBeWritten) {
  EXPECT_EXIT(CloseAndUse(1, false), testing::ExitedWithCode(0), "");
}

TEST(SchedulersDescriptors, AClosedLogCannotBeWritten) {
  EXPECT_EXIT(CloseAndUse(2, false), testing::ExitedWithCode(0), "");
}

TEST(SchedulersDescriptors, AClosedBackChannelCannotBeRead) {
  EXPECT_EXIT(CloseAndUse(3, true), testing::ExitedWithCode(0), "");
}

TEST(SchedulersDescriptors, AClosedSideChannelCannotBeWritten) {
  EXPECT_EXIT(CloseAndUse(4, false), testing::ExitedWithCode(0), "");
}

TEST(SchedulersDescriptors, AFileOpenedLaterTakesNoneOfTheirPlaces) {
  for (int descriptor = 0; descriptor < 5; ++descriptor) {
    EXPECT_EXIT(CloseAndOpen(descriptor), testing::ExitedWithCode(0), "") << descriptor;
  }
}
