// A growable list of pointers to T: the typed face of QvPointerList.  The
// list owns none of the objects; the only casts from its untyped storage
// are here.
#ifndef LUMERIC_CORE_POINTERLIST_H
#define LUMERIC_CORE_POINTERLIST_H

#include "core/QvPointerList.h"

namespace lumeric {

template <typename T>
class PointerList {
 public:
  int getLength() const { return list_.getLength(); }
  T* get(int index) const { return static_cast<T*>(list_.get(index)); }
  void set(int index, T* item) { list_.set(index, item); }

  void append(T* item) { list_.append(item); }
  // Inserts before `index` (-1 or past the end appends).
  void insert(T* item, int index) { list_.insert(item, index); }
  // Inserts every entry of `items`, in order, before `index` (-1 or past
  // the end appends), moving the later entries once for all of them.
  void insertAll(const PointerList& items, int index) {
    list_.insert(items.list_.items(), items.getLength(), index);
  }
  // Removes the entry at `index`; later entries move down.
  void remove(int index) { list_.remove(index); }
  // Index of the first / last entry equal to `item`, or -1.
  int find(const T* item) const { return list_.find(item); }
  int findLast(const T* item) const { return list_.findLast(item); }
  // Drops every entry from `length` on.
  void truncate(int length) { list_.truncate(length); }

 private:
  QvPointerList list_;
};

}  // namespace lumeric

#endif  // LUMERIC_CORE_POINTERLIST_H
