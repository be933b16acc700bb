// The one library-wide context: the stack of scene files being read, the
// expression serial numbers and the host's view.  Every message of the
// library leaves through here.  The context knows places only as a file
// name and a line; the layers above turn their nodes, expressions and
// inputs into places (scene/SceneMessages.h, reader/ReadErrors.h).
#ifndef LUMERIC_CORE_QVCONTEXT_H
#define LUMERIC_CORE_QVCONTEXT_H

#include <cstdarg>
#include <cstdio>

#include "core/Failure.h"
#include "core/LastingState.h"
#include "lumeric/lumeric.h"

namespace lumeric {

class QvContext {
 public:
  static constexpr int kMaxFiles = 10;
  static constexpr int kMessageLimit = 999;
  // Flags a message is posted with.
  static constexpr int kWarning = 0;
  static constexpr int kError = 1;

  QvContext() = default;
  QvContext(const QvContext&) = delete;
  QvContext& operator=(const QvContext&) = delete;

  void setView(CReportErrorView* newView) { view = newView; }

  // The file stack stores the caller's pointers; the caller keeps the text
  // and the stream alive while they are on the stack.  `stream` is the open
  // file the name stands for, when there is one: it tells which file is being
  // read however the name reached it.  pushFile fails, changing nothing, when
  // kMaxFiles names are already there.
  bool pushFile(const char* name, FILE* stream = nullptr);
  void popFile();
  const char* topFile() const;

  // Message operations.  Each builds "prefix + message", cut at 999
  // characters, and posts it to the view with kError (report) or kWarning.
  //
  // At a place: the prefix is "File \"%s\" Line %d: " when `file` is not
  // empty, else "Line %d: ".
  Failure reportAt(const char* file, int line, const char* format, ...) __attribute__((format(printf, 4, 5)));
  void warnAt(const char* file, int line, const char* format, ...) __attribute__((format(printf, 4, 5)));
  // Without a place: no prefix.
  Failure report(const char* format, ...) __attribute__((format(printf, 2, 3)));
  void warn(const char* format, ...) __attribute__((format(printf, 2, 3)));
  // In the file on top of the stack: "File \"%s\" " when there is one.
  Failure reportInFile(const char* format, ...) __attribute__((format(printf, 2, 3)));
  // At `line` of the file on top of the stack: "File \"%s\" Line %d: " when
  // there is one, else "Line %d: ".
  Failure reportAtLineInFile(int line, const char* format, ...) __attribute__((format(printf, 3, 4)));
  // The forms above for wrappers that have already started their arguments.
  // A null `file` with `hasPlace` false means no prefix.
  void postAt(int flag, bool hasPlace, const char* file, int line, const char* format, va_list args);

  // Writes "VRML error in %s(): %s" to standard error; never to the host.
  static void programError(const char* operation, const char* format, ...)
      __attribute__((format(printf, 2, 3)));

  // Starts an evaluation: a new serial, which becomes the current one.
  int startEvaluation() { currentSerial = ++expressionSerials; return currentSerial; }
  // Draws a serial without making it current.
  int drawSerial() { return ++expressionSerials; }

  int fileDepth = -1;
  // A file on the stack: its name for messages and, when there is one, its
  // open stream.
  struct OpenFile {
    const char* name = nullptr;
    FILE* stream = nullptr;
  };
  OpenFile files[kMaxFiles] = {};
  int parseStatus = 0;
  // The serial of the evaluation in progress; the serials themselves
  // (expressionSerials) outlive runs.
  int currentSerial = 0;
  CReportErrorView* view = nullptr;

 private:
  void post(int flag, const char* prefix, const char* format, va_list args);
};

extern QvContext theContext;

}  // namespace lumeric

#endif  // LUMERIC_CORE_QVCONTEXT_H
