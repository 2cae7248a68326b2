// SPDX-License-Identifier: Apache-2.0
//
// A sheet that the printer's answer is about to refuse, with no memory left for the words.
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdlib>
#include <new>
#include <string>

#include "protocol/print_image.h"
#include "tests/unit/bytes.h"
#include "tests/unit/capture.h"
#include "tests/unit/scripted_clock.h"
#include "tests/unit/scripted_connection.h"
#include "tests/unit/scripted_destinations.h"
#include "tests/unit/settings.h"

namespace {

/// When it is set, the first request for memory is refused that comes after the printer's two
/// answers have been read: that for the words of the refusal.
bool g_words_refused = false;

bool IsForWords() {
  return g_words_refused && Connection().pieces.empty() && Connection().journal.size() == 4;
}

}  // namespace

void* operator new(std::size_t size) {
  const bool refused = IsForWords();
  g_words_refused = g_words_refused && !refused;
  void* block = refused ? nullptr : std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  return block;
}

void operator delete(void* block) noexcept {
  std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
  std::free(block);
}

TEST(RefusedSheet, WithoutMemoryForTheWordsIsStillNotSent) {
  ResetConnection();
  SetDefaultReasons("none");
  SetLocalTime(2026, 7, 8, 9, 10, 11);
  Connection().Answer(Zeros(15));
  Connection().Answer(Bytes({0, 0, 0, 0, 0x01, 0x01}));
  std::array<unsigned char, 6> bits = {};
  tagMVBandImageParams image = {bits.data(), -6, {0, 0, 1, 1}};
  const tagPRINTSETTING settings = SettingsOf10x15();
  Capture out(stdout);
  Capture err(stderr);
  g_words_refused = true;
  const bool sent = print_image(&settings, &image);
  EXPECT_FALSE(g_words_refused);
  const std::string log = err.Text();
  EXPECT_FALSE(sent);
  EXPECT_EQ(out.Arrived().size(), 8U + 512U);  // the status request and the query
  EXPECT_EQ(log.substr(log.find("STATE: +paused")),
            "STATE: +paused\n"
            "ERROR: pagesize-inkribbon-unmuch 0x0101\n"
            "DEBUG: ExaminePage() Error\n");
  EXPECT_EQ(Connection().journal.back(), "sleep 1 0.0, 520 sent");
}
