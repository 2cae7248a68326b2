// SPDX-License-Identifier: Apache-2.0
//
// What a build with the address sanitizer does not count as leaks of ours, in each of its programs:
// CUPS 2.4 never frees the presets of a PPD (three for ours, once a job), nor the C library the
// search path of LOCPATH. Libraries without frame pointers are told from each other by their unwind
// tables alone, which takes time: hence no more than six frames.

// The names are the sanitizer's.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" const char* __asan_default_options();
extern "C" const char* __lsan_default_options();
extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __asan_default_options() {
  return "fast_unwind_on_malloc=0:malloc_context_size=6";
}

// A list of what was passed over would stand in the log that a test compares.
extern "C" const char* __lsan_default_options() {
  return "print_suppressions=0";
}

extern "C" const char* __lsan_default_suppressions() {
  return "leak:_ppdCacheCreateWithPPD\nleak:__argz_add_sep\n";
}
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
