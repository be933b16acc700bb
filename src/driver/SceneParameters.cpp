#include "driver/SceneParameters.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include <nlohmann/json.hpp>

#include "scene/NodeVisit.h"
#include "scene/QvDeclaredFieldsNode.h"
#include "scene/QvField.h"
#include "scene/QvFieldTable.h"
#include "scene/QvNode.h"
#include "writer/SceneWriter.h"

namespace lumeric {

namespace {

using Json = nlohmann::ordered_json;

constexpr char kParametersClass[] = "PARAMETERS";

std::string trimmed(const std::string& text) {
  const size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string::npos) return "";
  const size_t last = text.find_last_not_of(" \t\r\n");
  return text.substr(first, last - first + 1);
}

bool readNumber(const std::string& text, double& value) {
  const std::string t = trimmed(text);
  if (t.empty()) return false;
  char* end = nullptr;
  value = std::strtod(t.c_str(), &end);
  return end == t.c_str() + t.size();
}

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::string part;
  std::istringstream in(text);
  while (std::getline(in, part, separator)) parts.push_back(trimmed(part));
  if (!text.empty() && text.back() == separator) parts.push_back("");
  return parts;
}

// The customizer's kind of a field type; empty for the types it leaves out.
std::string kindOf(const char* typeName) {
  static const std::map<std::string, std::string> kKinds = {
      {"SFFloat", "number"},   {"SFLong", "integer"},  {"SFBool", "boolean"},
      {"SFColor", "color"},    {"SFVec2f", "vector"},  {"SFVec3f", "vector"},
      {"SFVec4f", "vector"},   {"SFRotation", "vector"}, {"SFString", "string"}};
  auto found = kKinds.find(typeName);
  return found == kKinds.end() ? std::string() : found->second;
}

// The value `field` writes, without its blanks and line end.
std::string writtenValue(QvField* field) {
  char* text = nullptr;
  size_t size = 0;
  FILE* stream = open_memstream(&text, &size);
  if (stream == nullptr) return "";
  {
    SceneWriter out(stream);
    field->write(out);
  }
  std::fclose(stream);
  std::string value = text != nullptr ? trimmed(std::string(text, size)) : "";
  std::free(text);
  return value;
}

// The lines of the files the parameters were read from, read once each.
class SourceLines {
 public:
  const std::vector<std::string>& of(const std::string& path) {
    auto found = files_.find(path);
    if (found != files_.end()) return found->second;
    std::vector<std::string>& lines = files_[path];
    std::ifstream in(path);
    std::string line;
    while (std::getline(in, line)) lines.push_back(line);
    return lines;
  }

 private:
  std::map<std::string, std::vector<std::string>> files_;
};

// The text of a line's comment (after "#"), outside strings; empty when none.
std::string commentOf(const std::string& line, size_t* where = nullptr) {
  bool inString = false;
  for (size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '\\' && inString) {
      ++i;
    } else if (line[i] == '"') {
      inString = !inString;
    } else if (line[i] == '#' && !inString) {
      if (where != nullptr) *where = i;
      return trimmed(line.substr(i + 1));
    }
  }
  if (where != nullptr) *where = std::string::npos;
  return "";
}

bool startsWithWord(const std::string& line, const std::string& word) {
  const std::string t = trimmed(line);
  if (t.compare(0, word.size(), word) != 0) return false;
  return t.size() == word.size() || t[word.size()] == ' ' || t[word.size()] == '\t';
}

// Finds the line (0-based) that starts with the field's name after the
// node's own line: a field given on a line of its own.  A field given on the
// node's line, or beside other fields, has no annotations.
long fieldLine(const std::vector<std::string>& lines, long nodeLine, const std::string& field) {
  if (nodeLine < 1 || nodeLine > static_cast<long>(lines.size())) return -1;
  std::string first = lines[static_cast<size_t>(nodeLine - 1)];
  size_t comment = 0;
  commentOf(first, &comment);
  if (comment != std::string::npos) first.erase(comment);
  std::istringstream words(first);
  std::string word;
  while (words >> word) {
    if (word == field) return -1;
  }
  for (size_t i = static_cast<size_t>(nodeLine); i < lines.size(); ++i) {
    if (startsWithWord(lines[i], field)) return static_cast<long>(i);
  }
  return -1;
}

void annotate(SceneParameter& parameter, const std::vector<std::string>& lines, long nodeLine) {
  const long at = fieldLine(lines, nodeLine, parameter.field);
  if (at < 0) return;
  if (at > 0) {
    const std::string& above = lines[static_cast<size_t>(at - 1)];
    if (trimmed(above).compare(0, 1, "#") == 0) parameter.caption = commentOf(above);
  }
  ParameterAnnotation annotation;
  if (parseParameterAnnotation(commentOf(lines[static_cast<size_t>(at)]), annotation)) {
    parameter.annotation = annotation;
  }
}

struct Collector {
  std::vector<SceneParameter>& parameters;
  std::set<std::string> namesSeen;
  SourceLines sources;

  void visit(QvNode* node) {
    if (node == nullptr) return;
    NodeVisit visiting(node);
    if (std::strcmp(node->getClassName(), kParametersClass) == 0 && node->hasName()) collect(node);
    if (auto* group = dynamic_cast<QvGroupNode*>(node)) {
      for (int i = 0; i < group->getNumChildren(); ++i) visit(group->getChild(i));
    }
  }

  void collect(QvNode* node) {
    const std::string name = node->getName();
    if (!namesSeen.insert(name).second) return;
    QvFieldTable* table = node->getFieldTable();
    const char* file = node->fileName.text();
    const std::vector<std::string>& lines = sources.of(file != nullptr ? file : "");
    for (int i = 0; table != nullptr && i < table->getNumFields(); ++i) {
      QvField* field = table->getField(node, i);
      SceneParameter parameter;
      parameter.type = kindOf(field->getTypeName());
      if (parameter.type.empty()) continue;
      parameter.node = name;
      parameter.field = table->getFieldName(i).text();
      parameter.initial = writtenValue(field);
      annotate(parameter, lines, node->line);
      parameters.push_back(parameter);
    }
  }
};

// Whole numbers as JSON integers (3, not 3.0).
Json numberJson(double number) {
  if (number == std::floor(number) && std::fabs(number) < 1e15) return static_cast<long long>(number);
  return number;
}

Json numbersOf(const std::string& text) {
  Json numbers = Json::array();
  std::istringstream in(text);
  std::string word;
  double value = 0;
  while (in >> word) numbers.push_back(numberJson(readNumber(word, value) ? value : 0.0));
  return numbers;
}

std::string unquoted(const std::string& text) {
  if (text.size() < 2 || text.front() != '"' || text.back() != '"') return text;
  std::string value;
  for (size_t i = 1; i + 1 < text.size(); ++i) {
    if (text[i] == '\\' && i + 2 < text.size()) ++i;
    value += text[i];
  }
  return value;
}

// A value text as JSON of the parameter's kind.
Json jsonValue(const std::string& type, const std::string& text) {
  double number = 0;
  if (type == "number" || type == "integer") {
    return readNumber(text, number) ? numberJson(number) : Json(text);
  }
  if (type == "boolean") return text == "TRUE";
  if (type == "color" || type == "vector") return numbersOf(text);
  return unquoted(text);
}

}  // namespace

bool parseParameterAnnotation(const std::string& comment, ParameterAnnotation& annotation) {
  const std::string t = trimmed(comment);
  if (t.size() < 3 || t.front() != '[' || t.back() != ']') return false;
  const std::string inside = t.substr(1, t.size() - 2);
  annotation = ParameterAnnotation();
  if (inside.find(',') == std::string::npos) {
    const std::vector<std::string> parts = split(inside, ':');
    std::vector<double> numbers;
    double value = 0;
    for (const std::string& part : parts) {
      if (!readNumber(part, value)) break;
      numbers.push_back(value);
    }
    if (numbers.size() == parts.size()) {
      if (numbers.size() == 1) {
        annotation.max = numbers[0];
      } else if (numbers.size() == 2) {
        annotation.min = numbers[0];
        annotation.max = numbers[1];
      } else if (numbers.size() == 3) {
        annotation.min = numbers[0];
        annotation.step = numbers[1];
        annotation.max = numbers[2];
        annotation.hasStep = true;
      } else {
        return false;
      }
      annotation.isRange = true;
      return annotation.min <= annotation.max && (!annotation.hasStep || annotation.step > 0);
    }
  }
  for (const std::string& part : split(inside, ',')) {
    if (part.empty()) return false;
    ParameterOption option;
    const size_t colon = part.find(':');
    option.value = colon == std::string::npos ? part : trimmed(part.substr(0, colon));
    option.label = colon == std::string::npos ? part : trimmed(part.substr(colon + 1));
    option.label = unquoted(option.label);
    if (option.value.empty() || option.label.empty()) return false;
    annotation.options.push_back(option);
  }
  return true;
}

int listSceneParameters(const char* inputPath, CReportErrorView* view, RunAdditions* additions,
                        std::vector<SceneParameter>& parameters) {
  return inspectScene(inputPath, view, nullptr, additions, [&](QvNode* root) {
    Collector collector{parameters, {}, {}};
    collector.visit(root);
  });
}

std::string parametersJson(const std::vector<SceneParameter>& parameters) {
  Json list = Json::array();
  for (const SceneParameter& p : parameters) {
    Json entry;
    entry["name"] = p.node + ":" + p.field;
    entry["caption"] = p.caption;
    entry["group"] = p.node;
    entry["type"] = p.type;
    entry["initial"] = jsonValue(p.type, p.initial);
    const ParameterAnnotation& a = p.annotation;
    if (a.isRange) {
      entry["min"] = numberJson(a.min);
      entry["max"] = numberJson(a.max);
      if (a.hasStep) entry["step"] = numberJson(a.step);
    }
    if (!a.options.empty()) {
      Json options = Json::array();
      for (const ParameterOption& option : a.options) {
        options.push_back({{"name", option.label}, {"value", jsonValue(p.type, option.value)}});
      }
      entry["options"] = options;
    }
    list.push_back(entry);
  }
  Json document;
  document["parameters"] = list;
  return document.dump(2) + "\n";
}

}  // namespace lumeric
