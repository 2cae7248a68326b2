// SPDX-License-Identifier: Apache-2.0
//
// The program whose precompiled headers the tests use; it does nothing itself.
int main() {
  return 0;
}
