// Which words start a statement: every keyword of the extended language in
// a .vlm scene, only USE in a plain VRML 1.0 file, where the others are
// read as class names.
#include <gtest/gtest.h>

#include <string>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

struct KeywordCase {
  const char* statement;
  char firstCharacter;  // what a class name would have to be followed by '{'
};

const KeywordCase kExtensionStatements[] = {
    {"SET C:width 3", 'C'},          {"APPEND C:width 3", 'C'},   {"DECLARE C:width 3", 'C'},
    {"OUTPUT_TO \"out.wrl\"", '"'},  {"INCLUDE \"none.vlm\"", '"'}, {"PRECISION 0.01", '0'},
    {"PRINT C:width", 'C'},
};

std::string sceneWith(const std::string& statement) {
  return "#VRML V1.0 ascii\nSeparator {\nDEF C Cube { }\n" + statement + "\n}\n";
}

TEST(StatementKeyword, ExtensionKeywordsAreClassNamesInPlainFiles) {
  for (const KeywordCase& c : kExtensionStatements) {
    SceneResult r = checkText(sceneWith(c.statement), "wrl", "scene.wrl");
    ASSERT_NE(r.messages, "") << c.statement;
    EXPECT_EQ(r.messages, std::string("error: File \"scene.wrl\" Line 4: Expected '{'; got '") + c.firstCharacter +
                              "'\n")
        << c.statement;
  }
}

TEST(StatementKeyword, ExtensionKeywordsStartStatementsInExtendedScenes) {
  for (const KeywordCase& c : kExtensionStatements) {
    SceneResult r = checkText(sceneWith(c.statement), "vlm");
    EXPECT_EQ(r.messages.find("Expected '{'"), std::string::npos) << c.statement << "\n" << r.messages;
  }
}

TEST(StatementKeyword, UseIsAStatementInBothLanguages) {
  for (const char* type : {"wrl", "vlm"}) {
    SceneResult r = checkText(sceneWith("USE C"), type);
    EXPECT_EQ(r.messages, "") << type;
  }
}

}  // namespace
}  // namespace lumeric
