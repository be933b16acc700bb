// The state of one run.  One translation runs at a time, on the host's
// thread; nothing here is locked.
//
// What belongs to one run lives in theRun and is returned to its start by
// theRun.reset() at the end of every run.  The per-run objects of higher
// layers live beside their code and are emptied by the operations they add
// with atEndOfRun (driver/LibrarySetUp.cpp installs them):
//
//   the class field tables   NodeClass::destroyAllTables (scene/)
//   the visit stack          theNodeStack (scene/NodeVisit.h)
//   the term arena           freeAllTerms (expr/)
//   the parses in progress   NestedParse::endRun (expr/NestedParse.cpp)
//
// The atom pool (core/QvAtomPool.h) is freed by reset() itself.  What
// outlives runs is declared in core/LastingState.h.
#ifndef LUMERIC_CORE_RUNSTATE_H
#define LUMERIC_CORE_RUNSTATE_H

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "core/FileAccess.h"
// The command line takes the warning bits from here (until it includes
// core/LastingState.h itself).
#include "core/LastingState.h"
#include "core/OutputFile.h"
#include "core/QvAtom.h"

namespace lumeric {

class FieldExpression;
class DefTable;
class QvNameTable;
class QvNode;

constexpr int kOutputNameSize = 256;
// How deep nodes may be nested in a scene, and so how many nodes the visit
// stack keeps: every pass over the tree then finds each node's enclosing
// nodes.  Included files count their INCLUDE statement as a level.
constexpr int kMaxNodeDepth = 63;

// What one run may do.  The defaults are far beyond any real scene; they
// stop scenes that would run for hours or exhaust memory.  A caller (the
// command line) may change them before a run; the run's end restores them.
struct RunLimits {
  // Evaluations started from inside other evaluations (field references).
  long maxEvaluations = 10000000;
  // Nodes made by copying (LOOP, SELECT, USE).
  long maxNodes = 10000000;
  // Bytes of copied and computed values: the elements of list fields, the
  // texts of field expressions and the terms of evaluations.
  long long maxMemory = kDefaultMaxMemory;
  static constexpr long long kDefaultMaxMemory = 1536LL << 20;
  // INCLUDE reads and OUTPUT_TO writes only regular files inside the
  // directory of the input.
  bool confine = false;
};

class RunState {
 public:
  RunState() = default;
  RunState(const RunState&) = delete;
  RunState& operator=(const RunState&) = delete;

  // Frees everything the run made (the name registry, the atom pool and
  // whatever the layers above installed with atEndOfRun, in that order) and
  // returns every member to its start value.
  void reset();
  // Adds an operation reset() calls, after those added before it.  Adding
  // the same operation again changes nothing.
  void atEndOfRun(void (*release)());

  RunLimits limits;

  // The output scene file; OUTPUT_TO may open it while the scene is read.
  // It is the stream of `pendingOutput`, or a stream the caller gave.
  FILE* outputFile = nullptr;
  // The output file being written, until it replaces its target.
  OutputFile pendingOutput;
  // The system error number of the first write to the output that failed.
  int outputWriteError = 0;
  // The name OUTPUT_TO gave the output file.
  char outputFileName[kOutputNameSize] = "";
  // Whether OUTPUT_TO may open a file in this run (not when the caller
  // chose the output).
  bool sceneMayChooseOutput = true;
  // Whether the extension statements, VARNAME and the extension nodes are
  // recognised.
  bool extensionsEnabled = true;
  // The DEF table of the input being read and evaluated; it serves name
  // look-ups and names the copies of named nodes.
  DefTable* defNames = nullptr;
  // Every named node, by name.
  QvNameTable* nameRegistry = nullptr;
  // When set, receives the name of every file INCLUDE reads, as opened.
  std::vector<std::string>* includedFiles = nullptr;
  // Every file the run has opened for reading (the input, every INCLUDE);
  // no output of the run may replace one of them.
  std::vector<FileIdentity> filesRead;
  // Where the input is, for INCLUDE to look beside it: the path it was
  // opened at, or the name the caller gave a stream it reads.
  std::string inputLocation;
  // When set, the directories INCLUDE looks in, in order, for a relative
  // name found neither as written nor beside the including file.
  const std::vector<std::string>* includeDirectories = nullptr;
  // With limits.confine: the resolved directory of the input, inside which
  // files may be read and written.
  std::string confinedTo;
  // Evaluations started from inside other evaluations plus the work of
  // large results (valueWork, one unit per kValuesPerWorkUnit numbers), and
  // whether the budget's message has been posted.
  long nestedEvaluations = 0;
  long valueWork = 0;
  bool evaluationBudgetSpent = false;
  // Whether the work of large results helped spend it: then, as past the
  // node and memory budgets, no further copy is made.
  bool workBudgetSpent = false;
  // Bytes of copied and computed values now alive, with a fixed share for
  // every copied node (limits.maxMemory), and
  // whether the budget's message has been posted.
  long long valueBytes = 0;
  bool memoryBudgetSpent = false;
  // Nodes made by copying, and whether the budget's message has been
  // posted.
  long copiedNodes = 0;
  bool nodeBudgetSpent = false;
  // How deep the node reader is nested now.
  int readingDepth = 0;

 private:
  static constexpr int kMaxReleases = 8;
  void (*releases_[kMaxReleases])() = {};
  int releaseCount_ = 0;
};

extern RunState theRun;

// Adds `node` to the registry list of `name`, creating registry and list on
// first use; `slot` is the node's own record of where its entry is.
void addName(QvNode* node, QvAtom name, int32_t* slot);
// Removes `node` from the list of `name`; a program error when it is not
// there.
void removeName(QvNode* node, QvAtom name, int32_t* slot);

}  // namespace lumeric

#endif  // LUMERIC_CORE_RUNSTATE_H
