// The memory of terms.  Terms live until the end of a run and are freed all
// together, so they are bump-allocated from chunks.  A mark taken before an
// evaluation whose terms nobody keeps (a number copied out as a double) may
// be released afterwards to return that memory early.
#ifndef LUMERIC_EXPR_TERMARENA_H
#define LUMERIC_EXPR_TERMARENA_H

#include <cstddef>

namespace lumeric {

class TermArena {
 public:
  struct Mark {
    void* chunk;
    size_t used;
  };

  TermArena() = default;
  ~TermArena();
  TermArena(const TermArena&) = delete;
  TermArena& operator=(const TermArena&) = delete;

  // `size` bytes aligned for doubles and pointers.
  void* allocate(size_t size) {
    size = (size + 7) & ~static_cast<size_t>(7);
    if (current_ != nullptr && current_->size - current_->used >= size) {
      void* place = current_->data() + current_->used;
      current_->used += size;
      return place;
    }
    return allocateSlow(size);
  }
  // Grows the most recent allocation in place when it is `block` and the
  // chunk has room; otherwise returns a new block with the old bytes copied.
  void* reallocate(void* block, size_t oldSize, size_t newSize);

  Mark mark() const { return Mark{current_, current_ == nullptr ? 0 : current_->used}; }
  // Whether a chunk was added since `mark` was taken (64 KB of terms or
  // one large term): then releasing to the mark returns memory.
  bool grewPast(const Mark& mark) const { return current_ != mark.chunk; }
  // Frees everything allocated since `mark` was taken.
  void release(const Mark& mark);
  // Frees everything.
  void clear();

  size_t bytesInUse() const;

 private:
  struct Chunk {
    Chunk* previous;
    size_t size;
    size_t used;
    char* data() { return reinterpret_cast<char*>(this + 1); }
  };
  static constexpr size_t kChunkSize = 64 * 1024;

  void* allocateSlow(size_t size);
  void freeChunk(Chunk* chunk);

  Chunk* current_ = nullptr;
  Chunk* spare_ = nullptr;  // one standard chunk kept to avoid churn
};

// The arena of the run's terms.
TermArena& termArena();

// Releases, at the end of its scope, the terms made within it.  Use only
// where no term made in the scope is kept beyond it.
class TermScope {
 public:
  TermScope() : mark_(termArena().mark()) {}
  ~TermScope() { termArena().release(mark_); }
  TermScope(const TermScope&) = delete;
  TermScope& operator=(const TermScope&) = delete;

 private:
  TermArena::Mark mark_;
};

}  // namespace lumeric

#endif  // LUMERIC_EXPR_TERMARENA_H
