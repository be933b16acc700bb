#include "expr/RecordedParses.h"

#include <cstdint>
#include <string>

#include "expr/ParseContext.h"
#include "expr/ParseRecording.h"

namespace lumeric {

namespace {

constexpr size_t kEntries = 256;

struct Entry {
  enum State : uint8_t { kSeen, kRecorded, kNotRecordable };
  std::string text;
  State state = kSeen;
  // Replays and recordings under way: an entry in use is neither replaced
  // nor changed, since a field reference inside it may evaluate another
  // text that falls on the same entry.
  int inUse = 0;
  RecordedParse parse;
};

Entry* entries() {
  static Entry table[kEntries];
  return table;
}

size_t indexOf(const char* text, size_t length) {
  uint32_t hash = 2166136261u;
  for (size_t k = 0; k < length; ++k) hash = (hash ^ static_cast<unsigned char>(text[k])) * 16777619u;
  return hash % kEntries;
}

class Use {
 public:
  explicit Use(Entry& entry) : entry_(entry) { ++entry_.inUse; }
  ~Use() { --entry_.inUse; }
  Use(const Use&) = delete;
  Use& operator=(const Use&) = delete;

 private:
  Entry& entry_;
};

// The second evaluation of a text parses it with a recording.
int parseRecorded(ParseContext* context, Entry& entry) {
  ParseRecording recording;
  int status;
  {
    Use use(entry);
    context->recording = &recording;
    status = runExpressionParser(context);
    context->recording = nullptr;
  }
  // A parse that stopped at a failing action recorded only its first steps;
  // a text that fails is parsed every time from then on.
  if (recording.usable() && status == 0) {
    entry.parse = std::move(recording.parse());
    entry.state = Entry::kRecorded;
  } else {
    entry.state = Entry::kNotRecordable;
  }
  return status;
}

}  // namespace

int parseOrReplay(ParseContext* context, const char* text, size_t length) {
  if (context->lexer.startToken != 0) return runExpressionParser(context);
  Entry& entry = entries()[indexOf(text, length)];
  if (entry.text.size() == length && entry.text.compare(0, length, text, length) == 0) {
    if (entry.state == Entry::kRecorded) {
      Use use(entry);
      return replayParse(entry.parse, context);
    }
    if (entry.state == Entry::kSeen && entry.inUse == 0) return parseRecorded(context, entry);
    return runExpressionParser(context);
  }
  if (entry.inUse == 0) {
    entry.text.assign(text, length);
    entry.state = Entry::kSeen;
    entry.parse = RecordedParse();
  }
  return runExpressionParser(context);
}

}  // namespace lumeric
