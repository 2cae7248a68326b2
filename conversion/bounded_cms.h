// SPDX-License-Identifier: Apache-2.0
//
// Little CMS with a limit to its memory and without a voice: what a profile from outside may be
// read with, since a small file can ask for large tables.
#ifndef TQR7_CONVERSION_BOUNDED_CMS_H
#define TQR7_CONVERSION_BOUNDED_CMS_H

#include <lcms2.h>
#include <lcms2_plugin.h>

#include <cstddef>
#include <memory>
#include <span>
#include <type_traits>

/// The memory of one context.
struct CmsBudget {
  std::size_t left;      ///< bytes that it may still take
  bool refused = false;  ///< a request was not granted, so that what it made may lack something
};

struct CmsContextDeleter {
  void operator()(cmsContext context) const { cmsDeleteContext(context); }
};
using CmsContext = std::unique_ptr<std::remove_pointer_t<cmsContext>, CmsContextDeleter>;

struct CmsProfileCloser {
  void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using CmsProfile = std::unique_ptr<void, CmsProfileCloser>;

struct CmsTransformDeleter {
  void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using CmsTransform = std::unique_ptr<void, CmsTransformDeleter>;

/// A context of its own for one piece of work: nothing it does touches the context that the rest of
/// the process may use, it writes no message, and it takes its memory out of `budget`, which must
/// outlive it. Null when there is no memory.
CmsContext make_bounded_context(CmsBudget& budget);

/// Bytes in memory as a file to Little CMS, which for its own kind of such file takes a second copy
/// of them. Must outlive the profile that is opened with it.
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
