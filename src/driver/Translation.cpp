#include "driver/Translation.h"

#include <cerrno>
#include <cstring>
#include <exception>
#include <string>

#include <strings.h>

#include "core/FileAccess.h"
#include "core/OutputFile.h"
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

// Opens the input as given, else once more under `directory`; `opened` is
// the path that was opened.
FILE* openInput(const char* inputPath, const char* directory, int& errorNumber, std::string& opened) {
  opened = inputPath;
  FILE* file = openForReading(inputPath, errorNumber);
  if (file != nullptr || directory == nullptr) return file;
  std::string joined = std::string(directory) + inputPath;
  if (joined.size() > kMaxJoinedPath) return nullptr;
  int joinedError = 0;
  file = openForReading(joined.c_str(), joinedError);
  if (file == nullptr) {
    errorNumber = joinedError;
  } else {
    opened = joined;
  }
  return file;
}

void reportOpenFailure(const char* inputPath, const char* directory, int errorNumber) {
  theContext.reportInFile("Could not open %s for reading - Error # %d", inputPath, errorNumber);
  if (directory == nullptr) theContext.reportInFile("Path name is NULL");
}

// Reads the scene's root node with the input on the file stack.
QvNode* readRoot(QvSceneInput& input, const char* inputPath, FILE* inputFile) {
  QvNode* root = nullptr;
  if (theContext.pushFile(inputPath, inputFile)) {
    readScene(&input, root);
    theContext.popFile();
  }
  return root;
}

// Closes the output of the run.  A file replaces its target only when all
// of it was written; a stream the caller gave is only flushed.  Either way a
// failed write is reported.
void closeOutput(const OutputOverride* output, int writeError) {
  FILE* stream = theRun.outputFile;
  theRun.outputFile = nullptr;
  if (stream == nullptr) return;
  int errorNumber = 0;
  if (theRun.pendingOutput.isOpen()) {
    const std::string target = theRun.pendingOutput.target();
    // Whatever chose the output (-o, OUTPUT_TO, the default name), it never
    // replaces a file the run read; by now every INCLUDE has been read.
    if (theRun.pendingOutput.replacesTarget() && isFileBeingRead(target.c_str())) {
      theRun.pendingOutput.abandon();
      theContext.report("Refusing to overwrite %s, which this run reads", target.c_str());
      return;
    }
    switch (theRun.pendingOutput.commit(writeError, errorNumber)) {
      case OutputFile::kReplaced:
        return;
      case OutputFile::kCloseFailed:
        theContext.reportInFile("Output file not closed");
        return;
      case OutputFile::kWriteFailed:
        theContext.reportInFile("Could not write %s - Error # %d", target.c_str(), errorNumber);
        return;
    }
  }
  errno = 0;
  if (writeError == 0 && (std::fflush(stream) != 0 || std::ferror(stream))) writeError = errno != 0 ? errno : EIO;
  if (writeError != 0) {
    const char* name = output != nullptr && output->path != nullptr ? output->path : "standard output";
    theContext.reportInFile("Could not write %s - Error # %d", name, writeError);
  }
}

// Chooses and opens the output; returns its name.
const char* openOutput(const OutputOverride* output) {
  FILE*& outputFile = theRun.outputFile;
  if (output != nullptr && output->stream != nullptr) {
    outputFile = output->stream;
    return output->path != nullptr ? output->path : "-";
  }
  int errorNumber = 0;
  if (output != nullptr && output->path != nullptr) {
    outputFile = theRun.pendingOutput.open(output->path, errorNumber);
    if (outputFile == nullptr) {
      theContext.reportInFile("Could not open %s for writing - Error # %d", output->path, errorNumber);
    }
    return output->path;
  }
  if (outputFile == nullptr) {
    outputFile = theRun.pendingOutput.open(kDefaultOutputName, errorNumber);
    return kDefaultOutputName;
  }
  return theRun.outputFileName;
}

// The input path as the output's comment line shows it: each control
// character becomes "?", so that no path can add lines to the output.
std::string printablePath(const char* path) {
  std::string text(path);
  for (char& c : text) {
    const unsigned char byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7f) c = '?';
  }
  return text;
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
  std::string opened = inputPath;
  FILE* const given = additions != nullptr ? additions->inputStream : nullptr;
  FILE* inputFile = given != nullptr ? given : openInput(inputPath, directory, errorNumber, opened);
  if (inputFile == nullptr) {
    reportOpenFailure(inputPath, directory, errorNumber);
    closeOutput(output, 0);
    theRun.reset();
    return 0;
  }
  if (theRun.limits.confine) {
    theRun.confinedTo = resolvedDirectoryOf(opened.c_str());
    // An input whose directory cannot be resolved confines to nothing.
    if (theRun.confinedTo.empty()) theRun.confinedTo = "/nonexistent/";
  }
  if (theRun.nameRegistry == nullptr) theRun.nameRegistry = new QvNameTable();
  noteFileRead(inputFile);
  theRun.inputLocation = opened;
  if (additions != nullptr) {
    theRun.includedFiles = &additions->includedFiles;
    theRun.includeDirectories = &additions->includeDirectories;
  }
  int result = 0;
  {
    QvSceneInput input;
    input.setFile(inputFile);
    theRun.defNames = &input.defNames();
    QvNode* root = readRoot(input, inputPath, inputFile);
    if (root == nullptr) {
      result = 1;
    } else {
      NodeRef hold(root);
      if (applyAdditions(additions)) useRoot(root);
    }
    theRun.defNames = nullptr;
  }
  if (inputFile != given) std::fclose(inputFile);
  closeOutput(output, theRun.outputWriteError);
  if (additions != nullptr) additions->filesRead = theRun.filesRead;
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
      out.format("#Generated by VRMLLumeric from %s\n\n", printablePath(inputPath).c_str());
      root->write(out);
      out.flush();
      if (additions != nullptr) additions->nodesWritten = out.nodesOpened();
      theRun.outputWriteError = out.writeError();
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

int inspectScene(const char* inputPath, CReportErrorView* view, const char* directory, RunAdditions* additions,
                 const std::function<void(QvNode* root)>& inspect) {
  return guarded([&] {
    theRun.extensionsEnabled = true;
    theRun.sceneMayChooseOutput = false;
    return runTranslation(inputPath, view, directory, nullptr, additions, [&](QvNode* root) {
      root->evaluateInPlace();
      root->bindParents();
      inspect(root);
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
