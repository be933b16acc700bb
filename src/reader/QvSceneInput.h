// The scene file being read: header check, white space and comments, line
// count, names, strings, integers, raw value texts, put-back of characters
// and words, and the table of DEF names.  One input serves a whole run;
// included files are read through it with saveState / setFile /
// restoreState.
#ifndef LUMERIC_READER_QVSCENEINPUT_H
#define LUMERIC_READER_QVSCENEINPUT_H

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

#include "core/QvAtom.h"
#include "core/CharacterClasses.h"
#include "scene/DefTable.h"

namespace lumeric {

class FieldExpression;
class QvNode;

class QvSceneInput {
 public:
  static constexpr int kMaxNameLength = 255;
  static constexpr int kMaxValueText = 511;
  static constexpr size_t kMaxStringLength = 65536;
  static constexpr char kEndOfFile = static_cast<char>(255);

  // Name kinds of readName.
  enum NameKind { kLowerName = 1, kDefName = 2, kUpperName = 3 };

  // The reading state that an INCLUDE saves around the included file: the
  // file with our own buffering of it, the line, the header state and the
  // word given back.  One character can always be given back to the file,
  // since the last character read sits just before `position`.
  struct State {
    static constexpr size_t kBufferSize = 64 * 1024;

    // The file read; not owned, null between saveState and setFile.
    FILE* file = nullptr;
    // The line of the next character, from 1; stops at INT_MAX.
    int line = 1;
    // Set once the header line has been read and accepted.
    bool headerRead = false;
    // Cleared for good when the header check fails: nothing more is read.
    bool usable = true;
    // The word given back by putBackWord, read again before the file.
    std::string putBack;
    // The next character of putBack to read; -1 when no word is pending.
    int putBackIndex = -1;

    // Our buffering of `file`: buffer[position, end) is read but not yet
    // taken; position > 0 once a character has been taken.
    std::unique_ptr<char[]> buffer{new char[kBufferSize]};
    size_t position = 0;
    size_t end = 0;
    // Set when a read of the file has returned nothing; it stays set.
    bool atEnd = false;
    // Whether the last getChar failed, so that putBackChar gives nothing back.
    bool lastReadFailed = false;
  };
  using SavedState = std::unique_ptr<State>;

  QvSceneInput();
  ~QvSceneInput();
  QvSceneInput(const QvSceneInput&) = delete;
  QvSceneInput& operator=(const QvSceneInput&) = delete;

  // Starts reading `file` (not owned): line 1, header not yet checked.
  void setFile(FILE* file);
  // Moves the reading state out (the input is left without a file) and back.
  SavedState saveState();
  void restoreState(SavedState state);

  // The next character; false (and c = kEndOfFile) at the end of the file
  // or when the header check fails.
  bool getChar(char& c) {
    State& s = *state_;
    if (s.putBackIndex < 0 && s.position < s.end) {
      // Buffered characters exist only once the header has been checked.
      c = s.buffer[s.position++];
      s.lastReadFailed = false;
      return true;
    }
    return getCharSlowly(c);
  }
  // Gives back the last character read (never the end of the file).
  void putBackChar(char c);
  // The whole word is read again before the file; replaces a pending word.
  void putBackWord(const char* text);
  // The name characters that follow, as far as they are already buffered
  // (at most kMaxNameLength), without reading them.
  std::string peekNameRest() const;
  // Whether a read has met the end of the file.
  bool eof() const;

  // Skips white space and comments; fails only when the header check fails.
  bool skipWhiteSpace();
  bool readChar(char& c);
  bool peekChar(char expected);
  // A name of the given kind after white space; an empty atom when the
  // first character does not qualify.  At most 255 characters are kept.
  bool readName(QvAtom& name, NameKind kind);
  // A quoted or unquoted string after white space; at most
  // kMaxStringLength characters are kept, the rest is read and dropped.
  bool readString(std::string& text);
  // The raw text of one value after white space, recorded in `expr` with the
  // current line and `node`.  Fails only at the end of the file.
  bool readValueText(FieldExpression& expr, QvNode* node);
  bool readInteger(int32_t& value);
  bool readShort(int16_t& value);
  bool readUnsigned(uint32_t& value);

  // The line being read; it stays at INT_MAX once it gets there.
  int getLine() const;
  // Counts the lines from `line` on, as if the input were there (also lets
  // tests reach the end of the count without reading billions of lines).
  void setLine(int line);
  bool isUsable() const;

  // The DEF table of the scene read through this input.
  DefTable& defNames() { return defTable_; }
  // Enters `node` under `name` in the DEF table (replacing an earlier node)
  // and names the node.  Tells whether the table already held that name.
  bool addName(QvAtom name, QvNode* node) { return defTable_.addName(name, node); }
  QvNode* findName(QvAtom name) const { return defTable_.findName(name); }

 private:
  bool getCharSlowly(char& c);
  bool readPlainValueText(FieldExpression& expr);
  bool checkHeader();
  bool readRaw(char& c);  // the file only, no header check
  void unreadRaw();
  bool readDigits(std::string& digits, bool allowSign);
  // An integer of type Integer (a sign only when it is signed).
  template <typename Integer>
  bool readClampedInteger(Integer& value);

  // Never null: the state of the file being read (swapped by INCLUDE).
  SavedState state_;
  // The DEF names read through this input, included files' too.
  DefTable defTable_;
};

}  // namespace lumeric

#endif  // LUMERIC_READER_QVSCENEINPUT_H
