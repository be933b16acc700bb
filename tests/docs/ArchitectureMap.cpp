#include "docs/ArchitectureMap.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>

namespace lumeric {

namespace fs = std::filesystem;

namespace {

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::string trimmed(const std::string& text) {
  size_t begin = text.find_first_not_of(" \t");
  if (begin == std::string::npos) return "";
  return text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

std::vector<std::string> cellsOf(const std::string& row) {
  std::vector<std::string> cells;
  size_t start = row.find('|') + 1;
  for (size_t bar = row.find('|', start); bar != std::string::npos; bar = row.find('|', start)) {
    cells.push_back(trimmed(row.substr(start, bar - start)));
    start = bar + 1;
  }
  return cells;
}

std::vector<std::string> backticked(const std::string& text) {
  std::vector<std::string> spans;
  for (size_t open = text.find('`'); open != std::string::npos; open = text.find('`', open + 1)) {
    size_t close = text.find('`', open + 1);
    if (close == std::string::npos) break;
    spans.push_back(text.substr(open + 1, close - open - 1));
    open = close;
  }
  return spans;
}

const Layer* layerOfFolder(const LayerMap& map, const std::string& folder) {
  for (const Layer& layer : map.layers) {
    if (layer.folder == folder) return &layer;
  }
  return nullptr;
}

// The layer whose folder holds `path`: "src/" is left out of the
// library's folders, and the longest folder wins.
const Layer* layerOfFile(const LayerMap& map, const std::string& path) {
  const std::string inSrc = path.compare(0, 4, "src/") == 0 ? path.substr(4) : path;
  const Layer* found = nullptr;
  for (const Layer& layer : map.layers) {
    if (inSrc.compare(0, layer.folder.size(), layer.folder) == 0 &&
        (found == nullptr || layer.folder.size() > found->folder.size())) {
      found = &layer;
    }
  }
  return found;
}

// The may-include column once the folders are known.
void readMayInclude(LayerMap& map, Layer& layer, const std::string& cell, std::string& problem) {
  std::string rest = cell;
  for (const std::string& folder : backticked(cell)) {
    const Layer* named = layerOfFolder(map, folder);
    if (named == nullptr) problem = "names no layer " + folder;
    if (named != nullptr) layer.mayInclude.insert(named->number);
    rest.replace(rest.find('`' + folder + '`'), folder.size() + 2, "");
  }
  if (rest.find("everything") != std::string::npos) {
    for (int n = 1; n < layer.number; ++n) layer.mayInclude.insert(n);
  }
  static const std::regex kRange("(\\d+)(?:-(\\d+))?");
  for (std::sregex_iterator it(rest.begin(), rest.end(), kRange), end; it != end; ++it) {
    const int first = std::stoi((*it)[1]);
    const int last = (*it)[2].matched ? std::stoi((*it)[2]) : first;
    for (int n = first; n <= last; ++n) layer.mayInclude.insert(n);
  }
  if (problem.empty() && layer.mayInclude.empty() && rest.find("nothing") == std::string::npos) {
    problem = "says nothing it may include";
  }
}

std::string readWhole(const std::string& path) {
  std::ifstream in(path);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

bool isIdentifierChar(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

// "Name" as a word of a recipe's name, for any name.
bool hasPlaceholder(const std::string& text) {
  for (size_t at = text.find("Name"); at != std::string::npos; at = text.find("Name", at + 1)) {
    if (at + 4 == text.size() || !std::islower(static_cast<unsigned char>(text[at + 4]))) return true;
  }
  return false;
}

std::regex patternOf(const std::string& text) {
  std::string pattern;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text.compare(i, 4, "Name") == 0 && (i + 4 == text.size() || !std::islower(static_cast<unsigned char>(text[i + 4])))) {
      pattern += "\\w*";
      i += 3;
    } else if (isIdentifierChar(text[i]) || text[i] == '/') {
      pattern += text[i];
    } else {
      pattern += std::string("\\") + text[i];
    }
  }
  return std::regex(pattern);
}

// "nodes/QvName.{h,cpp}" is two paths.
std::vector<std::string> expandedPaths(const std::string& text) {
  size_t open = text.find('{');
  size_t close = text.find('}');
  if (open == std::string::npos || close == std::string::npos || close < open) return {text};
  std::vector<std::string> paths;
  std::istringstream choices(text.substr(open + 1, close - open - 1));
  for (std::string choice; std::getline(choices, choice, ',');) {
    paths.push_back(text.substr(0, open) + choice + text.substr(close + 1));
  }
  return paths;
}

bool pathExists(const std::string& root, const std::string& path) {
  static const char* const kTopFolders[] = {"tests/", "web/",    "include/", "docs/",  "fuzz/",
                                            "editors/", "scripts/", "cmake/",   "bench/", "examples/"};
  std::string base = root + "/src/";
  for (const char* top : kTopFolders) {
    if (path.compare(0, std::string(top).size(), top) == 0) base = root + "/";
  }
  const fs::path full = base + path;
  if (!hasPlaceholder(path)) return fs::exists(full);
  const fs::path directory = full.parent_path();
  if (!fs::is_directory(directory)) return false;
  const std::regex pattern = patternOf(full.filename().string());
  // "fields/QvSFName" names the files of a type whatever their extension.
  for (const auto& entry : fs::directory_iterator(directory)) {
    if (std::regex_match(entry.path().filename().string(), pattern) ||
        std::regex_match(entry.path().stem().string(), pattern)) {
      return true;
    }
  }
  return false;
}

// Whether every identifier of `text` occurs in the code; argument lists
// and template arguments are left out ("copyInto(target)", "AtomMap<T>").
bool identifiersExist(const CodeIndex& index, const std::string& text) {
  std::string names;
  int depth = 0;
  for (char c : text) {
    if (c == '(' || c == '<') ++depth;
    if (depth == 0) names += isIdentifierChar(c) ? c : ' ';
    if ((c == ')' || c == '>') && depth > 0) --depth;
  }
  std::istringstream words(names);
  bool any = false;
  for (std::string word; words >> word;) {
    any = true;
    if (std::isdigit(static_cast<unsigned char>(word[0]))) continue;
    if (!hasPlaceholder(word)) {
      if (index.identifiers.count(word) == 0) return false;
      continue;
    }
    const std::regex pattern = patternOf(word);
    bool found = false;
    for (const std::string& identifier : index.identifiers) {
      if (std::regex_match(identifier, pattern)) {
        found = true;
        break;
      }
    }
    if (!found) return false;
  }
  return any;
}

}  // namespace

LayerMap readLayerMap(const std::string& markdown, std::vector<std::string>& problems) {
  LayerMap map;
  std::vector<std::pair<int, std::string>> mayIncludeCells;
  bool inSection = false;
  int lineNumber = 0;
  static const std::regex kException("`([^`]+)` includes `([^`]+)`");
  std::string section;
  for (const std::string& line : linesOf(markdown)) {
    ++lineNumber;
    if (line.compare(0, 3, "## ") == 0) inSection = line == "## Layers";
    if (!inSection) continue;
    section += line + "\n";
    if (line.compare(0, 1, "|") != 0) continue;
    std::vector<std::string> cells = cellsOf(line);
    if (cells.empty() || cells[0].empty() || !std::isdigit(static_cast<unsigned char>(cells[0][0]))) continue;
    std::vector<std::string> folders = cells.size() == 4 ? backticked(cells[1]) : std::vector<std::string>();
    if (folders.size() != 1 || folders[0].empty() || folders[0].back() != '/') {
      problems.push_back("line " + std::to_string(lineNumber) + ": a layer row is not | n | `folder/` | ... | ... |");
      continue;
    }
    Layer layer;
    layer.number = std::stoi(cells[0]);
    layer.folder = folders[0];
    map.layers.push_back(layer);
    mayIncludeCells.emplace_back(lineNumber, cells[3]);
  }
  for (size_t i = 0; i < map.layers.size(); ++i) {
    std::string problem;
    readMayInclude(map, map.layers[i], mayIncludeCells[i].second, problem);
    if (!problem.empty()) problems.push_back("line " + std::to_string(mayIncludeCells[i].first) + ": " + problem);
  }
  for (std::sregex_iterator it(section.begin(), section.end(), kException), end; it != end; ++it) {
    map.exceptions.emplace_back((*it)[1], (*it)[2]);
  }
  if (map.layers.empty()) problems.push_back("no table of layers under \"## Layers\"");
  return map;
}

std::vector<std::string> forbiddenIncludes(const LayerMap& map, const std::string& path, const std::string& text) {
  std::vector<std::string> forbidden;
  const Layer* own = layerOfFile(map, path);
  if (own == nullptr) return forbidden;
  static const std::regex kInclude("^\\s*#\\s*include\\s*\"([^\"]+)\"");
  int lineNumber = 0;
  for (const std::string& line : linesOf(text)) {
    ++lineNumber;
    std::smatch match;
    if (!std::regex_search(line, match, kInclude)) continue;
    const std::string header = match[1];
    if (header.find('/') == std::string::npos) {
      forbidden.push_back(path + ":" + std::to_string(lineNumber) + ": includes " + header + " without its folder");
      continue;
    }
    const Layer* target = layerOfFile(map, header);
    if (target == nullptr || target == own || own->mayInclude.count(target->number) != 0) continue;
    bool excused = false;
    for (const auto& exception : map.exceptions) {
      excused = excused || (exception.first == path && exception.second == header);
    }
    if (!excused) forbidden.push_back(path + ":" + std::to_string(lineNumber) + ": includes " + header);
  }
  return forbidden;
}

std::vector<std::string> backtickedTexts(const std::string& markdown) {
  std::vector<std::string> texts;
  std::set<std::string> seen;
  bool fenced = false;
  std::string prose;
  for (const std::string& line : linesOf(markdown)) {
    if (line.compare(0, 3, "```") == 0) {
      fenced = !fenced;
      continue;
    }
    if (!fenced) prose += line + "\n";
  }
  for (const std::string& span : backticked(prose)) {
    if (seen.insert(span).second) texts.push_back(span);
  }
  return texts;
}

void addToIndex(CodeIndex& index, const std::string& text) {
  index.text += text;
  index.text += '\n';
  for (size_t i = 0; i < text.size();) {
    if (!isIdentifierChar(text[i])) {
      ++i;
      continue;
    }
    size_t end = i;
    while (end < text.size() && isIdentifierChar(text[end])) ++end;
    index.identifiers.insert(text.substr(i, end - i));
    i = end;
  }
}

CodeIndex indexCode(const std::string& root, const std::vector<std::string>& folders) {
  static const std::set<std::string> kSourceExtensions = {".h",     ".cpp", ".c",  ".y",    ".map", ".txt",
                                                          ".cmake", ".sh",  ".js", ".mjs", ".html", ".css"};
  CodeIndex index;
  index.root = root;
  for (const std::string& folder : folders) {
    if (fs::is_regular_file(root + "/" + folder)) {
      addToIndex(index, readWhole(root + "/" + folder));
      continue;
    }
    for (auto it = fs::recursive_directory_iterator(root + "/" + folder); it != fs::recursive_directory_iterator(); ++it) {
      if (it->is_directory() && it->path().filename() == "node_modules") {
        it.disable_recursion_pending();
        continue;
      }
      if (!it->is_regular_file() || kSourceExtensions.count(it->path().extension().string()) == 0) continue;
      addToIndex(index, readWhole(it->path().string()));
    }
  }
  return index;
}

namespace {

// Whether `name` reaches QvNode or QvField through the bases in `bases`.
bool isModelClass(const std::map<std::string, std::string>& bases, const std::string& name,
                  std::set<std::string>& seen) {
  if (name == "QvNode" || name == "QvField") return true;
  auto found = bases.find(name);
  if (found == bases.end() || !seen.insert(name).second) return false;
  std::string words = found->second;
  for (char& c : words) c = isIdentifierChar(c) ? c : ' ';
  std::istringstream in(words);
  for (std::string base; in >> base;) {
    if (base != name && isModelClass(bases, base, seen)) return true;
  }
  return false;
}

}  // namespace

std::vector<std::string> misnamedClasses(const std::string& markdown, const std::vector<std::string>& sources) {
  std::set<std::string> listed;
  bool inSection = false;
  for (const std::string& line : linesOf(markdown)) {
    if (line.compare(0, 3, "## ") == 0) inSection = line == "## Names";
    if (!inSection) continue;
    for (const std::string& name : backticked(line)) listed.insert(name);
  }
  // A template's parameters count among its bases: a default names one
  // ("class Base = QvNode").
  static const std::regex kDeclaration(
      "(?:template\\s*<([^<>]*(?:<[^<>]*>[^<>]*)*)>\\s*)?\\b(?:class|struct)\\s+(\\w+)\\s*(?:final\\s*)?(:[^{;]*)?[{;]");
  std::map<std::string, std::string> bases;
  std::set<std::string> declared;
  for (const std::string& text : sources) {
    for (std::sregex_iterator it(text.begin(), text.end(), kDeclaration), end; it != end; ++it) {
      const std::string name = (*it)[2];
      bases[name] += " " + std::string((*it)[1]) + " " + std::string((*it)[3]);
      if (name.compare(0, 2, "Qv") == 0) declared.insert(name);
    }
  }
  std::vector<std::string> misnamed;
  for (const std::string& name : declared) {
    const std::string traitsOf = name.size() > 6 && name.compare(name.size() - 6, 6, "Traits") == 0
                                     ? name.substr(0, name.size() - 6)
                                     : "";
    std::set<std::string> seen;
    std::set<std::string> seenForTraits;
    if (listed.count(name) != 0 || isModelClass(bases, name, seen) ||
        (!traitsOf.empty() && isModelClass(bases, traitsOf, seenForTraits))) {
      continue;
    }
    misnamed.push_back(name);
  }
  return misnamed;
}

bool namesSomething(const CodeIndex& index, const std::string& text) {
  if (text.empty() || text.find_first_of(" \t") != std::string::npos) return true;
  if (index.text.find(text) != std::string::npos) return true;
  if (text.find('/') != std::string::npos) {
    for (const std::string& path : expandedPaths(text)) {
      if (!pathExists(index.root, path)) return false;
    }
    return true;
  }
  return identifiersExist(index, text);
}

}  // namespace lumeric
