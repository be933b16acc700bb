#include "nodes/extensions/QvOutputToStatement.h"

#include <cstring>
#include <string>

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
  FILE* file = std::fopen(name.c_str(), "w+");
  if (file == nullptr) return true;
  theRun.outputFile = file;
  std::memcpy(theRun.outputFileName, name.c_str(), name.size() + 1);
  return true;
}

void QvOutputToStatement::write(SceneWriter&) { parent = theNodeStack.top(); }

}  // namespace lumeric
