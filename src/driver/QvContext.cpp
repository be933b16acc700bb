#include "driver/QvContext.h"

#include <cstring>

#include "reader/FieldExpression.h"
#include "reader/QvNode.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

QvContext theContext;

bool QvContext::pushFile(const char* name) {
  if (fileDepth + 1 >= kMaxFiles) return false;
  fileNames[++fileDepth] = name;
  return true;
}

void QvContext::popFile() {
  if (fileDepth >= 0) fileNames[fileDepth--] = nullptr;
}

const char* QvContext::topFile() const { return fileDepth >= 0 ? fileNames[fileDepth] : nullptr; }

void QvContext::pushNode(QvNode* node) {
  if (nodeDepth >= kMaxNodes) {
    ++overflowDepth;
    return;
  }
  if (node != nullptr) node->ref();
  nodeStack[++nodeDepth] = node;
}

void QvContext::popNode() {
  if (overflowDepth > 0) {
    --overflowDepth;
    return;
  }
  if (nodeDepth == 0) return;
  QvNode* node = nodeStack[nodeDepth];
  nodeStack[nodeDepth--] = nullptr;
  if (node != nullptr) node->unref();
}

void QvContext::clearNodes() {
  overflowDepth = 0;
  while (nodeDepth > 0) popNode();
}

void QvContext::writeIndented(FILE* out, const char* format, ...) {
  for (int i = 0; i < indentLevel; ++i) std::fputc('\t', out);
  va_list args;
  va_start(args, format);
  std::vfprintf(out, format, args);
  va_end(args);
}

void QvContext::post(int flag, const char* prefix, const char* format, va_list args) {
  char text[kMessageLimit + 1];
  int used = std::snprintf(text, sizeof text, "%s", prefix);
  if (used < 0) used = 0;
  if (used < kMessageLimit) std::vsnprintf(text + used, sizeof text - static_cast<size_t>(used), format, args);
  if (view != nullptr) view->post(text, flag);
}

void QvContext::postNodeMessage(const QvNode* node, int flag, const char* format, va_list args) {
  char prefix[kMessageLimit + 1] = "";
  if (node != nullptr) {
    if (!node->fileName.isEmpty()) {
      std::snprintf(prefix, sizeof prefix, "File \"%s\" Line %d: ", node->fileName.text(), node->line);
    } else {
      std::snprintf(prefix, sizeof prefix, "Line %d: ", node->line);
    }
  }
  post(flag, prefix, format, args);
}

void QvContext::postExpressionMessage(const FieldExpression* expr, int flag, const char* format, va_list args) {
  char prefix[kMessageLimit + 1] = "";
  if (expr != nullptr) {
    if (expr->owner != nullptr && !expr->owner->fileName.isEmpty()) {
      std::snprintf(prefix, sizeof prefix, "File \"%s\" Line %d: ", expr->owner->fileName.text(), expr->line);
    } else {
      std::snprintf(prefix, sizeof prefix, "Line %d: ", expr->line);
    }
  }
  post(flag, prefix, format, args);
}

void QvContext::reportAtNode(const QvNode* node, const char* format, ...) {
  va_list args;
  va_start(args, format);
  postNodeMessage(node, 1, format, args);
  va_end(args);
}

void QvContext::warnAtNode(const QvNode* node, const char* format, ...) {
  va_list args;
  va_start(args, format);
  postNodeMessage(node, 0, format, args);
  va_end(args);
}

void QvContext::reportAtExpression(const FieldExpression* expr, const char* format, ...) {
  va_list args;
  va_start(args, format);
  postExpressionMessage(expr, 1, format, args);
  va_end(args);
}

void QvContext::warnAtExpression(const FieldExpression* expr, const char* format, ...) {
  va_list args;
  va_start(args, format);
  postExpressionMessage(expr, 0, format, args);
  va_end(args);
}

void QvContext::reportInFile(const char* format, ...) {
  char prefix[kMessageLimit + 1] = "";
  if (topFile() != nullptr) std::snprintf(prefix, sizeof prefix, "File \"%s\" ", topFile());
  va_list args;
  va_start(args, format);
  post(1, prefix, format, args);
  va_end(args);
}

void QvContext::readError(const QvSceneInput* in, const char* format, ...) {
  static char text[10000];
  va_list args;
  va_start(args, format);
  std::vsnprintf(text, sizeof text, format, args);
  va_end(args);
  reportInFile("Line %d: %s", in != nullptr ? in->getLine() : 0, text);
}

void QvContext::programError(const char* operation, const char* format, ...) {
  char text[kMessageLimit + 1];
  va_list args;
  va_start(args, format);
  std::vsnprintf(text, sizeof text, format, args);
  va_end(args);
  std::fprintf(stderr, "VRML error in %s(): %s", operation, text);
}

}  // namespace lumeric
