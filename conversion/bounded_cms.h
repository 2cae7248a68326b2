// SPDX-License-Identifier: Apache-2.0
//
// Little CMS with a limit on its memory, and without messages. A profile from outside is read with
// it, because a small file can ask for large tables.
#ifndef TQR7_CONVERSION_BOUNDED_CMS_H
#define TQR7_CONVERSION_BOUNDED_CMS_H

#include <lcms2.h>
#include <lcms2_plugin.h>

#include <array>
#include <csetjmp>
#include <cstddef>
#include <cstdint>
#include <span>

/// A separate Little CMS context for one piece of work. It does not touch the context that the rest
/// of the process may use, writes no message, and its memory is limited.
///
/// Little CMS does not check every allocation, and sometimes uses a null pointer. So a request that
/// cannot be granted never returns: run() ends the work at that point. All memory belongs to this
/// object, which releases it with everything that the work has left open.
class BoundedCms {
 public:
  /// `limit`: bytes that the work may take, beside kBeginning.
  explicit BoundedCms(std::size_t limit);
  ~BoundedCms();
  BoundedCms(const BoundedCms&) = delete;
  BoundedCms& operator=(const BoundedCms&) = delete;

  /// Calls `work(context, argument)` and returns its result, or `noMemory` when the limit is too
  /// low for it. The work may end at any call of Little CMS without running destructors: no object
  /// that has one may exist during such a call.
  const char* run(const char* (*work)(cmsContext context, void* argument), void* argument,
                  const char* noMemory);

 private:
  struct Block;
  /// The context's own memory comes from here, so that making one cannot fail.
  static constexpr std::size_t kBeginning = 32768;

  static void* take(cmsContext context, cmsUInt32Number size);
  static void give_back(cmsContext context, void* taken);
  static void* resize(cmsContext context, void* taken, cmsUInt32Number size);

  Block* allocate(std::uint64_t bytes);
  void release(Block* block);

  alignas(std::max_align_t) std::array<unsigned char, kBeginning> beginning_;
  std::size_t beginningUsed_ = 0;
  std::size_t left_;
  Block* first_ = nullptr;  ///< all blocks outside beginning_
  bool running_ = false;
  std::jmp_buf refusal_{};
  cmsContext context_ = nullptr;
};

/// Bytes in memory, as a file for Little CMS. Little CMS's own file in memory would copy them. Must
/// outlive the profile that is opened with it.
class MemoryFile {
 public:
  MemoryFile(cmsContext context, std::span<const unsigned char> bytes);
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  cmsIOHANDLER* handler() { return &handler_; }

 private:
  static cmsUInt32Number read(cmsIOHANDLER* handler, void* buffer, cmsUInt32Number size,
                              cmsUInt32Number count);
  static cmsBool seek(cmsIOHANDLER* handler, cmsUInt32Number offset);
  static cmsUInt32Number tell(cmsIOHANDLER* handler);

  cmsIOHANDLER handler_{};
  std::span<const unsigned char> bytes_;
  std::size_t position_ = 0;
};

#endif  // TQR7_CONVERSION_BOUNDED_CMS_H
