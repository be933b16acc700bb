#include "core/QvAtomPool.h"

#include <cstdlib>
#include <initializer_list>
#include <cstring>
#include <new>


namespace lumeric {

namespace {
QvAtomPool* thePool = nullptr;
}

QvAtomPool& QvAtomPool::instance() {
  if (thePool == nullptr) thePool = new QvAtomPool();
  return *thePool;
}

void QvAtomPool::freePool() {
  delete thePool;
  thePool = nullptr;
}

bool QvAtomPool::exists() { return thePool != nullptr; }

QvAtomPool::QvAtomPool() : buckets_(new Entry*[kStartingBuckets]()) {}

QvAtomPool::~QvAtomPool() {
  delete[] buckets_;
  for (Block* chain : {current_, large_}) {
    while (chain != nullptr) {
      Block* previous = chain->previous;
      std::free(chain);
      chain = previous;
    }
  }
}

uint32_t QvAtomPool::hash(const char* text, size_t length) {
  uint32_t h = 2166136261u;
  for (size_t i = 0; i < length; ++i) {
    h ^= static_cast<unsigned char>(text[i]);
    h *= 16777619u;
  }
  return h;
}

// A new empty block of `size` bytes put in front of the chain `head`.
QvAtomPool::Block* QvAtomPool::pushBlock(Block*& head, size_t size) {
  Block* block = static_cast<Block*>(std::malloc(sizeof(Block) + size));
  if (block == nullptr) throw std::bad_alloc();
  block->previous = head;
  block->size = size;
  block->used = 0;
  head = block;
  return block;
}

// An entry and its text, side by side in a block: a new entry follows the
// one interned before it, so the entries of names made one after the other
// (a LOOP's) share cache lines, and freeing the pool frees blocks only.
QvAtomPool::Entry* QvAtomPool::store(const char* text, size_t length, uint32_t hash, Entry* next) {
  const size_t need = sizeof(Entry) + length + 1;
  Block* block;
  if (need >= kBlockSize) {
    block = pushBlock(large_, need);
  } else {
    if (current_ == nullptr || current_->size - current_->used < need) pushBlock(current_, kBlockSize);
    block = current_;
  }
  char* place = block->data() + block->used;
  char* copy = place + sizeof(Entry);
  std::memcpy(copy, text, length);
  copy[length] = '\0';
  // The next entry starts aligned like this one.
  block->used += (need + alignof(Entry) - 1) & ~(alignof(Entry) - 1);
  if (block->used > block->size) block->used = block->size;
  return new (place) Entry{copy, length, hash, next};
}

const char* QvAtomPool::intern(const char* text, size_t length) {
  uint32_t h = hash(text, length);
  Entry*& head = buckets_[h % bucketCount_];
  for (Entry* e = head; e != nullptr; e = e->next) {
    if (e->hash == h && e->length == length && std::memcmp(e->text, text, length) == 0) return e->text;
  }
  Entry* entry = store(text, length, h, head);
  head = entry;
  if (++entryCount_ > 2 * static_cast<size_t>(bucketCount_)) grow();
  return entry->text;
}

void QvAtomPool::grow() {
  unsigned count = bucketCount_ * 2 + 1;
  Entry** buckets = new Entry*[count]();
  for (unsigned i = 0; i < bucketCount_; ++i) {
    for (Entry* e = buckets_[i]; e != nullptr;) {
      Entry* next = e->next;
      Entry*& head = buckets[e->hash % count];
      e->next = head;
      head = e;
      e = next;
    }
  }
  delete[] buckets_;
  buckets_ = buckets;
  bucketCount_ = count;
}

}  // namespace lumeric
