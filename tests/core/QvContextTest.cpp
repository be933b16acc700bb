#include "core/QvContext.h"

#include <gtest/gtest.h>

#include <string>

#include "reader/ReadErrors.h"
#include "scene/FieldExpression.h"
#include "scene/SceneMessages.h"
#include "support/RecordingView.h"
#include "support/TestNodes.h"

namespace lumeric {
namespace {

using ContextTest = RecordedTest;

TEST_F(ContextTest, MessagePrefixesFollowTheirOperation) {
  PlainTestNode fromFile;
  fromFile.line = 12;
  fromFile.fileName = QvAtom("a.wrl");
  PlainTestNode copied;  // copies carry no file name
  copied.line = 7;
  FieldExpression readValue;
  readValue.owner = &fromFile;
  readValue.line = 14;
  FieldExpression ownerless;
  ownerless.line = 3;

  reportAtNode(&fromFile, "Unknown class \"%s\"", "Foo");
  reportAtNode(&copied, "copy %d", 1);
  reportAtNode(nullptr, "bare");
  warnAtNode(&fromFile, "Warning: %s", "w");
  reportAtExpression(&readValue, "Attempt to divide by 0.0");
  reportAtExpression(&ownerless, "no file");
  warnAtExpression(nullptr, "2*3 is %g", 6.0);
  theContext.reportInFile("Path name is NULL");

  EXPECT_EQ(view.transcript(),
            "error: File \"a.wrl\" Line 12: Unknown class \"Foo\"\n"
            "error: Line 7: copy 1\n"
            "error: bare\n"
            "File \"a.wrl\" Line 12: Warning: w\n"
            "error: File \"a.wrl\" Line 14: Attempt to divide by 0.0\n"
            "error: Line 3: no file\n"
            "2*3 is 6\n"
            "error: Path name is NULL\n");
}

TEST_F(ContextTest, ReadErrorsNameTheFileOnTopOfTheStack) {
  TextInput input("#VRML V1.0 ascii\n\n\nx");
  char c;
  while (input->getChar(c) && c != 'x') {
  }
  readError(input.get(), "Unknown class \"%s\"", "Foo");
  ASSERT_TRUE(theContext.pushFile("a.wrl"));
  readError(input.get(), "Unknown class \"%s\"", "Foo");
  theContext.popFile();
  EXPECT_EQ(view.transcript(),
            "error: Line 2: Unknown class \"Foo\"\n"
            "error: File \"a.wrl\" Line 2: Unknown class \"Foo\"\n");
}

TEST_F(ContextTest, MessagesAreCutAt999Characters) {
  PlainTestNode node;
  node.line = 1;
  std::string longText(5000, 'x');
  reportAtNode(&node, "%s", longText.c_str());
  ASSERT_EQ(view.messages().size(), 1u);
  EXPECT_EQ(view.messages()[0].text.size(), 999u);
  EXPECT_EQ(view.messages()[0].text.substr(0, 9), "Line 1: x");
}

TEST_F(ContextTest, WithoutAViewMessagesAreDropped) {
  theContext.setView(nullptr);
  theContext.reportInFile("nobody hears this");
  EXPECT_TRUE(view.messages().empty());
}

TEST_F(ContextTest, TheEleventhFileIsRefusedAndTheStackKeepsTen) {
  const char* names[11] = {"f0", "f1", "f2", "f3", "f4", "f5", "f6", "f7", "f8", "f9", "f10"};
  for (int i = 0; i < 10; ++i) ASSERT_TRUE(theContext.pushFile(names[i])) << i;
  EXPECT_FALSE(theContext.pushFile(names[10]));
  EXPECT_STREQ(theContext.topFile(), "f9");
  for (int i = 9; i >= 0; --i) {
    EXPECT_STREQ(theContext.topFile(), names[i]);
    theContext.popFile();
  }
  EXPECT_EQ(theContext.topFile(), nullptr);
  theContext.popFile();  // popping an empty stack changes nothing
  EXPECT_EQ(theContext.fileDepth, -1);
}


}  // namespace
}  // namespace lumeric
