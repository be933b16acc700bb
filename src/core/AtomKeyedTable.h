// The storage behind AtomMap<T>: a hash table from handles (compared by
// identity) to untyped values.  Use AtomMap<T>, which states the value type;
// this class exists so that the table code is compiled once.  It grows as
// entries come, so that a look-up stays short with millions of names.
#ifndef LUMERIC_CORE_ATOMKEYEDTABLE_H
#define LUMERIC_CORE_ATOMKEYEDTABLE_H

#include <cstddef>
#include <cstdint>
#include <functional>

namespace lumeric {

class AtomKeyedTable {
 public:
  AtomKeyedTable();
  // Starts with `buckets` buckets (at least one); tests start small to
  // make keys share buckets and the table grow.
  explicit AtomKeyedTable(unsigned buckets);
  ~AtomKeyedTable();
  AtomKeyedTable(const AtomKeyedTable&) = delete;
  AtomKeyedTable& operator=(const AtomKeyedTable&) = delete;

  // Replaces the value of an existing key (false) or appends a new entry at
  // the end of the key's bucket (true).
  bool enter(const void* key, void* value);
  // The value of `key`; false and a null value when there is none.
  bool find(const void* key, void*& value) const;
  // Frees every entry.
  void clear();
  // Calls `visit` for every value.
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

#endif  // LUMERIC_CORE_ATOMKEYEDTABLE_H
