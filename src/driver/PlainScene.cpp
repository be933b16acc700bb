#include "driver/PlainScene.h"

#include <memory>
#include <vector>

#include "core/QvContext.h"
#include "core/QvNameTable.h"
#include "driver/LibrarySetUp.h"
#include "reader/NodeReader.h"
#include "reader/QvSceneInput.h"
#include "scene/QvNode.h"

namespace lumeric {

namespace {

// What the current plain run read: the roots (a reference on each) and
// the inputs, whose DEF tables hold the named nodes; all are released at
// its end, the roots first.
struct PlainReading {
  std::vector<QvNode*> roots;
  std::vector<std::unique_ptr<QvSceneInput>> inputs;

  ~PlainReading() {
    for (QvNode* root : roots) root->unref();
  }
};

PlainReading* currentReading = nullptr;

// Reads one file's root with its input on the file stack; the root, when
// there is one, is kept by `reading`.
QvNode* readRootOf(PlainReading& reading, FILE* file, const char* name, bool& complete) {
  reading.inputs.push_back(std::make_unique<QvSceneInput>());
  QvSceneInput& input = *reading.inputs.back();
  input.setFile(file);
  DefTable* outer = theRun.defNames;
  theRun.defNames = &input.defNames();
  QvNode* root = nullptr;
  complete = false;
  if (theContext.pushFile(name, file)) {
    complete = readScene(&input, root);
    theContext.popFile();
  }
  theRun.defNames = outer;
  if (root != nullptr) {
    root->ref();
    reading.roots.push_back(root);
  }
  return root;
}

}  // namespace

bool readPlainScene(FILE* file, const char* name, const RunLimits& limits, const char* confinedTo,
                    const std::function<void(QvNode* root)>& use) {
  installLibraryOperations();
  CReportErrorView* view = theContext.view;
  theContext.setView(nullptr);
  theRun.limits = limits;
  if (limits.confine) theRun.confinedTo = confinedTo != nullptr && *confinedTo != '\0' ? confinedTo : "/nonexistent/";
  theRun.extensionsEnabled = false;
  theRun.sceneMayChooseOutput = false;
  if (theRun.nameRegistry == nullptr) theRun.nameRegistry = new QvNameTable();
  bool complete = false;
  // The run ends whatever happens within it.
  struct RunEnd {
    CReportErrorView* view;
    ~RunEnd() {
      currentReading = nullptr;
      theRun.reset();
      theContext.setView(view);
    }
  } runEnd{view};
  PlainReading reading;
  currentReading = &reading;
  QvNode* root = readRootOf(reading, file, name, complete);
  if (root == nullptr) return complete;
  // Inlined files add inputs of their own while the root is used.
  QvSceneInput& input = *reading.inputs.back();
  use(root);
  // A file may hold further roots after the first (a translation whose
  // root was a LOOP writes one for each repetition); viewers show them
  // all, each starting from the default state.
  while (complete && !input.eof()) {
    QvNode* next = nullptr;
    if (theContext.pushFile(name, file)) {
      DefTable* outer = theRun.defNames;
      theRun.defNames = &input.defNames();
      complete = readScene(&input, next);
      theRun.defNames = outer;
      theContext.popFile();
    }
    if (next == nullptr) break;
    next->ref();
    reading.roots.push_back(next);
    use(next);
  }
  return complete;
}

QvNode* readPlainNodeInRun(FILE* file, const char* name) {
  if (currentReading == nullptr) return nullptr;
  bool complete = false;
  return readRootOf(*currentReading, file, name, complete);
}

}  // namespace lumeric
