#include "scene/FieldNameCandidates.h"

#include "scene/NodeVisit.h"
#include "scene/QvFieldTable.h"
#include "scene/QvNode.h"

namespace lumeric {

void collectFieldNames(QvNode* node, std::vector<std::string>& names) {
  QvFieldTable* table = node != nullptr ? node->getFieldTable() : nullptr;
  if (table == nullptr) return;
  for (int i = 0; i < table->getNumFields(); ++i) names.push_back(table->getFieldName(i).text());
}

void FieldNameCandidates::collect(std::vector<std::string>& names) const {
  collectFieldNames(node_, names);
  if (!inScope_) return;
  for (QvNode* node = theNodeStack.top(); node != nullptr; node = node->parent) collectFieldNames(node, names);
}

}  // namespace lumeric
