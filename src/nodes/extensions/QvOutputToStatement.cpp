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
  std::string outputName = readWord(in);
  if (outputName.empty() || theRun.outputFile != nullptr || !theRun.sceneMayChooseOutput) return true;
  // The name must fit the buffer the host receives it in; a longer one
  // would come back cut, naming a file that was never written.
  if (outputName.size() >= static_cast<size_t>(kOutputNameSize)) {
    readError(in, "Output file name too long - at most %d characters", kOutputNameSize - 1);
    return true;
  }
  if (const char* refusal = confinementRefusal(outputName.c_str(), true)) {
    readError(in, "Cannot OUTPUT_TO file %s - %s", outputName.c_str(), refusal);
    return true;
  }
  // The output replaces its file only at the end of the run, when the
  // reading is over; still, a scene never replaces a file it is made of.
  if (isFileBeingRead(outputName.c_str())) {
    readError(in, "Cannot OUTPUT_TO file %s - File is being read", outputName.c_str());
    return true;
  }
  int errorNumber = 0;
  FILE* file = theRun.pendingOutput.open(outputName.c_str(), errorNumber);
  if (file == nullptr) return true;
  theRun.outputFile = file;
  std::memcpy(theRun.outputFileName, outputName.c_str(), outputName.size() + 1);
  return true;
}

void QvOutputToStatement::write(SceneWriter&) { parent = theNodeStack.top(); }

}  // namespace lumeric
