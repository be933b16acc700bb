#include "reader/NodeReader.h"

#include <cstring>
#include <memory>
#include <string>

#include "core/CharacterClasses.h"
#include "core/MessageDetails.h"
#include "core/QvContext.h"
#include "core/LastingState.h"
#include "core/RunState.h"
#include "reader/FieldReading.h"
#include "reader/QvSceneInput.h"
#include "reader/QvUnknownNode.h"
#include "reader/ReadErrors.h"
#include "scene/FieldExpression.h"
#include "scene/FieldNameCandidates.h"
#include "scene/QvFieldTable.h"
#include "scene/QvGroupNode.h"
#include "scene/QvNode.h"
#include "scene/SceneMessages.h"
#include "scene/SceneOperations.h"

namespace lumeric {

namespace {

class NestingLevel {
 public:
  NestingLevel() { ++theRun.readingDepth; }
  ~NestingLevel() { --theRun.readingDepth; }
  NestingLevel(const NestingLevel&) = delete;
  NestingLevel& operator=(const NestingLevel&) = delete;
};

// The statement `name` starts, or null when it starts none.  The statement
// factory is the one list of keywords; USE belongs to plain VRML, the
// others only to the extended language.
QvNode* createStatementFor(QvAtom name) {
  if (!theRun.extensionsEnabled && !name.named("USE")) return nullptr;
  return sceneOperations().createStatement(name.text());
}

void stampPosition(QvNode* node, int line) {
  node->line = line;
  const char* file = theContext.topFile();
  if (file != nullptr) node->fileName = QvAtom(file);
}

// The node classes, for the hint of "Unknown class".
class ClassCandidates : public NameCandidates {
 public:
  explicit ClassCandidates(const char* word) : NameCandidates(kClass, word) {}
  void collect(std::vector<std::string>& names) const override {
    if (sceneOperations().collectNodeClassNames != nullptr) sceneOperations().collectNodeClassNames(names);
  }
};

// The closing brace of `node`.  A name met instead is usually a field name
// written in another case (the reader takes field names from a lower-case
// letter on), which the message offers as a detail.
bool expectClosingBrace(QvSceneInput* in, QvNode* node) {
  char c;
  if (!in->readChar(c)) return readError(in, "Expected '%c'; got EOF", '}');
  if (c == '}') return true;
  const std::string word = isNameChar(c) ? c + in->peekNameRest() : std::string();
  FieldNameCandidates meant(NameCandidates::kFieldCase, word.c_str(), node);
  OfferedCandidates offered(meant);
  return readError(in, "Expected '%c'; got '%c'", '}', c);
}

bool expectChar(QvSceneInput* in, char expected) {
  char c;
  if (!in->readChar(c)) return readError(in, "Expected '%c'; got EOF", expected);
  if (c != expected) return readError(in, "Expected '%c'; got '%c'", expected, c);
  return true;
}

// The DEF or VARNAME prefix: reads what follows the keyword and leaves the
// real type name in `typeName`.
bool readPrefix(QvSceneInput* in, QvAtom& typeName, QvAtom& defName, std::unique_ptr<FieldExpression>& nameText) {
  if (typeName.named("DEF")) {
    bool readsOk = in->readName(defName, QvSceneInput::kDefName) && in->readName(typeName, QvSceneInput::kUpperName);
    if (!readsOk) typeName = QvAtom();
    bool ok = readsOk;
    if (!readsOk) readError(in, "Premature end of file after DEF");
    if (defName.isEmpty()) {
      readError(in, "No name given after %s", "DEF");
      ok = false;
    }
    if (typeName.isEmpty()) {
      readError(in, "Invalid definition of %s", defName.text());
      ok = false;
    }
    return ok;
  }
  if (typeName.named("VARNAME") && theRun.extensionsEnabled) {
    nameText = std::make_unique<FieldExpression>();
    bool readsOk = in->readValueText(*nameText, nullptr);
    readsOk = in->readName(typeName, QvSceneInput::kUpperName) && readsOk;
    bool ok = readsOk;
    if (!readsOk) readError(in, "Premature end of file after VARNAME");
    if (!nameText->hasText()) {
      readError(in, "No expression given after %s", "VARNAME");
      ok = false;
    }
    if (typeName.isEmpty()) {
      // There is no DEF name on this path; the expression names the node.
      readError(in, "Invalid definition of %s", nameText->hasText() ? nameText->text() : "");
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
  if (!expectClosingBrace(in, node)) return false;
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
      // A NUL byte would end the message text; it is shown as \0.
      if (c == '\0') return readError(in, "Extra characters ('\\0') found in input");
      return readError(in, "Extra characters ('%c') found in input", c);
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
  if (typeName.isEmpty() || typeName.named("NULL")) return true;
  int line = in->getLine();
  if (theRun.readingDepth > kMaxNodeDepth) {
    return readError(in, "Nodes nested too deep - at most %d levels", kMaxNodeDepth);
  }
  node = createStatementFor(typeName);
  if (node != nullptr) {
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
  QvNode* node = sceneOperations().createStandardNode(typeName.text());
  if (node == nullptr && theRun.extensionsEnabled) node = sceneOperations().createExtensionNode(typeName.text());
  if (node == nullptr) {
    std::string word;
    in->readString(word);
    if (word != "fields") {
      ClassCandidates meant(typeName.text());
      OfferedCandidates offered(meant);
      return readError(in, "Unknown class \"%s\"", typeName.text());
    }
    node = new QvUnknownNode(typeName);
    in->putBackWord("fields");
    stampPosition(node, line);
    if (warningsEnabled(kWarnUnknownNodes)) warnAtNode(node, "Warning: Unknown \"%s\" node found", typeName.text());
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
  if (word == "fields") return readError(in, "Cannot use a fields specifications with this node");
  in->putBackWord(word.c_str());
  return true;
}

bool readLeafBody(QvSceneInput* in, QvNode* node) {
  if (node->getFieldTable() == nullptr) return true;
  if (!readFieldSpecification(in, node)) return false;
  return readFieldValues(in, node, true);
}

bool readGroupBody(QvSceneInput* in, QvGroupNode* group) {
  if (group->getFieldTable() != nullptr) {
    if (!group->isBuiltIn && !readFieldSpecification(in, group)) return false;
    if (!readFieldValues(in, group, false)) return false;
  }
  return readChildren(in, group);
}

bool readChildren(QvSceneInput* in, QvGroupNode* group) {
  for (;;) {
    QvNode* child = nullptr;
    if (!readNode(in, child)) {
      discardNode(child);
      return false;
    }
    if (child == nullptr) return true;
    group->addChild(child);
  }
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
