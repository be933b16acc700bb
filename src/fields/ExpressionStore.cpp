#include "fields/ExpressionStore.h"

#include <cstdlib>
#include <new>

#include "core/RunState.h"

namespace lumeric {

namespace {

size_t segmentElements(int segment) { return size_t{1} << segment; }

}  // namespace

size_t ExpressionStore::segmentBytes(int segment) const {
  return sizeof(FieldExpression) * segmentElements(segment) * static_cast<size_t>(width_);
}

ExpressionStore::~ExpressionStore() {
  resize(0);
  freeTable();
}

void ExpressionStore::freeTable() {
  if (segments_ != &firstSegment_) std::free(segments_);
  segments_ = nullptr;
}

void ExpressionStore::resize(int count) {
  if (count < 0) count = 0;
  if (count > size_) {
    addSegmentsFor(count);
    for (int i = size_; i < count; ++i) {
      FieldExpression* first = element(i);
      for (int k = 0; k < width_; ++k) new (first + k) FieldExpression();
    }
  } else if (FieldExpression::anyHeapTexts()) {
    for (int i = count; i < size_; ++i) {
      FieldExpression* first = element(i);
      for (int k = 0; k < width_; ++k) first[k].~FieldExpression();
    }
    releaseSegmentsFrom(count);
  } else {
    // No element holds anything to free.
    releaseSegmentsFrom(count);
  }
  size_ = count;
}

void ExpressionStore::addSegmentsFor(int count) {
  int needed = segmentOf(static_cast<uint32_t>(count)) + 1;  // the segment of element count - 1
  if (needed <= segmentCount_) return;
  if (needed == 1) {
    // Most lists hold one element: their table is the one pointer kept
    // inside the store.
    segments_ = &firstSegment_;
  } else {
    void* table = std::malloc(sizeof(FieldExpression*) * static_cast<size_t>(needed));
    if (table == nullptr) throw std::bad_alloc();
    for (int k = 0; k < segmentCount_; ++k) static_cast<FieldExpression**>(table)[k] = segments_[k];
    freeTable();
    segments_ = static_cast<FieldExpression**>(table);
  }
  for (int k = segmentCount_; k < needed; ++k) segments_[k] = nullptr;
  for (int k = segmentCount_; k < needed; ++k) {
    size_t bytes = segmentBytes(k);
    void* memory = std::malloc(bytes);
    if (memory == nullptr) {
      segmentCount_ = k;
      throw std::bad_alloc();
    }
    segments_[k] = static_cast<FieldExpression*>(memory);
    theRun.valueBytes += static_cast<long long>(bytes);  // the run's memory budget
  }
  segmentCount_ = needed;
}

// Segments that hold no live element any more are returned at once, so a
// list that shrinks gives its memory back.
void ExpressionStore::releaseSegmentsFrom(int count) {
  while (segmentCount_ > 0 && segmentElements(segmentCount_ - 1) - 1 >= static_cast<size_t>(count)) {
    --segmentCount_;
    std::free(segments_[segmentCount_]);
    theRun.valueBytes -= static_cast<long long>(segmentBytes(segmentCount_));
    segments_[segmentCount_] = nullptr;
  }
  if (segmentCount_ == 0) freeTable();
}

}  // namespace lumeric
