// The message formats of the command: how a library message is taken apart
// into file, line, severity and text, and how each format prints it.
#include "cli/MessageFormat.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

// Each library message as the plain, gnu and json formats print it; the
// common forms (a file and line, no position) are printed by the runs below.
TEST(MessageFormat, EachPrefixInEachFormat) {
  struct {
    const char* message;
    int flag;
    const char* plain;
    const char* gnu;
    const char* json;
  } cases[] = {
      // A copy's line may be in an included file: no file is claimed.
      {"Line 7: Field x not found", 1,
       "error: Line 7: Field x not found\n",
       "lumeric: error: Line 7: Field x not found\n",
       "{\"file\":null,\"line\":7,\"severity\":\"error\",\"message\":\"Field x not found\"}\n"},
      {"Line 0: Warning: odd", 0,
       "Line 0: Warning: odd\n",
       "lumeric: warning: Line 0: odd\n",
       "{\"file\":null,\"line\":0,\"severity\":\"warning\",\"message\":\"odd\"}\n"},
      {"File \"a.vlm\" Not Implemented - SFImage::SetLumericValue", 1,
       "error: File \"a.vlm\" Not Implemented - SFImage::SetLumericValue\n",
       "a.vlm: error: Not Implemented - SFImage::SetLumericValue\n",
       "{\"file\":\"a.vlm\",\"line\":null,\"severity\":\"error\",\"message\":\"Not Implemented - SFImage::SetLumericValue\"}\n"},
      // Only an error flag makes an error; "Warning: " in an error stays text.
      {"Line 2: Warning: x", 1,
       "error: Line 2: Warning: x\n",
       "lumeric: error: Line 2: Warning: x\n",
       "{\"file\":null,\"line\":2,\"severity\":\"error\",\"message\":\"Warning: x\"}\n"},
      // The text may look like a prefix after a file name with quotation marks.
      {"File \"we\" ird.vlm\" Line 4: \"Line 9: \" is 1", 0,
       "File \"we\" ird.vlm\" Line 4: \"Line 9: \" is 1\n",
       "we\" ird.vlm:4: note: \"Line 9: \" is 1\n",
       "{\"file\":\"we\\\" ird.vlm\",\"line\":4,\"severity\":\"note\",\"message\":\"\\\"Line 9: \\\" is 1\"}\n"},
      // Not a prefix: no digits, or no ": " after them.
      {"Line x: text", 0, "Line x: text\n", "lumeric: note: Line x: text\n",
       "{\"file\":null,\"line\":null,\"severity\":\"note\",\"message\":\"Line x: text\"}\n"},
      {"Line 12 text", 0, "Line 12 text\n", "lumeric: note: Line 12 text\n",
       "{\"file\":null,\"line\":null,\"severity\":\"note\",\"message\":\"Line 12 text\"}\n"},
      {"", 0, "\n", "lumeric: note: \n",
       "{\"file\":null,\"line\":null,\"severity\":\"note\",\"message\":\"\"}\n"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(formatMessage(MessageFormat::kPlain, c.message, c.flag), c.plain) << c.message;
    EXPECT_EQ(formatMessage(MessageFormat::kGnu, c.message, c.flag), c.gnu) << c.message;
    EXPECT_EQ(formatMessage(MessageFormat::kJson, c.message, c.flag), c.json) << c.message;
  }
}

TEST(MessageFormat, JsonEscapesWhatStringsCannotHold) {
  struct {
    std::string text;
    std::string escaped;
  } cases[] = {
      {"say \"hi\"", "say \\\"hi\\\""},
      {"C:\\scenes\\a.vlm", "C:\\\\scenes\\\\a.vlm"},
      {"a\nb\tc\rd", "a\\nb\\tc\\rd"},
      {std::string("nul\0x", 5), "nul\\u0000x"},
      {"\x01\x1f\x7f", "\\u0001\\u001f\x7f"},
      {"caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x8e\xb2", "caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x8e\xb2"},  // UTF-8 stays
      {"sc\xe8ne", "sc\\u00e8ne"},                       // a Latin-1 byte
      {"\xc3", "\\u00c3"},                               // a cut sequence
      {"\xc0\xaf", "\\u00c0\\u00af"},                    // an overlong form
      {"\xed\xa0\x80", "\\u00ed\\u00a0\\u0080"},          // a surrogate
  };
  for (const auto& c : cases) EXPECT_EQ(jsonEscape(c.text), c.escaped) << c.text;
}

// The option on the command: every message of a run in the chosen format,
// the exit status unchanged.
TEST(MessageFormatRun, GnuAndJsonOnARealScene) {
  ScratchDir dir;
  dir.write("we\"ird.vlm",
            "#VRML V1.0 ascii\n"
            "Separator {\n"
            "\tFoo { fields [ ] }\n"
            "\tDEF B Cube { width 2 }\n"
            "\tPRINT B:width*2\n"
            "\tBar { }\n"
            "}\n");
  CommandResult gnu = runLumeric({"-W", "unknown", "--message-format", "gnu", "-o", "-", "we\"ird.vlm"}, dir.path());
  EXPECT_EQ(gnu.status, 1);
  EXPECT_EQ(gnu.err,
            "we\"ird.vlm:3: warning: Unknown \"Foo\" node found\n"
            "we\"ird.vlm:6: error: Unknown class \"Bar\"\n"
            "we\"ird.vlm:6: note: did you mean \"Ball\"?\n"  // within two edits
            "we\"ird.vlm:5: note: B:width*2 is 4\n"  // PRINT runs in both passes
            "we\"ird.vlm:5: note: B:width*2 is 4\n");
  CommandResult json = runLumeric({"--message-format", "json", "-o", "-", "we\"ird.vlm"}, dir.path());
  EXPECT_EQ(json.status, 1);
  EXPECT_EQ(json.err,
            "{\"file\":\"we\\\"ird.vlm\",\"line\":6,\"severity\":\"error\",\"message\":\"Unknown class \\\"Bar\\\"\"}\n"
            "{\"file\":\"we\\\"ird.vlm\",\"line\":6,\"severity\":\"note\",\"message\":\"did you mean \\\"Ball\\\"?\"}\n"
            "{\"file\":\"we\\\"ird.vlm\",\"line\":5,\"severity\":\"note\",\"message\":\"B:width*2 is 4\"}\n"
            "{\"file\":\"we\\\"ird.vlm\",\"line\":5,\"severity\":\"note\",\"message\":\"B:width*2 is 4\"}\n");
  EXPECT_EQ(gnu.out, json.out);
}

// A file that cannot be opened: a message without a position, in each
// format, and nothing written.
TEST(MessageFormatRun, MessagesWithoutPosition) {
  ScratchDir dir;
  const std::string message = "Could not open no\tsuch.vlm for reading - Error # 2";
  struct {
    std::vector<std::string> arguments;
    std::string err;
  } cases[] = {
      {{"--message-format", "plain"}, "error: " + message + "\n"},
      {{"--message-format", "gnu"}, "lumeric: error: " + message + "\n"},
      {{"--check", "--message-format", "json"},
       "{\"file\":null,\"line\":null,\"severity\":\"error\","
       "\"message\":\"Could not open no\\tsuch.vlm for reading - Error # 2\"}\n"},
  };
  for (const auto& c : cases) {
    std::vector<std::string> arguments = c.arguments;
    arguments.push_back("no\tsuch.vlm");
    CommandResult run = runLumeric(arguments, dir.path());
    EXPECT_EQ(run.status, 1) << c.err;
    EXPECT_EQ(run.err, c.err);
  }
  EXPECT_FALSE(dir.exists("output.wrl"));
}

}  // namespace
}  // namespace lumeric
