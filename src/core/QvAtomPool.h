// The pool behind QvAtom: a hash table of texts stored in 4000-byte
// blocks.  The table grows as texts come, so that interning stays fast
// with millions of names.  It exists from its first use to freePool(),
// which the end-of-run clean-up calls; every atom handle of the run dies
// then.
#ifndef LUMERIC_CORE_QVATOMPOOL_H
#define LUMERIC_CORE_QVATOMPOOL_H

#include <cstddef>
#include <cstdint>

namespace lumeric {

class QvAtomPool {
 public:
  // The pool of the run, created on first use.
  static QvAtomPool& instance();
  // Frees the pool with all its texts.  Safe when there is none.
  static void freePool();
  static bool exists();

  // The stored copy of `text` (length bytes, no terminator needed).
  const char* intern(const char* text, size_t length);

  // The hash of the atom table (32-bit FNV-1a).  Generated names differ in
  // a few digits only ("t0" to "t999999"), so every byte must reach every
  // bit of the hash for them to spread over the buckets.
  static uint32_t hash(const char* text, size_t length);

  QvAtomPool(const QvAtomPool&) = delete;
  QvAtomPool& operator=(const QvAtomPool&) = delete;

 private:
  static constexpr unsigned kStartingBuckets = 1999;
  static constexpr size_t kBlockSize = 4000;

  struct Entry {
    const char* text;
    size_t length;
    uint32_t hash;
    Entry* next;
  };
  struct Block {
    Block* previous;
    size_t used;
    size_t size;
    char* data() { return reinterpret_cast<char*>(this + 1); }
  };

  QvAtomPool();
  ~QvAtomPool();
  Entry* store(const char* text, size_t length, uint32_t hash, Entry* next);
  static Block* pushBlock(Block*& head, size_t size);
  // About twice the buckets once the texts outnumber them twice.
  void grow();

  Entry** buckets_;
  unsigned bucketCount_ = kStartingBuckets;
  size_t entryCount_ = 0;
  Block* current_ = nullptr;  // the block new short texts go to
  Block* large_ = nullptr;    // texts that got an allocation of their own
};

}  // namespace lumeric

#endif  // LUMERIC_CORE_QVATOMPOOL_H
