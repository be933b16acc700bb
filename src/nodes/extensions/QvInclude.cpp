#include "nodes/extensions/QvInclude.h"

#include <cstdio>
#include <string>
#include <vector>

#include "core/FileAccess.h"
#include "core/QvContext.h"
#include "core/RunState.h"
#include "scene/FieldExpression.h"
#include "reader/NodeReader.h"
#include "scene/NodeVisit.h"
#include "reader/QvSceneInput.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

// The file holding the INCLUDE being read: at the top, where the input is
// (it may have been found under another directory, or be a stream).
std::string includingFile() {
  if (theContext.fileDepth <= 0 && !theRun.inputLocation.empty()) return theRun.inputLocation;
  const char* top = theContext.topFile();
  return top != nullptr ? top : "";
}

// Where INCLUDE looks for `name`, in order: as written, beside the
// including file, then in each of the run's include directories.  An
// absolute name is only taken as written.
std::vector<std::string> placesFor(const std::string& name) {
  std::vector<std::string> places{name};
  if (name.empty() || name[0] == '/') return places;
  const std::string beside = directoryPrefixOf(includingFile());
  if (!beside.empty()) places.push_back(beside + name);
  if (theRun.includeDirectories != nullptr) {
    for (const std::string& directory : *theRun.includeDirectories) {
      if (!directory.empty()) places.push_back(directory.back() == '/' ? directory + name : directory + "/" + name);
    }
  }
  return places;
}

// Opens the first place for `name` that confinement allows and that opens;
// `opened` is its path.  When none does, `refusal` tells why the first
// place refused was refused (null when none was).
FILE* openIncluded(const std::string& name, std::string& opened, const char*& refusal) {
  refusal = nullptr;
  for (const std::string& place : placesFor(name)) {
    if (const char* why = confinementRefusal(place.c_str(), false)) {
      if (refusal == nullptr) refusal = why;
      continue;
    }
    int errorNumber = 0;
    if (FILE* file = openForReading(place.c_str(), errorNumber)) {
      opened = place;
      return file;
    }
  }
  return nullptr;
}

}  // namespace

bool QvInclude::readInstance(QvSceneInput* in) {
  if (!refuseFieldSpecification(in)) return false;
  FieldExpression nameText;
  if (!in->readValueText(nameText, this)) nameText.setText("");
  QvNode* root = includeFile(nameText, in);
  if (root != nullptr) addChild(root);
  return true;
}

QvNode* QvInclude::includeFile(FieldExpression& nameText, QvSceneInput* in) {
  const char* name = nameText.text() != nullptr ? nameText.text() : "";
  std::string opened;
  const char* refusal = nullptr;
  FILE* file = openIncluded(name, opened, refusal);
  if (file == nullptr && refusal != nullptr) {
    return reportAtExpression(&nameText, "Cannot INCLUDE file %s - %s", name, refusal);
  }
  if (file == nullptr) return reportAtExpression(&nameText, "Cannot open INCLUDE file %s", name);
  noteFileRead(file);
  if (theRun.includedFiles != nullptr) theRun.includedFiles->push_back(opened);
  // Messages name the file as opened, and its own INCLUDEs look beside it.
  if (!theContext.pushFile(opened.c_str(), file)) {
    std::fclose(file);
    return reportAtExpression(&nameText, "Cannot INCLUDE file %s - Files nested too deep", name);
  }
  auto saved = in->saveState();
  in->setFile(file);
  QvNode* root = nullptr;
  readScene(in, root);
  std::fclose(file);
  in->restoreState(std::move(saved));
  theContext.popFile();
  return root;
}

void QvInclude::evaluate(QvGroupNode* parentGroup, bool copy) {
  NodeVisit visit(this);
  for (int i = 0; i < children.getLength(); ++i) {
    QvNode* child = children.get(i);
    if (child != nullptr) child->evaluate(parentGroup, copy);
  }
}

void QvInclude::write(SceneWriter& out) {
  NodeVisit visit(this);
  writeChildren(out);
}

}  // namespace lumeric
