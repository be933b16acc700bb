#include "core/QvPointerList.h"

#include <cstring>

namespace lumeric {

QvPointerList::~QvPointerList() { delete[] items_; }

void QvPointerList::grow(int need) {
  if (need <= capacity_) return;
  // Three pointers fill the smallest block the heap hands out; most groups
  // a LOOP copies hold one to three children.
  int capacity = capacity_ == 0 ? 3 : capacity_;
  while (capacity < need) capacity *= 2;
  void** items = new void*[capacity];
  if (count_ > 0) std::memcpy(items, items_, sizeof(void*) * count_);
  delete[] items_;
  items_ = items;
  capacity_ = capacity;
}

void QvPointerList::append(void* item) {
  grow(count_ + 1);
  items_[count_++] = item;
}

void QvPointerList::insert(void* item, int index) {
  if (index < 0 || index > count_) index = count_;
  grow(count_ + 1);
  std::memmove(items_ + index + 1, items_ + index, sizeof(void*) * (count_ - index));
  items_[index] = item;
  ++count_;
}

void QvPointerList::insert(void* const* items, int count, int index) {
  if (count <= 0) return;
  if (index < 0 || index > count_) index = count_;
  grow(count_ + count);
  std::memmove(items_ + index + count, items_ + index, sizeof(void*) * (count_ - index));
  std::memcpy(items_ + index, items, sizeof(void*) * count);
  count_ += count;
}

void QvPointerList::remove(int index) {
  if (index < 0 || index >= count_) return;
  std::memmove(items_ + index, items_ + index + 1, sizeof(void*) * (count_ - index - 1));
  --count_;
}

int QvPointerList::find(const void* item) const {
  for (int i = 0; i < count_; ++i) {
    if (items_[i] == item) return i;
  }
  return -1;
}

int QvPointerList::findLast(const void* item) const {
  for (int i = count_ - 1; i >= 0; --i) {
    if (items_[i] == item) return i;
  }
  return -1;
}

void QvPointerList::truncate(int length) {
  if (length >= 0 && length < count_) count_ = length;
}

}  // namespace lumeric
