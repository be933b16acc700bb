#include "core/QvNameTable.h"

namespace lumeric {

QvNameTable::QvNameTable(unsigned buckets)
    : bucketCount_(buckets == 0 ? 1 : buckets), buckets_(new Entry*[bucketCount_]()) {}

QvNameTable::~QvNameTable() {
  clear();
  delete[] buckets_;
}

bool QvNameTable::enter(const void* key, void* value) {
  Entry** link = &buckets_[bucketOf(key)];
  for (; *link != nullptr; link = &(*link)->next) {
    if ((*link)->key == key) {
      (*link)->value = value;
      return false;
    }
  }
  *link = new Entry{key, value, nullptr};
  if (++entryCount_ > 2 * static_cast<size_t>(bucketCount_)) grow();
  return true;
}

void QvNameTable::grow() {
  unsigned count = bucketCount_ * 2 + 1;
  Entry** buckets = new Entry*[count]();
  Entry** tails = new Entry*[count]();
  // Entries keep their order within each new bucket.
  for (unsigned i = 0; i < bucketCount_; ++i) {
    for (Entry* e = buckets_[i]; e != nullptr;) {
      Entry* next = e->next;
      unsigned b = static_cast<unsigned>(reinterpret_cast<uintptr_t>(e->key) % count);
      e->next = nullptr;
      (tails[b] != nullptr ? tails[b]->next : buckets[b]) = e;
      tails[b] = e;
      e = next;
    }
  }
  delete[] tails;
  delete[] buckets_;
  buckets_ = buckets;
  bucketCount_ = count;
}

bool QvNameTable::find(const void* key, void*& value) const {
  for (Entry* e = buckets_[bucketOf(key)]; e != nullptr; e = e->next) {
    if (e->key == key) {
      value = e->value;
      return true;
    }
  }
  value = nullptr;
  return false;
}

void QvNameTable::clear() {
  for (unsigned i = 0; i < bucketCount_; ++i) {
    Entry* e = buckets_[i];
    while (e != nullptr) {
      Entry* next = e->next;
      delete e;
      e = next;
    }
    buckets_[i] = nullptr;
  }
  entryCount_ = 0;
}

void QvNameTable::forEachValue(const std::function<void(void*)>& visit) const {
  for (unsigned i = 0; i < bucketCount_; ++i) {
    for (Entry* e = buckets_[i]; e != nullptr; e = e->next) visit(e->value);
  }
}

}  // namespace lumeric
