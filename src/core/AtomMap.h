// Values of one type by atom: the typed face of AtomKeyedTable.  The table
// holds plain pointers and owns none of them; the only casts from its
// untyped storage are here.
#ifndef LUMERIC_CORE_ATOMMAP_H
#define LUMERIC_CORE_ATOMMAP_H

#include "core/AtomKeyedTable.h"
#include "core/QvAtom.h"

namespace lumeric {

template <typename T>
class AtomMap {
 public:
  AtomMap() = default;
  // Starts with `buckets` buckets (for tests of growth).
  explicit AtomMap(unsigned buckets) : table_(buckets) {}

  // Enters `value` under `name`, replacing an earlier value (false) or
  // making a new entry (true).
  bool enter(QvAtom name, T* value) { return table_.enter(name.key(), value); }
  // The value under `name`, or null when there is none.
  T* find(QvAtom name) const {
    void* value = nullptr;
    table_.find(name.key(), value);
    return static_cast<T*>(value);
  }
  bool contains(QvAtom name) const {
    void* value = nullptr;
    return table_.find(name.key(), value);
  }
  // Drops every entry (the values are not freed).
  void clear() { table_.clear(); }
  // Calls `visit(T*)` for every value.
  template <typename Visit>
  void forEachValue(Visit visit) const {
    table_.forEachValue([&visit](void* value) { visit(static_cast<T*>(value)); });
  }

 private:
  AtomKeyedTable table_;
};

}  // namespace lumeric

#endif  // LUMERIC_CORE_ATOMMAP_H
