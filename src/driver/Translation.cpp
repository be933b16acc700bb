#include "driver/Translation.h"

#include <cerrno>
#include <cstring>
#include <exception>
#include <string>

#include <strings.h>

#include "core/QvContext.h"
#include "core/QvNameTable.h"
#include "core/RunState.h"
#include "driver/FieldOverrides.h"
#include "driver/LibrarySetUp.h"
#include "reader/NodeReader.h"
#include "reader/QvSceneInput.h"
#include "scene/QvNode.h"
#include "writer/SceneWriter.h"

namespace lumeric {

namespace {

constexpr char kDefaultOutputName[] = "output.wrl";
constexpr size_t kMaxJoinedPath = 511;

// Opens the input as given, else once more under `directory`.
FILE* openInput(const char* inputPath, const char* directory, int& errorNumber) {
  errno = 0;
  FILE* file = std::fopen(inputPath, "r");
  errorNumber = errno;
  if (file != nullptr || directory == nullptr) return file;
  std::string joined = std::string(directory) + inputPath;
  if (joined.size() > kMaxJoinedPath) return nullptr;
  errno = 0;
  file = std::fopen(joined.c_str(), "r");
  if (file == nullptr) errorNumber = errno;
  return file;
}

void reportOpenFailure(const char* inputPath, const char* directory, int errorNumber) {
  theContext.reportInFile("Could not open %s for reading - Error # %d", inputPath, errorNumber);
  if (directory == nullptr) theContext.reportInFile("Path name is NULL");
}

// Reads the scene's root node with the input on the file stack.
QvNode* readRoot(QvSceneInput& input, const char* inputPath) {
  QvNode* root = nullptr;
  if (theContext.pushFile(inputPath)) {
    readScene(&input, root);
    theContext.popFile();
  }
  return root;
}

// Closes the output file of the run: "Output file not closed" when that
// fails.  A stream the caller gave is only flushed.
void closeOutput(const OutputOverride* output) {
  FILE*& outputFile = theRun.outputFile;
  if (outputFile == nullptr) return;
  if (output != nullptr && output->stream == outputFile) {
    std::fflush(outputFile);
  } else if (std::fclose(outputFile) != 0) {
    theContext.reportInFile("Output file not closed");
  }
  outputFile = nullptr;
}

// Chooses and opens the output; returns its name.
const char* openOutput(const OutputOverride* output) {
  FILE*& outputFile = theRun.outputFile;
  if (output != nullptr && output->stream != nullptr) {
    outputFile = output->stream;
    return output->path != nullptr ? output->path : "-";
  }
  if (output != nullptr && output->path != nullptr) {
    errno = 0;
    outputFile = std::fopen(output->path, "w+");
    if (outputFile == nullptr) {
      theContext.reportInFile("Could not open %s for writing - Error # %d", output->path, errno);
    }
    return output->path;
  }
  if (outputFile == nullptr) {
    outputFile = std::fopen(kDefaultOutputName, "w+");
    return kDefaultOutputName;
  }
  return theRun.outputFileName;
}

void copyName(char* target, const char* name) {
  if (target == nullptr) return;
  std::strncpy(target, name, kOutputNameSize - 1);
  target[kOutputNameSize - 1] = '\0';
}

// Whether the run goes on to evaluate the scene after the additions.
bool applyAdditions(RunAdditions* additions) {
  return additions == nullptr || applyFieldOverrides(additions->overrides, additions->overrideError);
}

// What both entry points do: open, read, apply the additions, then
// `useRoot` on the root, then clean up.  Returns the entry point's result.
template <typename UseRoot>
int runTranslation(const char* inputPath, CReportErrorView* view, const char* directory,
                   const OutputOverride* output, RunAdditions* additions, UseRoot useRoot) {
  installLibraryOperations();
  theContext.setView(view);
  if (inputPath == nullptr) inputPath = "";
  int errorNumber = 0;
  FILE* inputFile = openInput(inputPath, directory, errorNumber);
  if (inputFile == nullptr) {
    reportOpenFailure(inputPath, directory, errorNumber);
    closeOutput(output);
    theRun.reset();
    return 0;
  }
  if (theRun.nameRegistry == nullptr) theRun.nameRegistry = new QvNameTable();
  if (additions != nullptr) theRun.includedFiles = &additions->includedFiles;
  int result = 0;
  {
    QvSceneInput input;
    input.setFile(inputFile);
    theRun.defNames = &input.defNames();
    QvNode* root = readRoot(input, inputPath);
    if (root == nullptr) {
      result = 1;
    } else {
      QvNodeRef hold(root);
      if (applyAdditions(additions)) useRoot(root);
    }
    theRun.defNames = nullptr;
  }
  std::fclose(inputFile);
  closeOutput(output);
  theRun.reset();
  return result;
}

template <typename Body>
int guarded(Body body) {
  // Nothing thrown may cross the library's boundary; the only exception the
  // library can meet is exhausted memory.
  try {
    return body();
  } catch (const std::exception&) {
    theContext.reportInFile("Out of memory");
  } catch (...) {
    theContext.reportInFile("Internal error");
  }
  theRun.reset();
  return 0;
}

}  // namespace

int translateScene(const char* inputPath, CReportErrorView* view, const char* directory, char* outputNameOut,
                   const OutputOverride* output, RunAdditions* additions) {
  return guarded([&] {
    theRun.extensionsEnabled = true;
    theRun.sceneMayChooseOutput = output == nullptr;
    return runTranslation(inputPath, view, directory, output, additions, [&](QvNode* root) {
      copyName(outputNameOut, openOutput(output));
      if (theRun.outputFile == nullptr) return;
      root->evaluateInPlace();
      root->bindParents();
      SceneWriter out(theRun.outputFile);
      out.text("#VRML V1.0 ascii\n\n");
      out.format("#Generated by VRMLLumeric from %s\n\n", inputPath);
      root->write(out);
    });
  });
}

int checkScene(const char* inputPath, CReportErrorView* view, const char* directory, const char* fileType,
               RunAdditions* additions) {
  return guarded([&] {
    theRun.extensionsEnabled = fileType != nullptr && strcasecmp(fileType, "vlm") == 0;
    theRun.sceneMayChooseOutput = true;
    return runTranslation(inputPath, view, directory, nullptr, additions, [](QvNode* root) {
      root->evaluateInPlace();
      root->bindParents();
      root->check();
    });
  });
}

}  // namespace lumeric

extern "C" int ParseVRMLLumeric(char* inputPath, CReportErrorView* view, char* directory, char* outputNameOut) {
  return lumeric::translateScene(inputPath, view, directory, outputNameOut, nullptr);
}

extern "C" int CheckSyntax(char* inputPath, CReportErrorView* view, char* directory, char* fileType) {
  return lumeric::checkScene(inputPath, view, directory, fileType);
}
