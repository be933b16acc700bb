// The one owner of the output.  Every node and field writes itself through a
// SceneWriter: it holds the stream, the indentation level, the formatting of
// numbers (rounded to the PRECISION step where asked), the frame of a node
// and the layout of value lists.  Text is collected and handed to the stream
// in large blocks, so that a list of a million numbers costs a few thousand
// writes rather than several million formatted prints; it reaches the stream
// in order at flush() or destruction.
#ifndef LUMERIC_WRITER_SCENEWRITER_H
#define LUMERIC_WRITER_SCENEWRITER_H

#include <cstdarg>
#include <cstddef>
#include <cstdio>

namespace lumeric {

struct PlainDecimal;

// How a list of more than one item is laid out.  The first item follows
// " [ "; later items follow "," and a blank, except that every
// `itemsPerLine` items a new line starts one level deeper than the field,
// with a blank after its tabs when `blankAfterTabs`; " ]" and the line end
// close the list.  An empty list is " [ ]"; a list of one item is written
// without brackets unless `bracketsAroundOne`.
struct ListLayout {
  int itemsPerLine;
  bool blankAfterTabs;
  bool bracketsAroundOne;
};

// `v` rounded to the nearest multiple of the PRECISION step
// (precisionQuantum, halves away from zero); unchanged when the step is 0 or
// less, and when the value is too large for the step (rounding never makes a
// finite value infinite).
double roundToPrecision(double v);

// One item to a line, the rows of vectors and strings.
constexpr ListLayout kOneItemPerLine{1, false, false};
// Every item on the opening line.
constexpr ListLayout kOneLine{0, false, true};

class SceneWriter {
 public:
  // Writes to `stream` (not owned).
  explicit SceneWriter(FILE* stream) : stream_(stream) {}
  ~SceneWriter() { flush(); }
  SceneWriter(const SceneWriter&) = delete;
  SceneWriter& operator=(const SceneWriter&) = delete;

  // Pieces of text, appended as given.
  SceneWriter& text(const char* s);
  SceneWriter& text(const char* s, size_t length);
  SceneWriter& character(char c) {
    makeRoom(1);
    buffer_[used_++] = c;
    return *this;
  }
  // "%g" of the number, exactly as printf writes it; 0 for infinities and
  // NaN.
  SceneWriter& number(double v);
  // "%g" of the number rounded to the PRECISION step (roundToPrecision).
  SceneWriter& rounded(double v);
  // The plain decimal number (core/DecimalText.h) as rounded(), or number()
  // when `round` is false, writes its value.  Most such texts are rounded
  // on their digits.
  SceneWriter& decimal(const PlainDecimal& text, bool round);
  // "%d".
  SceneWriter& integer(long v);
  // printf-formatted text.
  SceneWriter& format(const char* format, ...) __attribute__((format(printf, 2, 3)));
  // The tabs a line starts with: one per indentation level.
  SceneWriter& indentation();
  // A line start: the indentation, then the formatted text.
  SceneWriter& line(const char* format, ...) __attribute__((format(printf, 2, 3)));

  // The indentation level: nodes nested in a node, and the continuation
  // lines of a list, are written one level deeper.
  int level() const { return level_; }
  void setLevel(int level) { level_ = level; }
  // One level deeper for the lifetime of the object.
  class Deeper {
   public:
    explicit Deeper(SceneWriter& writer) : writer_(writer) { ++writer_.level_; }
    ~Deeper() { --writer_.level_; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;

   private:
    SceneWriter& writer_;
  };

  // The frame of a node: "DEF name Class {" (or "Class {" when `name` is
  // null or empty) on its own line, then one level deeper until
  // closeNode(), which writes "}" at the node's level and, after a node read
  // from the scene, an empty line.  Generated nodes are written close
  // together, without it.
  enum class After { kEmptyLine, kNothing };
  void openNode(const char* name, const char* className);
  void closeNode(After after = After::kEmptyLine);
  // The number of node frames opened so far.
  long nodesOpened() const { return nodesOpened_; }

  // A value list of `count` items after the field name, as `layout` says;
  // writeItem(i) writes item i through this writer.
  template <class WriteItem>
  void list(int count, const ListLayout& layout, WriteItem writeItem);

  // Hands the collected text to the stream.
  void flush();
  // The system error number of the first write to the stream that failed,
  // or 0.
  int writeError() const { return writeError_; }

 private:
  void put(const char* s, size_t length);
  void makeRoom(size_t length) {
    if (used_ + length > sizeof buffer_) flush();
  }
  void formatted(const char* format, va_list args);
  // The PRECISION step as a count of decimals: -1 for no step, kNoDecimals
  // for a step that is no power of ten.  Kept for the last step asked.
  static constexpr int kNoDecimals = -2;
  int stepDecimals();

  FILE* stream_;
  int level_ = 0;
  long nodesOpened_ = 0;
  size_t used_ = 0;
  double lastStep_ = 0;
  int lastStepDecimals_ = -1;
  int writeError_ = 0;
  char buffer_[4096];
};

template <class WriteItem>
void SceneWriter::list(int count, const ListLayout& layout, WriteItem writeItem) {
  if (count == 0) {
    text(" [ ]\n");
    return;
  }
  if (count == 1 && !layout.bracketsAroundOne) {
    character(' ');
    writeItem(0);
    character('\n');
    return;
  }
  text(" [ ");
  Deeper deeper(*this);
  for (int i = 0; i < count; ++i) {
    if (i > 0) {
      character(',');
      if (layout.itemsPerLine > 0 && i % layout.itemsPerLine == 0) {
        character('\n').indentation();
        if (layout.blankAfterTabs) character(' ');
      } else {
        character(' ');
      }
    }
    writeItem(i);
  }
  text(" ]\n");
}

}  // namespace lumeric

#endif  // LUMERIC_WRITER_SCENEWRITER_H
