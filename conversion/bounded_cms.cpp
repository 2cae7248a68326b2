// SPDX-License-Identifier: Apache-2.0
#include "conversion/bounded_cms.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

/// The object whose context is being made in this thread: Little CMS allocates a context's first
/// block before it passes on the context's owner.
thread_local BoundedCms* beingMade = nullptr;

void say_nothing(cmsContext /*context*/, cmsUInt32Number /*code*/, const char* /*text*/) {}

}  // namespace

/// The head of each block.
struct alignas(std::max_align_t) BoundedCms::Block {
  BoundedCms* owner;
  std::size_t whole;  ///< bytes with this head, a multiple of its alignment
  bool isBeginning;   ///< the block is in beginning_
  Block* previous;
  Block* next;
};

BoundedCms::BoundedCms(std::size_t limit) : left_(limit) {
  cmsPluginMemHandler plugin{};
  plugin.base.Magic = cmsPluginMagicNumber;
  plugin.base.ExpectedVersion = 2060;  // the first version that knows contexts
  plugin.base.Type = cmsPluginMemHandlerSig;
  plugin.MallocPtr = take;
  plugin.FreePtr = give_back;
  plugin.ReallocPtr = resize;
  beingMade = this;
  context_ = cmsCreateContext(&plugin, this);
  beingMade = nullptr;
  if (context_ != nullptr) {
    cmsSetLogErrorHandlerTHR(context_, say_nothing);
  }
}

BoundedCms::~BoundedCms() {
  if (context_ != nullptr) {
    cmsDeleteContext(context_);
  }
  for (Block* block = first_; block != nullptr;) {
    Block* next = block->next;
    std::free(block);
    block = next;
  }
}

const char* BoundedCms::run(const char* (*work)(cmsContext context, void* argument), void* argument,
                            const char* noMemory) {
  if (context_ == nullptr) {
    return noMemory;
  }
  // The frames in between belong to a C library, which no exception may cross.
  if (setjmp(refusal_) != 0) {  // NOLINT(cert-err52-cpp)
    running_ = false;
    return noMemory;
  }
  running_ = true;
  const char* result = work(context_, argument);
  running_ = false;
  return result;
}

BoundedCms::Block* BoundedCms::allocate(std::uint64_t bytes) {
  if (bytes > std::max(left_, kBeginning)) {
    return nullptr;
  }
  const auto whole = static_cast<std::size_t>(bytes);
  if (!running_ && whole <= kBeginning - beginningUsed_) {
    void* place = &beginning_[beginningUsed_];
    beginningUsed_ += whole;
    return new (place) Block{this, whole, true, nullptr, nullptr};
  }
  void* place = whole <= left_ ? std::malloc(whole) : nullptr;
  if (place == nullptr) {
    return nullptr;
  }
  left_ -= whole;
  auto* block = new (place) Block{this, whole, false, nullptr, first_};
  if (first_ != nullptr) {
    first_->previous = block;
  }
  first_ = block;
  return block;
}

void BoundedCms::release(Block* block) {
  if (block->isBeginning) {
    return;
  }
  left_ += block->whole;
  (block->previous != nullptr ? block->previous->next : first_) = block->next;
  if (block->next != nullptr) {
    block->next->previous = block->previous;
  }
  std::free(block);
}

void* BoundedCms::take(cmsContext context, cmsUInt32Number size) {
  auto* owner =
      beingMade != nullptr ? beingMade : static_cast<BoundedCms*>(cmsGetContextUserData(context));
  constexpr std::size_t kStep = alignof(Block);
  // A profile may ask for nearly 4 GiB: together with the head this needs more than 32 bits.
  const std::uint64_t whole = sizeof(Block) + (std::uint64_t{size} + kStep - 1) / kStep * kStep;
  Block* block = owner->allocate(whole);
  if (block == nullptr && owner->running_) {
    std::longjmp(owner->refusal_, 1);  // NOLINT(cert-err52-cpp)
  }
  return block != nullptr ? block + 1 : nullptr;
}

void BoundedCms::give_back(cmsContext /*context*/, void* taken) {
  if (taken != nullptr) {
    Block* block = static_cast<Block*>(taken) - 1;
    block->owner->release(block);
  }
}

void* BoundedCms::resize(cmsContext context, void* taken, cmsUInt32Number size) {
  void* other = take(context, size);
  if (other != nullptr && taken != nullptr) {
    const Block* block = static_cast<const Block*>(taken) - 1;
    std::memcpy(other, taken, std::min<std::size_t>(size, block->whole - sizeof(Block)));
    give_back(context, taken);
  }
  return other;
}

MemoryFile::MemoryFile(cmsContext context, std::span<const unsigned char> bytes) : bytes_(bytes) {
  handler_.stream = this;
  handler_.ContextID = context;
  handler_.ReportedSize = static_cast<cmsUInt32Number>(bytes.size());
  handler_.Read = read;
  handler_.Seek = seek;
  handler_.Tell = tell;
  handler_.Close = [](cmsIOHANDLER* /*handler*/) -> cmsBool { return 1; };
  handler_.Write = [](cmsIOHANDLER* /*handler*/, cmsUInt32Number /*size*/,
                      const void* /*bytes*/) -> cmsBool { return 0; };
}

cmsUInt32Number MemoryFile::read(cmsIOHANDLER* handler, void* buffer, cmsUInt32Number size,
                                 cmsUInt32Number count) {
  auto* file = static_cast<MemoryFile*>(handler->stream);
  const std::uint64_t wanted = std::uint64_t{size} * count;
  if (wanted > file->bytes_.size() - file->position_) {
    return 0;
  }
  if (wanted > 0) {
    std::memcpy(buffer, file->bytes_.data() + file->position_, wanted);
  }
  file->position_ += wanted;
  return count;
}

cmsBool MemoryFile::seek(cmsIOHANDLER* handler, cmsUInt32Number offset) {
  auto* file = static_cast<MemoryFile*>(handler->stream);
  if (offset > file->bytes_.size()) {
    return 0;
  }
  file->position_ = offset;
  return 1;
}

cmsUInt32Number MemoryFile::tell(cmsIOHANDLER* handler) {
  return static_cast<cmsUInt32Number>(static_cast<MemoryFile*>(handler->stream)->position_);
}
