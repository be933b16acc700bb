#include "reader/QvNameTable.h"

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
  if (++entryCount_ > 2ul * bucketCount_) grow();
  return true;
}

void QvNameTable::grow() {
  unsigned oldCount = bucketCount_;
  Entry** old = buckets_;
  bucketCount_ = 2 * oldCount + 1;
  buckets_ = new Entry*[bucketCount_]();
  // Each new bucket's tail, so that entries keep their order.
  Entry*** tails = new Entry**[bucketCount_];
  for (unsigned i = 0; i < bucketCount_; ++i) tails[i] = &buckets_[i];
  for (unsigned i = 0; i < oldCount; ++i) {
    for (Entry* e = old[i]; e != nullptr;) {
      Entry* next = e->next;
      unsigned b = bucketOf(e->key);
      e->next = nullptr;
      *tails[b] = e;
      tails[b] = &e->next;
      e = next;
    }
  }
  delete[] tails;
  delete[] old;
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
