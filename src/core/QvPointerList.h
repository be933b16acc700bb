// The storage behind PointerList<T>: a growable array of untyped pointers.
// Use PointerList<T>, which states the element type; this class exists so
// that the list code is compiled once.  Growth: to 3 when empty, then
// doubling until the need is covered.
#ifndef LUMERIC_CORE_QVPOINTERLIST_H
#define LUMERIC_CORE_QVPOINTERLIST_H

namespace lumeric {

class QvPointerList {
 public:
  QvPointerList() = default;
  ~QvPointerList();
  QvPointerList(const QvPointerList&) = delete;
  QvPointerList& operator=(const QvPointerList&) = delete;

  int getLength() const { return count_; }
  void* get(int index) const { return items_[index]; }
  void set(int index, void* item) { items_[index] = item; }
  // The entries in order (null when there are none).
  void* const* items() const { return items_; }

  void append(void* item);
  // Inserts before `index` (0..length); later entries move up.
  void insert(void* item, int index);
  // Inserts `count` entries before `index` (0..length, else appends),
  // moving the later entries up once for all of them.
  void insert(void* const* items, int count, int index);
  // Removes the entry at `index`; later entries move down.
  void remove(int index);
  // Index of the first entry equal to `item`, or -1.
  int find(const void* item) const;
  // Index of the last entry equal to `item`, or -1.
  int findLast(const void* item) const;
  // Drops every entry from `length` on.
  void truncate(int length);

 private:
  void grow(int need);

  void** items_ = nullptr;
  int count_ = 0;
  int capacity_ = 0;
};

}  // namespace lumeric

#endif  // LUMERIC_CORE_QVPOINTERLIST_H
