// SPDX-License-Identifier: Apache-2.0
#include "conversion/bounded_cms.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

/// Stands before each block: whose it is and how large. Little CMS does not tell either when it
/// gives a block back.
struct alignas(std::max_align_t) BlockHead {
  CmsBudget* budget;  ///< null for the context's own record, made before there is a budget
  std::size_t size;   ///< bytes with this head
};

void* take_block(cmsContext context, cmsUInt32Number size) {
  auto* budget = static_cast<CmsBudget*>(cmsGetContextUserData(context));
  const std::size_t whole = sizeof(BlockHead) + size;
  const bool allowed = budget == nullptr || whole <= budget->left;
  auto* head = allowed ? static_cast<BlockHead*>(std::malloc(whole)) : nullptr;
  if (head != nullptr) {
    *head = {budget, whole};
  }
  if (budget != nullptr) {
    budget->left -= head != nullptr ? whole : 0;
    budget->refused = budget->refused || head == nullptr;
  }
  return head != nullptr ? head + 1 : nullptr;
}

void give_block_back(cmsContext /*context*/, void* block) {
  if (block == nullptr) {
    return;
  }
  BlockHead* head = static_cast<BlockHead*>(block) - 1;
  if (head->budget != nullptr) {
    head->budget->left += head->size;
  }
  std::free(head);
}

void* resize_block(cmsContext context, void* block, cmsUInt32Number size) {
  void* larger = take_block(context, size);
  if (larger != nullptr && block != nullptr) {
    const BlockHead* head = static_cast<const BlockHead*>(block) - 1;
    std::memcpy(larger, block, std::min<std::size_t>(size, head->size - sizeof(BlockHead)));
    give_block_back(context, block);
  }
  return larger;
}

void say_nothing(cmsContext /*context*/, cmsUInt32Number /*code*/, const char* /*text*/) {}

}  // namespace

CmsContext make_bounded_context(CmsBudget& budget) {
  cmsPluginMemHandler memory{};
  memory.base.Magic = cmsPluginMagicNumber;
  memory.base.ExpectedVersion = 2060;  // the first version that knows contexts
  memory.base.Type = cmsPluginMemHandlerSig;
  memory.MallocPtr = take_block;
  memory.FreePtr = give_block_back;
  memory.ReallocPtr = resize_block;
  CmsContext context(cmsCreateContext(&memory, &budget));
  if (context != nullptr) {
    cmsSetLogErrorHandlerTHR(context.get(), say_nothing);
  }
  return context;
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
