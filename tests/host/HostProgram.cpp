// A host program that knows lumeric only through its public header and its
// shared library, as an authoring tool does.  It checks the results 0 and
// 1, the messages it receives, CheckSyntax with both file types, and that
// two runs in a row write the same scene.
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "lumeric/lumeric.h"

#include "host/HostChecks.h"

namespace {

using host::CollectingView;
using host::readAll;

host::Checks checks("host program");

void expect(bool ok, const std::string& what) { checks.expect(ok, what); }

void writeAll(const char* path, const char* text) {
  if (FILE* file = std::fopen(path, "wb")) {
    std::fputs(text, file);
    std::fclose(file);
  }
}

int translate(const char* path, CollectingView& view, char* outputName) {
  std::vector<char> input(path, path + std::strlen(path) + 1);
  char directory[] = "";
  return ParseVRMLLumeric(input.data(), &view, directory, outputName);
}

int check(const char* path, const char* type, CollectingView& view) {
  std::vector<char> input(path, path + std::strlen(path) + 1);
  std::vector<char> fileType(type, type + std::strlen(type) + 1);
  char directory[] = "";
  return CheckSyntax(input.data(), &view, directory, fileType.data());
}

// A scene translates to output.wrl with result 0, twice the same.
void checkTranslationRepeats(const char* scene) {
  char outputName[256] = "";
  CollectingView first;
  expect(translate(scene, first, outputName) == 0, "a good scene gives 0");
  expect(std::strcmp(outputName, "output.wrl") == 0, "the output is named output.wrl");
  std::string once = readAll("output.wrl");
  expect(once.compare(0, 18, "#VRML V1.0 ascii\n\n") == 0, "the output starts with the VRML header");
  CollectingView second;
  translate(scene, second, outputName);
  expect(readAll("output.wrl") == once, "two runs in a row write the same scene");
  expect(first.messages == second.messages, "two runs in a row post the same messages");
}

// A file with a header and no node gives 1 and no message.
void checkSceneWithoutNode() {
  char outputName[256] = "";
  writeAll("host_empty.wrl", "#VRML V1.0 ascii\n\n");
  CollectingView empty;
  expect(translate("host_empty.wrl", empty, outputName) == 1, "a scene without a node gives 1");
  expect(empty.messages.empty(), "a scene without a node posts nothing");
}

// A read error inside the root keeps the root: result 0 and the message.
void checkPartialTree() {
  char outputName[256] = "";
  writeAll("host_partial.wrl", "#VRML V1.0 ascii\nGroup { Cube { } Foo { } }\n");
  CollectingView partial;
  expect(translate("host_partial.wrl", partial, outputName) == 0, "a partial tree gives 0");
  expect(partial.messages.size() == 1 &&
             partial.messages[0] == "error: File \"host_partial.wrl\" Line 2: Unknown class \"Foo\"",
         "the unknown class is reported at its file and line");
  expect(readAll("output.wrl").find("Cube {") != std::string::npos, "the partial tree is written");
}

// The extended language only for the file type "vlm", in any case.
void checkFileTypes() {
  writeAll("host_declare.wrl", "#VRML V1.0 ascii\nGroup {\n\tDECLARE x:y 3\n}\n");
  CollectingView extended;
  expect(check("host_declare.wrl", "VLM", extended) == 0, "CheckSyntax gives 0");
  expect(extended.messages.size() == 1 && extended.messages[0].find("Field x:y not found") != std::string::npos,
         "with \"VLM\" DECLARE is a statement");
  CollectingView plain;
  check("host_declare.wrl", "wrl", plain);
  expect(plain.messages.size() == 1 && plain.messages[0].find("Expected '{'; got 'x'") != std::string::npos,
         "with \"wrl\" DECLARE is a node type name");
}

// A file that does not exist reaches the view of this very call.
void checkMissingFile() {
  char outputName[256] = "";
  CollectingView missing;
  char missingPath[] = "no-such-scene.vlm";
  expect(ParseVRMLLumeric(missingPath, &missing, nullptr, outputName) == 0, "a missing file gives 0");
  expect(missing.messages.size() == 2 && missing.messages[1] == "error: Path name is NULL",
         "a missing file without a directory posts two errors");
}

// Warnings are the host's to switch on.
void checkWarningSwitch() {
  char outputName[256] = "";
  writeAll("host_warn.wrl", "#VRML V1.0 ascii\nGroup { Foo { fields [ ] } }\n");
  gWarn = 2;
  CollectingView warned;
  translate("host_warn.wrl", warned, outputName);
  gWarn = 0;
  expect(warned.messages.size() == 1 &&
             warned.messages[0] == "File \"host_warn.wrl\" Line 2: Warning: Unknown \"Foo\" node found",
         "gWarn 2 enables the unknown-node warning, posted with flag 0");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: lumeric_host_program SCENE\n");
    return 2;
  }
  checkTranslationRepeats(argv[1]);
  checkSceneWithoutNode();
  checkPartialTree();
  checkFileTypes();
  checkMissingFile();
  checkWarningSwitch();
  return checks.result();
}
