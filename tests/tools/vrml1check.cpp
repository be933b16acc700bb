// vrml1check: loads VRML 1.0 files with an independent reader (Coin) so that
// tests can tell whether lumeric's output is a scene other programs accept,
// and whether it is the same scene as a plain input file.
//
//   vrml1check read FILE
//   vrml1check canon FILE [--first] [--all-fields]
//   vrml1check compare A B [--tolerance T] [--first-b]
//   vrml1check roundtrip FILE
//   vrml1check figures FILE [--complexity C] [--primitives]
//                     (JSON, or the list of primitives; see SceneFigures.cpp)
//
// Exit status: 0 success, 1 a read error or (compare) a difference, 2 usage.
#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/SoOutput.h>
#include <Inventor/SoType.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/fields/SoField.h>
#include <Inventor/lists/SoFieldList.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoNode.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoWWWInline.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/SoPath.h>
#include <Inventor/lists/SoPathList.h>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "SceneFigures.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

// The test build instruments everything with AddressSanitizer, but Coin itself
// is not instrumented and keeps its scene database alive until exit, which the
// leak checker reports as leaks on every run; this tool also keeps its scenes
// until exit on purpose. So leak detection is off for this tool (the other
// checks stay on): by default here, and, since ASAN_OPTIONS in the environment
// may turn it back on, for every allocation made after main starts.
extern "C" __attribute__((used)) const char* __asan_default_options() {
  return "detect_leaks=0";
}

static void ignoreLeaks() {
#if defined(__SANITIZE_ADDRESS__)
  __lsan_disable();
#endif
}

namespace {

const int kExitOk = 0;
const int kExitFailed = 1;
const int kExitUsage = 2;

const char kUsage[] =
    "usage: vrml1check read FILE\n"
    "       vrml1check canon FILE [--first] [--all-fields]\n"
    "       vrml1check compare A B [--tolerance T] [--first-b]\n"
    "       vrml1check roundtrip FILE\n"
    "       vrml1check figures FILE [--complexity C] [--primitives]\n";

// ---------------------------------------------------------------------------
// Loading

// Coin reports some problems and then goes on reading, so the handlers keep
// every error and the caller decides after the read.
std::vector<std::string> gReadErrors;

// A texture image that cannot be found or decoded is a missing resource, not
// a fault of the scene text: the scenes under test are written to temporary
// directories where relative image paths do not resolve, and this Coin has no
// image decoders anyway (so a texture's image never gets loaded on either
// side of a comparison).
bool isMissingResource(const std::string& text) {
  return text.find("Could not read texture file") != std::string::npos ||
         text.find("SbImage::readFile") != std::string::npos;
}

void note(const std::string& text) {
  std::fprintf(stderr, "vrml1check: note: %s\n", text.c_str());
}

void recordReadError(const SoError* error, void*) {
  std::string text = error->getDebugString().getString();
  if (isMissingResource(text)) {
    note(text);
  } else {
    gReadErrors.push_back(text);
  }
}

// Set while a loaded scene is written: Coin then warns about its own
// bookkeeping (for example "writeref < 0" after nodes of unknown class),
// which says nothing about the scene.
bool gWriting = false;

void recordDebugMessage(const SoError* error, void*) {
  const SoDebugError* debug = static_cast<const SoDebugError*>(error);
  std::string text = error->getDebugString().getString();
  if (gWriting) {
    if (debug->getSeverity() == SoDebugError::ERROR) note(text);
  } else if (debug->getSeverity() == SoDebugError::ERROR && !isMissingResource(text)) {
    gReadErrors.push_back(text);
  } else {
    note(text);
  }
}

void initCoin() {
  SoDB::init();
  SoReadError::setHandlerCallback(recordReadError, nullptr);
  SoDebugError::setHandlerCallback(recordDebugMessage, nullptr);
}

struct Scene {
  std::vector<SoNode*> roots;  // each holds one reference
};

// Reads every root node of `path`. Returns false and prints the reader's
// messages when the file cannot be opened, is not VRML 1.0, holds no node or
// produced any read error.
bool loadScene(const char* path, Scene& scene) {
  gReadErrors.clear();
  SoInput input;
  if (!input.openFile(path)) {
    std::fprintf(stderr, "vrml1check: %s: cannot open\n", path);
    return false;
  }
  bool ok = true;
  if (!input.isValidFile() || !input.isFileVRML1()) {
    std::fprintf(stderr, "vrml1check: %s: not a VRML 1.0 file (header \"%s\")\n", path,
                 input.getHeader().getString());
    ok = false;
  }
  while (ok) {
    SoNode* node = nullptr;
    if (!SoDB::read(&input, node)) {
      ok = false;
      break;
    }
    if (node == nullptr) break;
    node->ref();
    scene.roots.push_back(node);
  }
  for (const std::string& text : gReadErrors) {
    std::fprintf(stderr, "vrml1check: %s: %s\n", path, text.c_str());
  }
  if (!gReadErrors.empty()) ok = false;
  if (ok && scene.roots.empty()) {
    std::fprintf(stderr, "vrml1check: %s: holds no node\n", path);
    ok = false;
  }
  if (!ok) std::fprintf(stderr, "vrml1check: %s: read failed\n", path);
  return ok;
}

// ---------------------------------------------------------------------------
// Canonical text

// Fields whose default in Coin differs from the VRML 1.0 default. A file
// that leaves such a field out means the VRML 1.0 value, which lumeric writes
// out in full; Coin would otherwise take its own default for the original.
struct DefaultOverride {
  const char* node;
  const char* field;
  const char* value;
};

const DefaultOverride kVrml1Defaults[] = {
    {"Normal", "vector", "0 0 1"},
    {"ShapeHints", "creaseAngle", "0.5"},
    {"TextureCoordinate2", "point", "0 0"},
    {"WWWAnchor", "name", "\"\""},
    {"WWWInline", "name", "\"\""},
};

void applyVrml1Defaults(SoNode* node) {
  const char* type = node->getTypeId().getName().getString();
  for (const DefaultOverride& entry : kVrml1Defaults) {
    if (std::strcmp(type, entry.node) != 0) continue;
    SoField* field = node->getField(SbName(entry.field));
    if (field != nullptr && field->isDefault()) field->set(entry.value);
  }
}

// A field that a node of unknown class declares but the file does not give
// has no defined value: Coin leaves it uninitialised, while lumeric writes
// what its field type holds when nothing was read. So when two scenes are
// compared, such a field of the second scene takes the value of the node at
// the same place in the first. Nodes are paired by position while both trees
// have the same shape; past a difference the text comparison reports it.
bool isOfUnknownClass(const SoNode* node) {
  static const SoType unknown = SoType::fromName("UnknownNode");
  return !unknown.isBad() && node->isOfType(unknown);
}

void adoptUndefinedFields(SoNode* from, SoNode* into, std::set<SoNode*>& visited) {
  if (from == nullptr || into == nullptr || !visited.insert(into).second) return;
  if (from->getTypeId() != into->getTypeId()) return;
  if (isOfUnknownClass(into)) {
    SoFieldList fields;
    int count = into->getFields(fields);
    for (int i = 0; i < count; ++i) {
      SbName name;
      if (!fields[i]->isDefault() || !into->getFieldName(fields[i], name)) continue;
      SoField* given = from->getField(name);
      if (given != nullptr && given->getTypeId() == fields[i]->getTypeId()) {
        fields[i]->copyFrom(*given);
      }
    }
  }
  SoChildList* fromChildren = from->getChildren();
  SoChildList* intoChildren = into->getChildren();
  if (fromChildren == nullptr || intoChildren == nullptr) return;
  int common = std::min(fromChildren->getLength(), intoChildren->getLength());
  for (int i = 0; i < common; ++i) adoptUndefinedFields((*fromChildren)[i], (*intoChildren)[i], visited);
}

// Coin writes only the fields that differ from their defaults (or were read
// from the file). Marking every field as set makes it write all of them, so a
// scene that spells out its defaults and one that leaves them out come out
// the same.
void markAllFieldsSet(SoNode* node, std::set<SoNode*>& visited) {
  if (node == nullptr || !visited.insert(node).second) return;
  applyVrml1Defaults(node);
  SoFieldList fields;
  int count = node->getFields(fields);
  for (int i = 0; i < count; ++i) fields[i]->setDefault(FALSE);
  SoChildList* children = node->getChildren();
  if (children == nullptr) return;
  for (int i = 0; i < children->getLength(); ++i) markAllFieldsSet((*children)[i], visited);
}

// One write action per root: reusing an action for a second root upsets
// Coin's reference counting for DEF/USE (it warns "writeref < 0").
void writeRoots(SoOutput& output, const std::vector<SoNode*>& roots) {
  gWriting = true;
  for (SoNode* root : roots) {
    SoWriteAction writer(&output);
    writer.apply(root);
  }
  gWriting = false;
}

void* growBuffer(void* buffer, size_t size) { return std::realloc(buffer, size); }

// Writes `roots` with Coin's own writer and returns the text.
std::string canonicalText(const std::vector<SoNode*>& roots, bool allFields, int floatPrecision) {
  if (allFields) {
    std::set<SoNode*> visited;
    for (SoNode* root : roots) markAllFieldsSet(root, visited);
  }
  SoOutput output;
  output.setHeaderString("#VRML V1.0 ascii");
  if (floatPrecision > 0) output.setFloatPrecision(floatPrecision);
  output.setBuffer(std::malloc(4096), 4096, growBuffer);
  writeRoots(output, roots);
  void* buffer = nullptr;
  size_t size = 0;
  output.getBuffer(buffer, size);
  std::string text(static_cast<const char*>(buffer), size);
  std::free(buffer);
  return text;
}

// ---------------------------------------------------------------------------
// Token comparison

struct Token {
  std::string text;
  int line;
};

// Splits canonical text into tokens: quoted strings (escapes kept), single
// punctuation characters and runs of anything else; comments are dropped.
std::vector<Token> tokenize(const std::string& text) {
  std::vector<Token> tokens;
  int line = 1;
  size_t i = 0;
  const size_t n = text.size();
  while (i < n) {
    char c = text[i];
    if (c == '\n') {
      ++line;
      ++i;
    } else if (std::isspace(static_cast<unsigned char>(c)) || c == ',') {
      // Commas separate list items; Coin writes them, but they carry nothing
      // a comparison needs and their placement follows line breaking.
      ++i;
    } else if (c == '#') {
      while (i < n && text[i] != '\n') ++i;
    } else if (c == '"') {
      size_t start = i++;
      int startLine = line;
      while (i < n && text[i] != '"') {
        if (text[i] == '\\' && i + 1 < n) ++i;
        if (text[i] == '\n') ++line;
        ++i;
      }
      if (i < n) ++i;
      tokens.push_back({text.substr(start, i - start), startLine});
    } else if (std::strchr("{}[]()|", c) != nullptr) {
      tokens.push_back({std::string(1, c), line});
      ++i;
    } else {
      size_t start = i;
      while (i < n && !std::isspace(static_cast<unsigned char>(text[i])) &&
             std::strchr("{}[]()|,\"#", text[i]) == nullptr) {
        ++i;
      }
      tokens.push_back({text.substr(start, i - start), line});
    }
  }
  return tokens;
}

// A plain decimal number (no hexadecimal: image pixels must match exactly).
bool parseDecimal(const std::string& text, double& value) {
  if (text.empty()) return false;
  size_t i = 0;
  if (text[i] == '+' || text[i] == '-') ++i;
  bool digits = false;
  while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]))) ++i, digits = true;
  if (i < text.size() && text[i] == '.') {
    ++i;
    while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]))) ++i, digits = true;
  }
  if (!digits) return false;
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
    ++i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    if (i >= text.size() || !std::isdigit(static_cast<unsigned char>(text[i]))) return false;
    while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]))) ++i;
  }
  if (i != text.size()) return false;
  value = std::strtod(text.c_str(), nullptr);
  return true;
}

// lumeric rounds written numbers to a step (0.0001 by default) and then
// prints them with six significant digits, and Coin keeps single-precision
// floats; so numbers match within the absolute step or within a relative
// allowance that covers six significant digits on both sides.
const double kRelativeAllowance = 1e-5;

bool sameToken(const std::string& a, const std::string& b, double tolerance) {
  if (a == b) return true;
  double x = 0;
  double y = 0;
  if (!parseDecimal(a, x) || !parseDecimal(b, y)) return false;
  double allowance = std::max(tolerance, kRelativeAllowance * std::max(std::fabs(x), std::fabs(y)));
  return std::fabs(x - y) <= allowance;
}

std::vector<std::string> splitLines(const std::string& text) {
  std::vector<std::string> lines;
  size_t start = 0;
  while (start <= text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

void printContext(const char* label, const std::string& text, int line) {
  std::vector<std::string> lines = splitLines(text);
  int first = std::max(1, line - 3);
  int last = std::min(static_cast<int>(lines.size()), line + 2);
  std::fprintf(stderr, "--- %s, canonical line %d:\n", label, line);
  for (int i = first; i <= last; ++i) {
    std::fprintf(stderr, "%s %5d| %s\n", i == line ? ">" : " ", i, lines[i - 1].c_str());
  }
}

// Compares two canonical texts. Returns true when they describe the same
// scene; otherwise prints the first difference with its surroundings.
bool compareTexts(const char* nameA, const std::string& textA, const char* nameB,
                  const std::string& textB, double tolerance) {
  std::vector<Token> a = tokenize(textA);
  std::vector<Token> b = tokenize(textB);
  size_t common = std::min(a.size(), b.size());
  for (size_t i = 0; i < common; ++i) {
    if (sameToken(a[i].text, b[i].text, tolerance)) continue;
    std::fprintf(stderr, "vrml1check: scenes differ at token %zu: '%s' in %s, '%s' in %s\n", i + 1,
                 a[i].text.c_str(), nameA, b[i].text.c_str(), nameB);
    printContext(nameA, textA, a[i].line);
    printContext(nameB, textB, b[i].line);
    return false;
  }
  if (a.size() == b.size()) return true;
  const std::vector<Token>& longer = a.size() > b.size() ? a : b;
  const char* longerName = a.size() > b.size() ? nameA : nameB;
  const std::string& longerText = a.size() > b.size() ? textA : textB;
  std::fprintf(stderr, "vrml1check: %s goes on after the end of the other scene (%zu tokens against %zu)\n",
               longerName, longer.size(), common);
  printContext(longerName, longerText, longer[common].line);
  return false;
}

// ---------------------------------------------------------------------------
// Subcommands

double secondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

int runRead(const char* path) {
  Scene scene;
  return loadScene(path, scene) ? kExitOk : kExitFailed;
}

int runCanon(const char* path, bool firstOnly, bool allFields) {
  Scene scene;
  if (!loadScene(path, scene)) return kExitFailed;
  if (firstOnly) scene.roots.resize(1);
  std::string text = canonicalText(scene.roots, allFields, 0);
  std::fwrite(text.data(), 1, text.size(), stdout);
  return kExitOk;
}

// Nine significant digits keep Coin's own writing from adding a rounding of
// its own on top of the single-precision values it holds.
const int kCompareFloatPrecision = 9;

int runCompare(const char* pathA, const char* pathB, double tolerance, bool firstOfB) {
  Scene a;
  Scene b;
  bool loaded = loadScene(pathA, a);
  loaded = loadScene(pathB, b) && loaded;
  if (!loaded) return kExitFailed;
  if (firstOfB) b.roots.resize(1);
  std::set<SoNode*> visited;
  for (size_t i = 0; i < std::min(a.roots.size(), b.roots.size()); ++i) {
    adoptUndefinedFields(a.roots[i], b.roots[i], visited);
  }
  std::string textA = canonicalText(a.roots, true, kCompareFloatPrecision);
  std::string textB = canonicalText(b.roots, true, kCompareFloatPrecision);
  return compareTexts(pathA, textA, pathB, textB, tolerance) ? kExitOk : kExitFailed;
}

int runRoundtrip(const char* path) {
  auto start = std::chrono::steady_clock::now();
  Scene scene;
  if (!loadScene(path, scene)) return kExitFailed;
  double readSeconds = secondsSince(start);

  start = std::chrono::steady_clock::now();
  SoOutput output;
  if (!output.openFile("/dev/null")) {
    std::fprintf(stderr, "vrml1check: cannot open /dev/null for writing\n");
    return kExitFailed;
  }
  output.setHeaderString("#VRML V1.0 ascii");
  writeRoots(output, scene.roots);
  output.closeFile();
  double writeSeconds = secondsSince(start);
  std::printf("read_seconds %.6f\nwrite_seconds %.6f\n", readSeconds, writeSeconds);
  return kExitOk;
}

// WWWInline children are read from local files (relative names from the
// directory of the file that names them), as the exporter reads them; a name
// that cannot be read leaves the node empty, with a note.
std::string directoryOf(const std::string& path) {
  size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string(".") : path.substr(0, slash);
}

void readInlines(SoNode* root, const std::string& directory, int depth) {
  SoSearchAction search;
  search.setType(SoWWWInline::getClassTypeId());
  search.setInterest(SoSearchAction::ALL);
  search.setSearchingAll(TRUE);
  search.apply(root);
  SoPathList& paths = search.getPaths();
  std::set<SoNode*> done;
  for (int i = 0; i < paths.getLength(); ++i) {
    SoWWWInline* node = static_cast<SoWWWInline*>(paths[i]->getTail());
    if (!done.insert(node).second || node->getChildData() != nullptr) continue;
    std::string name = node->name.getValue().getString();
    if (name.empty() || name.find("://") != std::string::npos) continue;
    std::string path = name[0] == '/' ? name : directory + "/" + name;
    SoInput input;
    SoSeparator* content = nullptr;
    if (depth < 8 && input.openFile(path.c_str(), TRUE)) content = SoDB::readAll(&input);
    if (content == nullptr) {
      note("WWWInline \"" + name + "\" cannot be read: left empty");
      continue;
    }
    readInlines(content, directoryOf(path), depth + 1);
    node->setChildData(content);
  }
}

int runFigures(const char* path, double complexity, bool listPrimitives) {
  Scene scene;
  if (!loadScene(path, scene)) return kExitFailed;
  for (SoNode* root : scene.roots) readInlines(root, directoryOf(path), 0);
  figures::Options options;
  options.complexity = complexity;
  options.listPrimitives = listPrimitives;
  std::string json = figures::computeJson(scene.roots, options);
  std::fwrite(json.data(), 1, json.size(), stdout);
  return kExitOk;
}

bool parseTolerance(const char* text, double& tolerance) {
  char* end = nullptr;
  tolerance = std::strtod(text, &end);
  return end != text && *end == '\0' && tolerance >= 0;
}

int usage() {
  std::fputs(kUsage, stderr);
  return kExitUsage;
}

}  // namespace

int main(int argc, char** argv) {
  ignoreLeaks();
  if (argc < 3) return usage();
  std::string command = argv[1];
  std::vector<std::string> files;
  bool first = false;
  bool firstOfB = false;
  bool allFields = false;
  double tolerance = 1e-4;
  double complexity = -1;
  bool listPrimitives = false;
  for (int i = 2; i < argc; ++i) {
    std::string arg = argv[i];
    if (arg == "--first" && command == "canon") {
      first = true;
    } else if (arg == "--all-fields" && command == "canon") {
      allFields = true;
    } else if (arg == "--first-b" && command == "compare") {
      firstOfB = true;
    } else if (arg == "--tolerance" && command == "compare" && i + 1 < argc) {
      if (!parseTolerance(argv[++i], tolerance)) return usage();
    } else if (arg == "--primitives" && command == "figures") {
      listPrimitives = true;
    } else if (arg == "--complexity" && command == "figures" && i + 1 < argc) {
      if (!parseTolerance(argv[++i], complexity) || complexity > 1) return usage();
    } else if (arg.size() > 1 && arg[0] == '-') {
      return usage();
    } else {
      files.push_back(arg);
    }
  }

  initCoin();
  if (command == "read" && files.size() == 1) return runRead(files[0].c_str());
  if (command == "canon" && files.size() == 1) return runCanon(files[0].c_str(), first, allFields);
  if (command == "compare" && files.size() == 2) {
    return runCompare(files[0].c_str(), files[1].c_str(), tolerance, firstOfB);
  }
  if (command == "roundtrip" && files.size() == 1) return runRoundtrip(files[0].c_str());
  if (command == "figures" && files.size() == 1) return runFigures(files[0].c_str(), complexity, listPrimitives);
  return usage();
}
