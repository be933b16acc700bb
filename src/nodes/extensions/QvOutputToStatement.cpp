#include "nodes/extensions/QvOutputToStatement.h"

#include <cstring>
#include <string>

#include "core/FileAccess.h"
#include "core/RunState.h"
#include "reader/QvSceneInput.h"
#include "reader/ReadErrors.h"

namespace lumeric {

bool QvOutputToStatement::readInstance(QvSceneInput* in) {
  if (!refuseFieldSpecification(in)) return false;
  std::string name = readWord(in);
  if (name.empty() || theRun.outputFile != nullptr || !theRun.sceneMayChooseOutput) return true;
  // The name must fit the buffer the host receives it in; a longer one
  // would come back cut, naming a file that was never written.
  if (name.size() >= static_cast<size_t>(kOutputNameSize)) {
    readError(in, "Output file name too long - at most %d characters", kOutputNameSize - 1);
    return true;
  }
  if (const char* refusal = confinementRefusal(name.c_str(), true)) {
    readError(in, "Cannot OUTPUT_TO file %s - %s", name.c_str(), refusal);
    return true;
  }
  // The output replaces its file only at the end of the run, when the
  // reading is over; still, a scene never replaces a file it is made of.
  if (isFileBeingRead(name.c_str())) {
    readError(in, "Cannot OUTPUT_TO file %s - File is being read", name.c_str());
    return true;
  }
  int errorNumber = 0;
  FILE* file = theRun.pendingOutput.open(name.c_str(), errorNumber);
  if (file == nullptr) return true;
  theRun.outputFile = file;
  std::memcpy(theRun.outputFileName, name.c_str(), name.size() + 1);
  return true;
}

void QvOutputToStatement::write(SceneWriter&) { parent = theNodeStack.top(); }

}  // namespace lumeric
