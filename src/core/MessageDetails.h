// What the library knows about the message it is posting beyond its text,
// for a view to read while its post() runs: the file of the node a copy was
// made from (a copy's message names no file), and the names the author may
// have meant by a name the message refuses.  The texts posted never change;
// these details are read-only for views and empty outside a post.
#ifndef LUMERIC_CORE_MESSAGEDETAILS_H
#define LUMERIC_CORE_MESSAGEDETAILS_H

#include <string>
#include <utility>
#include <vector>

namespace lumeric {

// The names a refused name is compared with, gathered only when a view asks.
class NameCandidates {
 public:
  enum Kind {
    kField,          // "Unknown field": the node's fields
    kFieldInScope,   // "Field X not found": the fields a reference could reach
    kFunction,       // "Function F(...) not found": the built-in functions
    kClass,          // "Unknown class": the node classes
    kColour,         // "Color C not found": the colour names
    kFieldCase,      // "Expected '}'; got 'C'": the node's fields, by case only
  };

  // `word` is not copied: it outlives the candidates.
  NameCandidates(Kind kind, const char* word) : kind_(kind), word_(word) {}
  virtual ~NameCandidates() = default;
  NameCandidates(const NameCandidates&) = delete;
  NameCandidates& operator=(const NameCandidates&) = delete;

  Kind kind() const { return kind_; }
  // The name as written in the scene.
  const char* word() const { return word_; }
  // Appends every name of the kind's list (duplicates allowed).
  virtual void collect(std::vector<std::string>& names) const = 0;

 private:
  Kind kind_;
  const char* word_;
};

// The details of the message being posted.  Null members: none known.
struct MessageDetails {
  const char* copiedFrom = nullptr;  // a copy's message: its original's file
  const NameCandidates* candidates = nullptr;
  // A message posted while a LOOP makes its repetitions: the outermost such
  // LOOP, so that a view can fold the messages its repetitions repeat.
  const void* repetitionsOf = nullptr;
};

// What a view's post() may ask about the message it is given.
const MessageDetails& postedMessageDetails();

// Sets the candidates for the messages posted while it lives (the one
// message of its scope), then restores the earlier ones.
class OfferedCandidates {
 public:
  explicit OfferedCandidates(const NameCandidates& candidates);
  ~OfferedCandidates();
  OfferedCandidates(const OfferedCandidates&) = delete;
  OfferedCandidates& operator=(const OfferedCandidates&) = delete;

 private:
  const NameCandidates* earlier_;
};

// The same for the file of a copy's original.
class CopiedFromFile {
 public:
  explicit CopiedFromFile(const char* file);
  ~CopiedFromFile();
  CopiedFromFile(const CopiedFromFile&) = delete;
  CopiedFromFile& operator=(const CopiedFromFile&) = delete;

 private:
  const char* earlier_;
};

// Marks the messages posted while it lives as made by the repetitions of
// `loop`, unless an enclosing LOOP already marks them.
class RepetitionsOf {
 public:
  explicit RepetitionsOf(const void* loop);
  ~RepetitionsOf();
  RepetitionsOf(const RepetitionsOf&) = delete;
  RepetitionsOf& operator=(const RepetitionsOf&) = delete;

 private:
  const void* earlier_;
};

}  // namespace lumeric

#endif  // LUMERIC_CORE_MESSAGEDETAILS_H
