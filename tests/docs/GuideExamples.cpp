#include "docs/GuideExamples.h"

#include <sstream>

namespace lumeric {

namespace {

struct Block {
  int line = 0;
  std::string tag;   // the first word after the fence
  std::string name;  // the second word, if any
  std::string text;
};

std::vector<Block> fencedBlocks(const std::string& markdown, std::vector<std::string>& problems) {
  std::vector<Block> blocks;
  std::istringstream lines(markdown);
  std::string line;
  int number = 0;
  bool inside = false;
  Block block;
  while (std::getline(lines, line)) {
    ++number;
    if (line.compare(0, 3, "```") != 0) {
      if (inside) block.text += line + "\n";
      continue;
    }
    if (inside) {
      blocks.push_back(block);
      inside = false;
      continue;
    }
    block = Block();
    block.line = number;
    std::istringstream info(line.substr(3));
    info >> block.tag >> block.name;
    inside = true;
  }
  if (inside) problems.push_back("line " + std::to_string(block.line) + ": the block is not closed");
  return blocks;
}

}  // namespace

std::vector<GuideExample> extractGuideExamples(const std::string& markdown, std::vector<std::string>& problems) {
  std::vector<GuideExample> examples;
  std::vector<std::pair<std::string, std::string>> files;
  bool open = false;  // the last example may still take output and messages
  for (const Block& block : fencedBlocks(markdown, problems)) {
    const std::string where = "line " + std::to_string(block.line) + ": ";
    if (block.tag == "vlm" && !block.name.empty()) {
      files.emplace_back(block.name, block.text);
      open = false;
    } else if (block.tag == "vlm") {
      GuideExample example;
      example.line = block.line;
      example.scene = block.text;
      example.files.swap(files);
      examples.push_back(example);
      open = true;
    } else if (block.tag == "output" || block.tag == "messages") {
      bool isOutput = block.tag == "output";
      if (!open) {
        problems.push_back(where + "an " + block.tag + " block without a vlm block before it");
        continue;
      }
      GuideExample& example = examples.back();
      bool& has = isOutput ? example.hasOutput : example.hasMessages;
      if (has) {
        problems.push_back(where + "a second " + block.tag + " block for the example of line " +
                           std::to_string(example.line));
        continue;
      }
      has = true;
      (isOutput ? example.output : example.messages) = block.text;
    }
  }
  if (!files.empty()) problems.push_back("a vlm file block is followed by no example");
  return examples;
}

void PrintTo(const GuideExample& example, std::ostream* out) { *out << "docs/language.md line " << example.line; }

}  // namespace lumeric
