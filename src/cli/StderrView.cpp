#include "cli/StderrView.h"

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
  // The hint is worked out once per distinct message: a LOOP may repeat
  // one many times.
  auto addHint = [&details](Held& message) {
    if (details.candidates != nullptr) message.hint = hintText(nearNames(*details.candidates));
  };
  const void* key = details.repetitionsOf != nullptr ? details.repetitionsOf : aboutCopy ? &kCopies : nullptr;
  if (key != blockKey_) finish();
  if (key == nullptr) {
    addHint(held);
    print(held, 1);
    std::fflush(stream_);
    return 0;
  }
  blockKey_ = key;
  const std::string identity = std::to_string(held.parts.severity) + held.parts.file + '\0' + held.message;
  const auto entry = indexOf_.emplace(identity, distinct_.size());
  if (entry.second) {
    addHint(held);
    distinct_.push_back(std::move(held));
    counts_.push_back(0);
  }
  ++counts_[entry.first->second];
  if (format_ == MessageFormat::kJson) order_.push_back(entry.first->second);
  return 0;
}

void StderrView::finish() {
  if (format_ == MessageFormat::kJson) {
    // Every message in its order; the first of each kind with its count.
    std::vector<bool> printed(distinct_.size(), false);
    for (size_t k : order_) {
      print(distinct_[k], printed[k] ? 1 : counts_[k]);
      printed[k] = true;
    }
  } else {
    for (size_t k = 0; k < distinct_.size(); ++k) {
      print(distinct_[k], 1);
      if (counts_[k] > 1) {
        const std::string note = "repeated " + std::to_string(counts_[k]) + " times";
        std::fputs(noteLine(format_, distinct_[k].parts, note).c_str(), stream_);
      }
    }
  }
  distinct_.clear();
  counts_.clear();
  indexOf_.clear();
  order_.clear();
  blockKey_ = nullptr;
  std::fflush(stream_);
}

void StderrView::print(const Held& held, long repeat) {
  std::fputs(formatParts(format_, held.message, held.parts, repeat).c_str(), stream_);
  if (!held.hint.empty()) std::fputs(noteLine(format_, held.parts, held.hint).c_str(), stream_);
}

}  // namespace lumeric
