#include "nodes/extensions/QvOutputToStatement.h"

#include <cstring>
#include <string>

#include "driver/LibraryState.h"
#include "driver/Translation.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

bool QvOutputToStatement::readInstance(QvSceneInput* in) {
  if (!refuseFieldSpecification(in)) return false;
  std::string name = readWord(in);
  if (name.empty() || outputFile != nullptr || !outputMayBeChosenByScene()) return true;
  // The name must fit the buffer the host receives it in; a longer one
  // would come back cut, naming a file that was never written.
  if (name.size() >= static_cast<size_t>(kOutputNameSize)) {
    theContext.readError(in, "Output file name too long - at most %d characters", kOutputNameSize - 1);
    return true;
  }
  FILE* file = std::fopen(name.c_str(), "w+");
  if (file == nullptr) return true;
  outputFile = file;
  std::memcpy(outputFileName, name.c_str(), name.size() + 1);
  return true;
}

void QvOutputToStatement::write(FILE*) { parent = theContext.topNode(); }

}  // namespace lumeric
