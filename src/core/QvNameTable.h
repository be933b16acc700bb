// A hash table keyed by atom handles (compared by identity).  Serves the
// DEF table of a scene input and the registry of named nodes.  It starts
// with the bucket count it is given and grows as entries come, so that a
// look-up stays short with millions of names; nothing outside depends on
// the bucket count.
#ifndef LUMERIC_CORE_QVNAMETABLE_H
#define LUMERIC_CORE_QVNAMETABLE_H

#include <cstddef>
#include <cstdint>
#include <functional>

namespace lumeric {

class QvNameTable {
 public:
  static constexpr unsigned kDefaultBuckets = 251;

  // `buckets` is the starting bucket count.
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
  // About twice the buckets once the entries outnumber them twice.
  void grow();

  unsigned bucketCount_;
  Entry** buckets_;
  size_t entryCount_ = 0;
};

}  // namespace lumeric

#endif  // LUMERIC_CORE_QVNAMETABLE_H
