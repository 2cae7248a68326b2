// SPDX-License-Identifier: Apache-2.0
//
// For functions of this program that take the place of a library's: a test scripts them, and for
// all other tests of the program they pass on to the real ones.
#ifndef TQR7_TESTS_UNIT_STAND_IN_H
#define TQR7_TESTS_UNIT_STAND_IN_H

#include <dlfcn.h>
#include <gtest/gtest.h>

/// The library's own function of that name.
template <typename Function>
Function* RealFunction(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// Has `restore` called after each test of the program, so that no script outlives its test. To be
/// kept in a constant of the stand-in's file; it is always true.
inline bool AfterEachTest(void (*restore)()) {
  class Restoring : public testing::EmptyTestEventListener {
   public:
    explicit Restoring(void (*function)()) : function_(function) {}
    void OnTestEnd(const testing::TestInfo& /*test*/) override { function_(); }

   private:
    void (*function_)();
  };
  testing::UnitTest::GetInstance()->listeners().Append(new Restoring(restore));
  return true;
}

#endif  // TQR7_TESTS_UNIT_STAND_IN_H
