#include "reader/NodeReader.h"

#include <cstring>
#include <memory>
#include <string>

#include "driver/LibraryState.h"
#include "driver/QvContext.h"
#include "lumeric/lumeric.h"
#include "reader/FieldExpression.h"
#include "reader/NodeFactory.h"
#include "reader/QvNode.h"
#include "reader/QvSceneInput.h"
#include "reader/QvUnknownNode.h"

namespace lumeric {

namespace {

int nestingDepth = 0;

class NestingLevel {
 public:
  NestingLevel() { ++nestingDepth; }
  ~NestingLevel() { --nestingDepth; }
  NestingLevel(const NestingLevel&) = delete;
  NestingLevel& operator=(const NestingLevel&) = delete;
};

bool named(QvAtom atom, const char* text) { return std::strcmp(atom.text(), text) == 0; }

bool isStatementKeyword(QvAtom name) {
  if (named(name, "USE")) return true;
  if (!extensionsEnabled) return false;
  static const char* const kKeywords[] = {"SET", "APPEND", "DECLARE", "OUTPUT_TO", "INCLUDE", "PRECISION", "PRINT"};
  for (const char* keyword : kKeywords) {
    if (named(name, keyword)) return true;
  }
  return false;
}

void stampPosition(QvNode* node, int line) {
  node->line = line;
  const char* file = theContext.topFile();
  if (file != nullptr) node->fileName = QvAtom(file);
}

bool expectChar(QvSceneInput* in, char expected) {
  char c;
  if (!in->readChar(c)) {
    theContext.readError(in, "Expected '%c'; got EOF", expected);
    return false;
  }
  if (c != expected) {
    theContext.readError(in, "Expected '%c'; got '%c'", expected, c);
    return false;
  }
  return true;
}

// The DEF or VARNAME prefix: reads what follows the keyword and leaves the
// real type name in `typeName`.
bool readPrefix(QvSceneInput* in, QvAtom& typeName, QvAtom& defName, std::unique_ptr<FieldExpression>& nameText) {
  if (named(typeName, "DEF")) {
    bool readsOk = in->readName(defName, QvSceneInput::kDefName) && in->readName(typeName, QvSceneInput::kUpperName);
    if (!readsOk) typeName = QvAtom();
    bool ok = readsOk;
    if (!readsOk) theContext.readError(in, "Premature end of file after DEF");
    if (defName.isEmpty()) {
      theContext.readError(in, "No name given after %s", "DEF");
      ok = false;
    }
    if (typeName.isEmpty()) {
      theContext.readError(in, "Invalid definition of %s", defName.text());
      ok = false;
    }
    return ok;
  }
  if (named(typeName, "VARNAME") && extensionsEnabled) {
    nameText = std::make_unique<FieldExpression>();
    bool readsOk = in->readValueText(*nameText, nullptr);
    readsOk = in->readName(typeName, QvSceneInput::kUpperName) && readsOk;
    bool ok = readsOk;
    if (!readsOk) theContext.readError(in, "Premature end of file after VARNAME");
    if (!nameText->hasText()) {
      theContext.readError(in, "No expression given after %s", "VARNAME");
      ok = false;
    }
    if (typeName.isEmpty()) {
      // There is no DEF name on this path; the expression names the node.
      theContext.readError(in, "Invalid definition of %s", nameText->hasText() ? nameText->text() : "");
      ok = false;
    }
    return ok;
  }
  return true;
}

bool readNodeBody(QvSceneInput* in, QvAtom typeName, int line, QvNode*& node) {
  node = nullptr;
  QvAtom defName;
  std::unique_ptr<FieldExpression> nameText;
  if (!readPrefix(in, typeName, defName, nameText)) return false;
  if (!defName.isEmpty() || nameText != nullptr) line = in->getLine();
  if (!expectChar(in, '{')) return false;

  node = createNode(in, typeName, line);
  if (node == nullptr) {
    skipToClosingBrace(in);
    return false;
  }
  if (!defName.isEmpty()) in->addName(defName, node);
  if (!node->readInstance(in)) {
    skipToClosingBrace(in);
    return false;
  }
  if (!expectChar(in, '}')) return false;
  if (nameText != nullptr && nameText->hasText()) {
    nameText->line = node->line;
    nameText->owner = node;
    node->setNameExpression(nameText.release());
  }
  return true;
}

}  // namespace

bool readScene(QvSceneInput* in, QvNode*& root) {
  root = nullptr;
  bool ok = readNode(in, root);
  if (ok && root == nullptr && !in->eof()) {
    char c;
    if (in->getChar(c)) {
      theContext.readError(in, "Extra characters ('%c') found in input", c);
      return false;
    }
  }
  // After a read error the root, when there is one, keeps what was read
  // before it.
  return ok;
}

bool readNode(QvSceneInput* in, QvNode*& node) {
  node = nullptr;
  NestingLevel level;
  QvAtom typeName;
  if (!in->readName(typeName, QvSceneInput::kUpperName)) return in->isUsable();
  if (typeName.isEmpty() || named(typeName, "NULL")) return true;
  int line = in->getLine();
  if (nestingDepth > kMaxNodeNesting) {
    theContext.readError(in, "Nodes nested too deep - at most %d levels", kMaxNodeNesting);
    return false;
  }
  if (isStatementKeyword(typeName)) {
    node = createStatement(typeName.text());
    if (node == nullptr) return true;
    stampPosition(node, line);
    node->readInstance(in);
    return true;
  }
  return readNodeBody(in, typeName, line, node);
}

void discardNode(QvNode* node) {
  if (node == nullptr) return;
  node->ref();
  node->unref();
}

QvNode* createNode(QvSceneInput* in, QvAtom typeName, int line) {
  QvNode* node = createStandardNode(typeName.text());
  if (node == nullptr && extensionsEnabled) node = createExtensionNode(typeName.text());
  if (node == nullptr) {
    std::string word;
    in->readString(word);
    if (word != "fields") {
      theContext.readError(in, "Unknown class \"%s\"", typeName.text());
      return nullptr;
    }
    node = new QvUnknownNode(typeName);
    in->putBackWord("fields");
    stampPosition(node, line);
    if ((gWarn & 2) != 0) theContext.warnAtNode(node, "Warning: Unknown \"%s\" node found", typeName.text());
    return node;
  }
  stampPosition(node, line);
  return node;
}

bool refuseFieldSpecification(QvSceneInput* in) {
  // The word is read whole and given back whole: a statement's first word
  // is a value text that may be far longer than the longest name kept.
  std::string word;
  char c;
  if (!in->skipWhiteSpace()) return true;
  while (in->getChar(c)) {
    if (!isNameChar(c)) {
      in->putBackChar(c);
      break;
    }
    word += c;
  }
  if (word == "fields") {
    theContext.readError(in, "Cannot use a fields specifications with this node");
    return false;
  }
  in->putBackWord(word.c_str());
  return true;
}

void skipToClosingBrace(QvSceneInput* in) {
  int depth = 1;
  char c;
  while (depth > 0 && in->getChar(c)) {
    if (c == '{') {
      ++depth;
    } else if (c == '}') {
      --depth;
    }
  }
}

}  // namespace lumeric
