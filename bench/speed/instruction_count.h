// SPDX-License-Identifier: Apache-2.0
//
// How many instructions a program runs in user mode: the loader's, the libraries' and its own.
// Unlike time, the number is the same in every run. Counted by valgrind's callgrind, which is
// installed with valgrind.
//
// The processor is then the one that valgrind plays: at most AVX2, whatever this computer has. A
// string instruction (rep movsb) counts once for every byte there, so the C library is told to move
// blocks by its loops of vectors, as on a processor without fast ones.
#ifndef TQR7_BENCH_SPEED_INSTRUCTION_COUNT_H
#define TQR7_BENCH_SPEED_INSTRUCTION_COUNT_H

#include <cstdint>
#include <map>
#include <string>

#include "bench/speed/meter.h"

namespace bench {

struct InstructionCount {
  std::uint64_t total = 0;
  /// By the program or library that the instructions lie in, without its folder.
  std::map<std::string, std::uint64_t> by_file = {};
};

/// Counts one run. Throws std::runtime_error for a run that is void, as measure() does, and where
/// there is no count.
InstructionCount count_instructions(MeteredRun run);

/// Reads callgrind's output. Throws std::runtime_error for another text.
InstructionCount read_callgrind(const std::string& text);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_INSTRUCTION_COUNT_H
