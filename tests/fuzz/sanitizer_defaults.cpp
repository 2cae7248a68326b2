// SPDX-License-Identifier: Apache-2.0
//
// How the sanitizers treat every target: memory that an input asks for beyond 256 MiB is refused as
// a full machine would, and that is no finding; what stays unreleased is one.

// The name is the sanitizer's.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" const char* __asan_default_options();

extern "C" const char* __asan_default_options() {
  return "allocator_may_return_null=1:max_allocation_size_mb=256:quarantine_size_mb=16:"
         "detect_stack_use_after_return=1:strict_string_checks=1";
}
