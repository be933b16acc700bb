#include "expr/TermArena.h"

#include <cstdlib>
#include <cstring>
#include <new>

#include "core/RunState.h"

namespace lumeric {

TermArena& termArena() {
  static TermArena arena;
  return arena;
}

TermArena::~TermArena() {
  clear();
  std::free(spare_);
}

void* TermArena::allocateSlow(size_t size) {
  Chunk* chunk;
  if (size > kChunkSize / 4) {
    chunk = static_cast<Chunk*>(std::malloc(sizeof(Chunk) + size));
    if (chunk == nullptr) throw std::bad_alloc();
    chunk->size = size;
  } else if (spare_ != nullptr) {
    chunk = spare_;
    spare_ = nullptr;
  } else {
    chunk = static_cast<Chunk*>(std::malloc(sizeof(Chunk) + kChunkSize));
    if (chunk == nullptr) throw std::bad_alloc();
    chunk->size = kChunkSize;
  }
  // Terms count against the run's memory budget while they live.
  theRun.valueBytes += static_cast<long long>(chunk->size);
  chunk->used = size;
  chunk->previous = current_;
  current_ = chunk;
  return chunk->data();
}

void* TermArena::reallocate(void* block, size_t oldSize, size_t newSize) {
  oldSize = (oldSize + 7) & ~static_cast<size_t>(7);
  size_t grownSize = (newSize + 7) & ~static_cast<size_t>(7);
  if (block != nullptr && current_ != nullptr &&
      static_cast<char*>(block) + oldSize == current_->data() + current_->used &&
      current_->used - oldSize + grownSize <= current_->size) {
    current_->used = current_->used - oldSize + grownSize;
    return block;
  }
  void* place = allocate(newSize);
  if (block != nullptr && oldSize > 0) std::memcpy(place, block, oldSize < newSize ? oldSize : newSize);
  return place;
}

void TermArena::freeChunk(Chunk* chunk) {
  theRun.valueBytes -= static_cast<long long>(chunk->size);
  if (chunk->size == kChunkSize && spare_ == nullptr) {
    spare_ = chunk;
  } else {
    std::free(chunk);
  }
}

void TermArena::release(const Mark& mark) {
  Chunk* target = static_cast<Chunk*>(mark.chunk);
  while (current_ != nullptr && current_ != target) {
    Chunk* previous = current_->previous;
    freeChunk(current_);
    current_ = previous;
  }
  if (current_ != nullptr) current_->used = mark.used;
}

void TermArena::clear() { release(Mark{nullptr, 0}); }

size_t TermArena::bytesInUse() const {
  size_t total = 0;
  for (Chunk* c = current_; c != nullptr; c = c->previous) total += c->used;
  return total;
}

}  // namespace lumeric
