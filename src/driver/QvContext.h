// The one library-wide context: output indentation, the stack of scene files
// being read, the stack of nodes being visited, the expression serial numbers
// and the host's view.  Every message of the library leaves through here.
#ifndef LUMERIC_DRIVER_QVCONTEXT_H
#define LUMERIC_DRIVER_QVCONTEXT_H

#include <cstdarg>
#include <cstdio>

#include "lumeric/lumeric.h"

namespace lumeric {

class QvNode;
class FieldExpression;
class QvSceneInput;

class QvContext {
 public:
  static constexpr int kMaxFiles = 10;
  static constexpr int kMaxNodes = 63;
  static constexpr int kMessageLimit = 999;

  QvContext() = default;
  ~QvContext() { clearNodes(); }
  QvContext(const QvContext&) = delete;
  QvContext& operator=(const QvContext&) = delete;

  void setView(CReportErrorView* newView) { view = newView; }

  // The file stack stores the caller's pointer; the caller keeps the text
  // alive while it is on the stack.  pushFile fails, changing nothing, when
  // kMaxFiles names are already there.
  bool pushFile(const char* name);
  void popFile();
  const char* topFile() const;

  // pushNode takes a reference on the node; popNode releases the reference
  // its own push took.  The stack keeps kMaxNodes nodes; pushes beyond that
  // are only counted (and take no reference), so that every pop undoes
  // exactly its own push and topNode() stays the deepest stored node.  The
  // reader never builds trees deeper than the stack.
  void pushNode(QvNode* node);
  void popNode();
  QvNode* topNode() const { return nodeStack[nodeDepth]; }
  void clearNodes();

  // Writes indentLevel tabs, then the formatted text.
  void writeIndented(FILE* out, const char* format, ...) __attribute__((format(printf, 3, 4)));

  // Message operations.  Each builds "prefix + message", cut at 999
  // characters, and posts it to the view with flag 1 (report) or 0 (warn).
  void reportAtNode(const QvNode* node, const char* format, ...) __attribute__((format(printf, 3, 4)));
  void warnAtNode(const QvNode* node, const char* format, ...) __attribute__((format(printf, 3, 4)));
  void reportAtExpression(const FieldExpression* expr, const char* format, ...)
      __attribute__((format(printf, 3, 4)));
  void warnAtExpression(const FieldExpression* expr, const char* format, ...)
      __attribute__((format(printf, 3, 4)));
  void reportInFile(const char* format, ...) __attribute__((format(printf, 2, 3)));
  void readError(const QvSceneInput* in, const char* format, ...) __attribute__((format(printf, 3, 4)));

  // Writes "VRML error in %s(): %s" to standard error; never to the host.
  static void programError(const char* operation, const char* format, ...)
      __attribute__((format(printf, 2, 3)));

  // Starts an evaluation: a new serial, which becomes the current one.
  int startEvaluation() { currentSerial = ++serialCounter; return currentSerial; }
  // Draws a serial without making it current.
  int drawSerial() { return ++serialCounter; }

  int indentLevel = 0;
  int fileDepth = -1;
  const char* fileNames[kMaxFiles] = {};
  int parseStatus = 0;
  int currentSerial = 0;
  int serialCounter = 0;
  QvNode* nodeStack[kMaxNodes + 1] = {};
  int nodeDepth = 0;
  int overflowDepth = 0;
  CReportErrorView* view = nullptr;

 private:
  void postNodeMessage(const QvNode* node, int flag, const char* format, va_list args);
  void postExpressionMessage(const FieldExpression* expr, int flag, const char* format, va_list args);
  void post(int flag, const char* prefix, const char* format, va_list args);
};

extern QvContext theContext;

}  // namespace lumeric

#endif  // LUMERIC_DRIVER_QVCONTEXT_H
