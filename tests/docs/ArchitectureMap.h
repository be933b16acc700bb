// The map of the code (docs/architecture.md) read as data: its table of
// layers, the exceptions it names ("`FILE` includes `HEADER`") and the
// names it puts in backticks, so that a test can hold the code to it.
#ifndef LUMERIC_TESTS_DOCS_ARCHITECTUREMAP_H
#define LUMERIC_TESTS_DOCS_ARCHITECTUREMAP_H

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace lumeric {

struct Layer {
  int number = 0;
  std::string folder;        // as the table writes it: "core/", "web/engine/"
  std::set<int> mayInclude;  // the numbers of the other layers it may include
};

struct LayerMap {
  std::vector<Layer> layers;
  std::vector<std::pair<std::string, std::string>> exceptions;  // file, header
};

// Reads the table of the "## Layers" section of `markdown`, whose rows are
// "| number | `folder/` | purpose | may include |", the last column holding
// numbers and ranges ("1-3"), backticked folders, "everything" (every
// layer before it) or "nothing else".  A row that cannot be read is
// described in `problems`.
LayerMap readLayerMap(const std::string& markdown, std::vector<std::string>& problems);

// The includes of `text` (the file at `path` from the top of the tree,
// "src/expr/Term.cpp" or "web/engine/Engine.cpp") that the map forbids,
// each as "path:line: includes header".  Files of no layer include freely.
// A header is always named with its folder ("expr/Term.h", the generated
// "expr/ExpressionGrammar.h" too).
std::vector<std::string> forbiddenIncludes(const LayerMap& map, const std::string& path, const std::string& text);

// Every text the document puts in backticks outside fenced blocks, once.
std::vector<std::string> backtickedTexts(const std::string& markdown);

// What the code holds, for looking names up: every identifier and the
// whole text of the files.
struct CodeIndex {
  std::set<std::string> identifiers;
  std::string text;
  std::string root;  // the top of the tree, for paths
};

// Reads every source and build file below each of `folders` (relative to
// `root`; a folder may also be one file).
CodeIndex indexCode(const std::string& root, const std::vector<std::string>& folders);
// Adds one file's text to the index.
void addToIndex(CodeIndex& index, const std::string& text);

// Whether a backticked text still names something: a path (below src/, or
// from the top for tests/, web/, include/ and the other top folders) that
// exists, identifiers ("RunState::reset()", "AtomMap<T>") that all occur
// in the code, or a text found as written.  "Name" in a recipe ("QvName",
// "nodes/QvName.{h,cpp}") stands for any name.  Texts with spaces are
// prose and always pass.
bool namesSomething(const CodeIndex& index, const std::string& text);

// The classes and structs declared in `sources` whose names take the Qv
// prefix against the rule of the "## Names" section of `markdown`: a Qv
// name belongs to a node or field class (one whose bases reach QvNode or
// QvField), to the traits of one (QvSFFloatTraits), or is named in the
// section.
std::vector<std::string> misnamedClasses(const std::string& markdown, const std::vector<std::string>& sources);

}  // namespace lumeric

#endif  // LUMERIC_TESTS_DOCS_ARCHITECTUREMAP_H
