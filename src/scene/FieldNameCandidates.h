// The field names a refused field name is compared with: those of one node
// and, for a reference that searches its scope, those of every enclosing
// node on the visit stack (scene/NodeVisit.h), gathered when asked.
#ifndef LUMERIC_SCENE_FIELDNAMECANDIDATES_H
#define LUMERIC_SCENE_FIELDNAMECANDIDATES_H

#include <string>
#include <vector>

#include "core/MessageDetails.h"

namespace lumeric {

class QvNode;

class FieldNameCandidates : public NameCandidates {
 public:
  // `node` may be null (no names of its own); with `inScope` the names of
  // the nodes on the visit stack follow, from the innermost out.
  FieldNameCandidates(Kind kind, const char* word, QvNode* node, bool inScope = false)
      : NameCandidates(kind, word), node_(node), inScope_(inScope) {}
  void collect(std::vector<std::string>& names) const override;

 private:
  QvNode* node_;
  bool inScope_;
};

// Appends the names of `node`'s fields (none for a null node or a statement).
void collectFieldNames(QvNode* node, std::vector<std::string>& names);

}  // namespace lumeric

#endif  // LUMERIC_SCENE_FIELDNAMECANDIDATES_H
