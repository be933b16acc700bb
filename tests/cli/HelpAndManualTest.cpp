// `lumeric --help` and the manual page lumeric(1) describe the same options,
// and every example file either of them names is one that exists.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <sstream>
#include <string>

#include "cli/CommandLine.h"
#include "support/SceneRunner.h"

namespace lumeric {
namespace {

const std::string kSourceDir = LUMERIC_TEST_DIR "/..";

// Adds each form of a tag such as "-h, --help" or "-o FILE", with single
// blanks between its words.
void addForms(const std::string& tag, std::set<std::string>& forms) {
  std::istringstream parts(tag);
  std::string part;
  while (std::getline(parts, part, ',')) {
    std::istringstream words(part);
    std::string word, form;
    while (words >> word) form += (form.empty() ? "" : " ") + word;
    forms.insert(form);
  }
}

std::string replaceAll(std::string text, const std::string& from, const std::string& to) {
  for (size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) text.replace(at, from.size(), to);
  return text;
}

// The option lines of --help start with two blanks and a dash; the tag
// ends at the first run of two blanks.
std::set<std::string> helpOptions() {
  std::set<std::string> forms;
  std::istringstream lines(kUsageText);
  std::string line;
  bool inOptions = false;
  while (std::getline(lines, line)) {
    if (line == "Options:") inOptions = true;
    if (inOptions && line.empty()) break;
    if (inOptions && line.compare(0, 3, "  -") == 0) addForms(line.substr(2, line.find("  ", 2) - 2), forms);
  }
  return forms;
}

// The roff text with escapes and font changes taken out.
std::string plainRoff(std::string text) {
  for (const char* font : {"\\fB", "\\fI", "\\fR", "\\fP"}) text = replaceAll(text, font, "");
  text = replaceAll(text, "\\-", "-");
  return replaceAll(text, "\\(dq", "\"");
}

// In the manual each option is the tag line after a .TP in OPTIONS.
std::set<std::string> manualOptions(const std::string& manual) {
  std::set<std::string> forms;
  std::istringstream lines(plainRoff(manual));
  std::string line;
  bool inOptions = false;
  bool tagNext = false;
  while (std::getline(lines, line)) {
    if (line.compare(0, 4, ".SH ") == 0) inOptions = line == ".SH OPTIONS";
    if (!inOptions) continue;
    if (tagNext) {
      std::string tag = line.substr(line.find(' ') + 1);  // drop .B, .BI, .BR
      tag.erase(std::remove(tag.begin(), tag.end(), '"'), tag.end());
      addForms(tag, forms);
    }
    tagNext = line == ".TP";
  }
  return forms;
}

// Every "examples/NAME" in `text`; a full stop after the name ends a sentence.
std::set<std::string> exampleFiles(const std::string& text) {
  auto inName = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '-' || c == '.'; };
  std::set<std::string> files;
  const std::string directory = "examples/";
  for (size_t at = text.find(directory); at != std::string::npos; at = text.find(directory, at + 1)) {
    size_t end = at + directory.size();
    while (end < text.size() && inName(text[end])) ++end;
    while (end > at + directory.size() && text[end - 1] == '.') --end;
    if (end > at + directory.size()) files.insert(text.substr(at, end - at));
  }
  return files;
}

TEST(HelpAndManual, DescribeTheSameOptions) {
  std::string manual = readFile(kSourceDir + "/docs/lumeric.1");
  ASSERT_FALSE(manual.empty());
  std::set<std::string> help = helpOptions();
  EXPECT_TRUE(help.count("--message-format FORMAT") && help.count("-W unknown") && help.count("-h"));
  EXPECT_EQ(manualOptions(manual), help);
}

TEST(HelpAndManual, NameOnlyExampleFilesThatExist) {
  std::string manual = plainRoff(readFile(kSourceDir + "/docs/lumeric.1"));
  std::set<std::string> inHelp = exampleFiles(kUsageText);
  ASSERT_FALSE(inHelp.empty());
  std::set<std::string> named = exampleFiles(manual);
  named.insert(inHelp.begin(), inHelp.end());
  for (const std::string& file : named) {
    EXPECT_FALSE(readFile(kSourceDir + "/" + file).empty()) << file << " is named but does not exist";
  }
}

TEST(HelpAndManual, ManualNamesEveryMessageFormatAndExitStatus) {
  std::string manual = plainRoff(readFile(kSourceDir + "/docs/lumeric.1"));
  for (const char* section : {".SS plain", ".SS gnu", ".SS json", ".SH EXIT STATUS", ".SH EXAMPLES"}) {
    EXPECT_NE(manual.find(section), std::string::npos) << section;
  }
}

}  // namespace
}  // namespace lumeric
