#include "reader/QvSceneInput.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "core/QvContext.h"
#include "driver/Translation.h"
#include "scene/FieldExpression.h"
#include "support/RecordingView.h"
#include "support/TestNodes.h"

namespace lumeric {
namespace {

const std::string kHeader = "#VRML V1.0 ascii\n";

using SceneInputTest = RecordedTest;

TEST_F(SceneInputTest, HeaderChecks) {
  struct {
    std::string text;
    bool accepted;
  } cases[] = {
      {"#VRML V1.0 ascii\n", true},
      {"#VRML V1.0 ascii extra words\nx", true},
      {"#VRML V1.0 ascii", true},
      {"\n#VRML V1.0 ascii\n", false},
      {"#VRML V2.0 utf8\n", false},
      {"#LUMERIC V2.0 utf8\n", false},
      {"#VRML V1.0 asci\n", false},
      {"", false},
      {std::string("\0\xff\x01", 3), false},
  };
  for (const auto& c : cases) {
    view.clear();
    TextInput input(c.text);
    EXPECT_EQ(input->skipWhiteSpace(), c.accepted) << c.text;
    EXPECT_EQ(input->isUsable(), c.accepted) << c.text;
    if (c.accepted) {
      EXPECT_TRUE(view.messages().empty());
    } else {
      ASSERT_EQ(view.messages().size(), 1u) << c.text;
      EXPECT_NE(view.messages()[0].text.find("File does not have a valid header string"), std::string::npos);
    }
  }
}

TEST_F(SceneInputTest, CommentsAndLinesAreCounted) {
  TextInput input(kHeader + "# a comment\n\n   # another\nword");
  QvAtom name;
  ASSERT_TRUE(input->readName(name, QvSceneInput::kLowerName));
  EXPECT_STREQ(name.text(), "word");
  EXPECT_EQ(input->getLine(), 5);
  EXPECT_TRUE(view.messages().empty());
}

TEST_F(SceneInputTest, ACommentThatEndsTheFileIsReportedAndReadingGoesOn) {
  TextInput input(kHeader + "# no line end");
  EXPECT_TRUE(input->skipWhiteSpace());
  ASSERT_EQ(view.messages().size(), 1u);
  EXPECT_EQ(view.messages()[0].text, "Line 2: EOF reached before end of comment");
  char c;
  EXPECT_FALSE(input->getChar(c));
  EXPECT_TRUE(input->eof());
}

TEST_F(SceneInputTest, NamesOfEachKind) {
  struct {
    std::string text;
    QvSceneInput::NameKind kind;
    std::string name;
  } cases[] = {
      {"fields [", QvSceneInput::kLowerName, "fields"},
      {"Fields", QvSceneInput::kLowerName, ""},
      {"Cube{", QvSceneInput::kUpperName, "Cube"},
      {"cube", QvSceneInput::kUpperName, ""},
      {"_my-name.x", QvSceneInput::kDefName, "_my-name"},
      {"9lives", QvSceneInput::kDefName, ""},
      {"a\xc3\xa9", QvSceneInput::kLowerName, "a"},
      {"", QvSceneInput::kUpperName, ""},
  };
  for (const auto& c : cases) {
    TextInput input(kHeader + c.text);
    QvAtom name;
    ASSERT_TRUE(input->readName(name, c.kind)) << c.text;
    EXPECT_EQ(std::string(name.text()), c.name) << c.text;
  }
}

TEST_F(SceneInputTest, LongNamesAreReadWholeAndKeptShort) {
  TextInput input(kHeader + std::string(300, 'a') + " next");
  QvAtom name;
  ASSERT_TRUE(input->readName(name, QvSceneInput::kLowerName));
  EXPECT_EQ(std::string(name.text()), std::string(255, 'a'));
  ASSERT_TRUE(input->readName(name, QvSceneInput::kLowerName));
  EXPECT_STREQ(name.text(), "next");
}

TEST_F(SceneInputTest, ValueTextsStopWhereTheyShould) {
  struct {
    std::string text;
    std::string value;
    std::string rest;  // what the next raw character read gives
  } cases[] = {
      {"1.5}", "1.5}", ""},
      {"(1, 2) x", "(1, 2)", " "},
      {"=(a, b, c)\n", "=(a, b, c)", ""},
      {"a,b", "a", ","},
      {"\"Hello, world\" x", "\"Hello, world\"", " "},
      {"\"a b\" x", "\"a b\"", " "},
      {"[1 2]", "[1", " "},
      {"[1]]", "[1", "]"},
      {"1]", "1", "]"},
      {"a\\ b c", "a b", " "},
      {"\"open quote\n", "\"open quote", ""},
      {"end", "end", ""},
  };
  for (const auto& c : cases) {
    TextInput input(kHeader + c.text);
    PlainTestNode node;
    FieldExpression e;
    ASSERT_TRUE(input->readValueText(e, &node)) << c.text;
    EXPECT_EQ(std::string(e.text()), c.value) << c.text;
    EXPECT_EQ(e.owner, &node);
    EXPECT_EQ(e.line, 2);
    char next = 0;
    std::string rest = input->getChar(next) ? std::string(1, next) : "";
    EXPECT_EQ(rest, c.rest) << c.text;
  }
}

TEST_F(SceneInputTest, ValueTextsKeepAtMost511Characters) {
  TextInput input(kHeader + std::string(600, '7'));
  FieldExpression e;
  ASSERT_TRUE(input->readValueText(e, nullptr));
  EXPECT_EQ(std::string(e.text()).size(), 511u);
  ASSERT_TRUE(input->readValueText(e, nullptr));
  EXPECT_EQ(std::string(e.text()).size(), 89u);
  EXPECT_FALSE(input->readValueText(e, nullptr));
}

TEST_F(SceneInputTest, StringsQuotedAndUnquoted) {
  TextInput input(kHeader + "\"say \\\"hi\\\" \\n\nnow\" bare{,]x next");
  std::string text;
  ASSERT_TRUE(input->readString(text));
  EXPECT_EQ(text, "say \"hi\" \\n\nnow");
  EXPECT_EQ(input->getLine(), 3);
  ASSERT_TRUE(input->readString(text));
  EXPECT_EQ(text, "bare{,]x");
}

TEST_F(SceneInputTest, LongStringsAreReadWholeAndKeptShort) {
  const std::string word(100000, 'w');
  TextInput input(kHeader + word + " \"" + word + "\" next");
  for (int k = 0; k < 2; ++k) {
    std::string text;
    ASSERT_TRUE(input->readString(text));
    EXPECT_EQ(text, word.substr(0, QvSceneInput::kMaxStringLength));
  }
  std::string text;
  ASSERT_TRUE(input->readString(text));
  EXPECT_EQ(text, "next");
}

TEST_F(SceneInputTest, IntegersInThreeBases) {
  struct {
    std::string text;
    bool ok;
    int32_t value;
  } cases[] = {
      {"42", true, 42},          {"-17", true, -17},  {"+5", true, 5},       {"0x1F", true, 31},
      {"017", true, 15},         {"0", true, 0},      {"0x", false, 0},      {"x1", false, 0},
      {"99999999999", true, INT32_MAX},              {"-99999999999", true, INT32_MIN},
  };
  for (const auto& c : cases) {
    TextInput input(kHeader + c.text);
    int32_t value = 0;
    EXPECT_EQ(input->readInteger(value), c.ok) << c.text;
    if (c.ok) {
      EXPECT_EQ(value, c.value) << c.text;
    }
  }
  TextInput shorts(kHeader + "0x7fff 70000");
  int16_t s = 0;
  ASSERT_TRUE(shorts->readShort(s));
  EXPECT_EQ(s, 0x7fff);
  ASSERT_TRUE(shorts->readShort(s));
  EXPECT_EQ(s, INT16_MAX);
  TextInput unsignedOnes(kHeader + "0xFF0000 -1");
  uint32_t u = 0;
  ASSERT_TRUE(unsignedOnes->readUnsigned(u));
  EXPECT_EQ(u, 0xFF0000u);
  EXPECT_FALSE(unsignedOnes->readUnsigned(u));
}

TEST_F(SceneInputTest, WordsAndCharactersCanBeGivenBack) {
  TextInput input(kHeader + "abc def");
  QvAtom name;
  ASSERT_TRUE(input->readName(name, QvSceneInput::kLowerName));
  input->putBackWord("fields");
  ASSERT_TRUE(input->readName(name, QvSceneInput::kLowerName));
  EXPECT_STREQ(name.text(), "fields");
  char c;
  ASSERT_TRUE(input->readChar(c));
  EXPECT_EQ(c, 'd');
  input->putBackChar(c);
  ASSERT_TRUE(input->readName(name, QvSceneInput::kLowerName));
  EXPECT_STREQ(name.text(), "def");
  EXPECT_FALSE(input->getChar(c));
  input->putBackChar(c);  // the end of the file is never given back
  EXPECT_FALSE(input->getChar(c));
  EXPECT_TRUE(input->eof());
}

TEST_F(SceneInputTest, TheDefTableFindsTheLatestNode) {
  TextInput input(kHeader);
  PlainTestNode* first = new PlainTestNode;
  PlainTestNode* second = new PlainTestNode;
  EXPECT_FALSE(input->addName(QvAtom("Box"), first));
  EXPECT_TRUE(input->addName(QvAtom("Box"), second));
  EXPECT_EQ(input->findName(QvAtom("Box")), second);
  EXPECT_EQ(input->findName(QvAtom("Ball")), nullptr);
  EXPECT_STREQ(first->getName(), "Box");
}

// A node nobody else holds stays alive while the table has it, the one
// replaced included, and dies with the table.
TEST_F(SceneInputTest, TheDefTableKeepsItsNodesAliveUntilItIsDestroyed) {
  int destroyed = 0;
  struct CountedNode : PlainTestNode {
    explicit CountedNode(int& counter) : counter_(counter) {}
    ~CountedNode() override { ++counter_; }
    int& counter_;
  };
  {
    TextInput input(kHeader);
    QvNode* first = new CountedNode(destroyed);
    QvNode* second = new CountedNode(destroyed);
    input->addName(QvAtom("Box"), first);
    first->ref();
    first->unref();  // what a reader does with a node whose reading failed
    input->addName(QvAtom("Box"), second);
    EXPECT_EQ(destroyed, 0);
    EXPECT_STREQ(first->getName(), "Box");
  }
  EXPECT_EQ(destroyed, 2);
}

TEST_F(SceneInputTest, TheLineCountStopsAtItsLargestValue) {
  TextInput input(kHeader + "\n\n# comment\n\"a\nb\" x\ny\n\n\nz");
  input->skipWhiteSpace();
  input->setLine(INT_MAX - 2);
  std::string text;
  ASSERT_TRUE(input->readString(text));
  EXPECT_EQ(input->getLine(), INT_MAX - 1);
  ASSERT_TRUE(input->readString(text));
  QvAtom name;
  ASSERT_TRUE(input->readName(name, QvSceneInput::kLowerName));
  EXPECT_STREQ(name.text(), "y");
  EXPECT_EQ(input->getLine(), INT_MAX);
  ASSERT_TRUE(input->readName(name, QvSceneInput::kLowerName));
  EXPECT_STREQ(name.text(), "z");
  EXPECT_EQ(input->getLine(), INT_MAX);
}

TEST_F(SceneInputTest, SavedStateComesBackWithItsLineCount) {
  TextInput outer(kHeader + "\n\nouter");
  QvAtom name;
  outer->skipWhiteSpace();
  int line = outer->getLine();
  auto saved = outer->saveState();
  std::string inner = kHeader + "inner";
  FILE* file = fmemopen(&inner[0], inner.size(), "r");
  outer->setFile(file);
  ASSERT_TRUE(outer->readName(name, QvSceneInput::kLowerName));
  EXPECT_STREQ(name.text(), "inner");
  std::fclose(file);
  outer->restoreState(std::move(saved));
  EXPECT_EQ(outer->getLine(), line);
  ASSERT_TRUE(outer->readName(name, QvSceneInput::kLowerName));
  EXPECT_STREQ(name.text(), "outer");
}

TEST_F(SceneInputTest, BinaryAndOverlongInputNeverBreaksTheReader) {
  std::string junk = kHeader;
  for (int i = 0; i < 256; ++i) junk += static_cast<char>(i);
  junk += std::string(1 << 20, 'z');  // a line of a megabyte
  TextInput input(junk);
  int reads = 0;
  for (;;) {
    FieldExpression e;
    if (!input->readValueText(e, nullptr)) break;
    ++reads;
  }
  EXPECT_GT(reads, 2000);
  EXPECT_TRUE(input->eof());
}

}  // namespace
}  // namespace lumeric
