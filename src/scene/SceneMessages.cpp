#include "scene/SceneMessages.h"

#include <cmath>

#include "core/MessageDetails.h"
#include "core/QvContext.h"
#include "core/VariadicArguments.h"
#include "scene/FieldExpression.h"
#include "scene/QvNode.h"

namespace lumeric {

namespace {

// The file a message at `node` names: none for a copy, whose original's
// file goes with the message as a detail (core/MessageDetails.h).
void postInFileOf(const QvNode* node, int flag, bool hasPlace, int line, const char* format, va_list args) {
  if (node == nullptr || !node->isCopy) {
    theContext.postAt(flag, hasPlace, node != nullptr ? node->fileName.text() : nullptr, line, format, args);
    return;
  }
  CopiedFromFile detail(node->fileName.isEmpty() ? nullptr : node->fileName.text());
  theContext.postAt(flag, hasPlace, nullptr, line, format, args);
}

void postAtNode(int flag, const QvNode* node, const char* format, va_list args) {
  postInFileOf(node, flag, node != nullptr, node != nullptr ? node->line : 0, format, args);
}

void postAtExpression(int flag, const FieldExpression* expr, const char* format, va_list args) {
  postInFileOf(expr != nullptr ? expr->owner : nullptr, flag, expr != nullptr, expr != nullptr ? expr->line : 0,
               format, args);
}

}  // namespace

Failure reportAtNode(const QvNode* node, const char* format, ...) {
  LUMERIC_WITH_VA_ARGS(postAtNode(QvContext::kError, node, format, args));
  return Failure();
}

void warnAtNode(const QvNode* node, const char* format, ...) {
  LUMERIC_WITH_VA_ARGS(postAtNode(QvContext::kWarning, node, format, args));
}

Failure reportAtExpression(const FieldExpression* expr, const char* format, ...) {
  LUMERIC_WITH_VA_ARGS(postAtExpression(QvContext::kError, expr, format, args));
  return Failure();
}

void warnAtExpression(const FieldExpression* expr, const char* format, ...) {
  LUMERIC_WITH_VA_ARGS(postAtExpression(QvContext::kWarning, expr, format, args));
}

void reportAt(const FieldExpression* at, const char* message) { reportAtExpression(at, "%s", message); }

namespace {

constexpr char kNotFinite[] = "Number is not finite";

}  // namespace

double finiteAt(double v, const FieldExpression* at) {
  if (std::isfinite(v)) return v;
  reportAtExpression(at, kNotFinite);
  return 0;
}

double finiteAt(double v, const QvNode* at) {
  if (std::isfinite(v)) return v;
  reportAtNode(at, kNotFinite);
  return 0;
}

}  // namespace lumeric
