// A hash table keyed by atom handles (compared by identity).  Serves the
// DEF table of a scene input and the registry of named nodes.  It starts
// with the given number of buckets and grows when the entries outnumber
// them twice, so that scenes naming every copy of a large LOOP keep
// look-ups short.
#ifndef LUMERIC_READER_QVNAMETABLE_H
#define LUMERIC_READER_QVNAMETABLE_H

#include <cstdint>
#include <functional>

namespace lumeric {

class QvNameTable {
 public:
  static constexpr unsigned kDefaultBuckets = 251;

  explicit QvNameTable(unsigned buckets = kDefaultBuckets);
  ~QvNameTable();
  QvNameTable(const QvNameTable&) = delete;
  QvNameTable& operator=(const QvNameTable&) = delete;

  // Replaces the value of an existing key (false) or appends a new entry at
  // the end of the key's bucket (true).
  bool enter(const void* key, void* value);
  // The value of `key`; false and a null value when there is none.
  bool find(const void* key, void*& value) const;
  // Frees every entry.
  void clear();
  // Calls `visit` for every value (used to free values before clear()).
  void forEachValue(const std::function<void(void*)>& visit) const;

 private:
  struct Entry {
    const void* key;
    void* value;
    Entry* next;
  };
  unsigned bucketOf(const void* key) const {
    return static_cast<unsigned>(reinterpret_cast<uintptr_t>(key) % bucketCount_);
  }

  // Moves every entry into about twice as many buckets, keeping the order
  // of entries within each bucket.
  void grow();

  unsigned bucketCount_;
  Entry** buckets_;
  unsigned long entryCount_ = 0;
};

}  // namespace lumeric

#endif  // LUMERIC_READER_QVNAMETABLE_H
