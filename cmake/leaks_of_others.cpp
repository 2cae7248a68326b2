// SPDX-License-Identifier: Apache-2.0
//
// What a build with the address sanitizer does not count as leaks of ours, in each of its programs:
// CUPS 2.4 never frees the presets of a PPD (three for ours, once a job), nor the C library the
// search path of LOCPATH. Of a library without frame pointers the sanitizer sees the innermost
// function alone, and to unwind further at each request would take CI minutes.

// The names are the sanitizer's.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" const char* __lsan_default_options();
extern "C" const char* __lsan_default_suppressions();

// A list of what was passed over would stand in the log that a test compares.
extern "C" const char* __lsan_default_options() {
  return "print_suppressions=0";
}

extern "C" const char* __lsan_default_suppressions() {
  return "leak:cupsAddOption\nleak:__argz_add_sep\n";
}
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
