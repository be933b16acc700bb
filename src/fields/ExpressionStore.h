// The element storage of the list fields: `size` elements of `width`
// consecutive FieldExpressions each.
//
// Lists are often built one element at a time (reading, APPEND), and they
// may hold millions of elements.  The store therefore never moves elements:
// it keeps segments whose sizes double (1, 2, 4, ... elements), so growth
// is amortised O(1), an element's address stays fixed while it lives, and
// growing never needs an old and a new copy of a large array at once.
// Only live elements are constructed; the untouched tail of the newest
// segment costs address space but no memory.
#ifndef LUMERIC_FIELDS_EXPRESSIONSTORE_H
#define LUMERIC_FIELDS_EXPRESSIONSTORE_H

#include <cstddef>
#include <cstdint>

#include "scene/FieldExpression.h"

namespace lumeric {

class ExpressionStore {
 public:
  explicit ExpressionStore(int width) : width_(width) {}
  ~ExpressionStore();
  ExpressionStore(const ExpressionStore&) = delete;
  ExpressionStore& operator=(const ExpressionStore&) = delete;

  int size() const { return size_; }
  int width() const { return width_; }

  // Makes `count` elements live (negative counts as 0).  New elements hold
  // no text; elements beyond `count` are destroyed with their texts.
  void resize(int count);

  // The `width` expressions of element `index`; 0 <= index < size().
  FieldExpression* element(int index) {
    uint32_t position = static_cast<uint32_t>(index) + 1;
    int segment = segmentOf(position);
    return segments_[segment] + static_cast<size_t>(position - (uint32_t{1} << segment)) * width_;
  }

 private:
  // Segment k holds 2^k elements, the elements 2^k - 1 to 2^(k+1) - 2; an
  // element's position is its index plus one.
  static int segmentOf(uint32_t position) { return 31 - __builtin_clz(position); }
  void addSegmentsFor(int count);
  void releaseSegmentsFrom(int count);
  void freeTable();
  size_t segmentBytes(int segment) const;

  // The table of segments: `firstSegment_` while there is at most one.
  FieldExpression** segments_ = nullptr;
  FieldExpression* firstSegment_ = nullptr;
  int segmentCount_ = 0;
  int size_ = 0;
  int width_;
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_EXPRESSIONSTORE_H
