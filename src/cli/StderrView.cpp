#include "cli/StderrView.h"

#include <unordered_map>

#include "cli/NameHints.h"
#include "core/MessageDetails.h"

namespace lumeric {

namespace {

// The block key of copies' messages posted outside any LOOP's repetitions.
const char kCopies = 0;

}  // namespace

int StderrView::post(const char* text, int flag) {
  Held held{text, splitMessage(text, flag), ""};
  if (flag == 1) {
    ++errors_;
  } else if (held.parts.severity == MessageParts::kWarning) {
    ++warnings_;
  }
  if (!annotates_) {
    std::fputs(formatParts(format_, held.message, held.parts).c_str(), stream_);
    std::fflush(stream_);
    return 0;
  }
  const MessageDetails& details = postedMessageDetails();
  const bool aboutCopy = held.parts.hasLine && !held.parts.hasFile;
  if (aboutCopy && details.copiedFrom != nullptr) {
    held.parts.hasFile = true;
    held.parts.file = details.copiedFrom;
  }
  if (details.candidates != nullptr) held.hint = hintText(nearNames(*details.candidates));
  const void* key = details.repetitionsOf != nullptr ? details.repetitionsOf : aboutCopy ? &kCopies : nullptr;
  if (key != blockKey_) finish();
  if (key == nullptr) {
    print(held, 1);
    std::fflush(stream_);
    return 0;
  }
  blockKey_ = key;
  block_.push_back(std::move(held));
  return 0;
}

void StderrView::finish() {
  // Each message's first identical one, and how many each first stands for.
  std::vector<size_t> first(block_.size());
  std::vector<int> count(block_.size(), 0);
  std::unordered_map<std::string, size_t> firstOf;
  for (size_t k = 0; k < block_.size(); ++k) {
    const Held& held = block_[k];
    const std::string key = std::to_string(held.parts.severity) + held.parts.file + '\0' + held.message;
    first[k] = firstOf.emplace(key, k).first->second;
    ++count[first[k]];
  }
  for (size_t k = 0; k < block_.size(); ++k) {
    const bool isFirst = first[k] == k;
    if (format_ == MessageFormat::kJson) {
      print(block_[k], isFirst ? count[k] : 1);
    } else if (isFirst) {
      print(block_[k], 1);
      if (count[k] > 1) {
        const std::string note = "repeated " + std::to_string(count[k]) + " times";
        std::fputs(noteLine(format_, block_[k].parts, note).c_str(), stream_);
      }
    }
  }
  block_.clear();
  blockKey_ = nullptr;
  std::fflush(stream_);
}

void StderrView::print(const Held& held, int repeat) {
  std::fputs(formatParts(format_, held.message, held.parts, repeat).c_str(), stream_);
  if (!held.hint.empty()) std::fputs(noteLine(format_, held.parts, held.hint).c_str(), stream_);
}

}  // namespace lumeric
