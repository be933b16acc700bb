// How the command prints the library's messages: as they are (plain), in
// the FILE:LINE: form that editors and build tools recognise (gnu), or as
// one JSON object per line (json).  The library's texts stay as they are;
// the position is taken from the prefix the library puts in front of them.
#ifndef LUMERIC_CLI_MESSAGEFORMAT_H
#define LUMERIC_CLI_MESSAGEFORMAT_H

#include <string>

namespace lumeric {

enum class MessageFormat { kPlain, kGnu, kJson };

// Looks up a format by its name ("plain", "gnu", "json"); false for any other.
bool parseMessageFormat(const std::string& name, MessageFormat& format);

// A library message taken apart.  The library writes
//   File "NAME" Line N: TEXT    (a node or value read from a file)
//   Line N: TEXT                (a copy, which has no file)
//   File "NAME" TEXT            (a message about the file as a whole)
//   TEXT
// and flags it 1 for an error or 0 for a warning or PRINT output.  Warnings
// are told from PRINT output by their text, which starts with "Warning: ";
// that word is moved into the severity.
struct MessageParts {
  enum Severity { kError, kWarning, kNote };

  bool hasFile = false;
  std::string file;
  bool hasLine = false;
  long line = 0;
  Severity severity = kError;
  std::string text;  // the message without prefix and without "Warning: "
};

MessageParts splitMessage(const std::string& message, int flag);

// The line the command prints for one message, line end included.
std::string formatMessage(MessageFormat format, const std::string& message, int flag);

// The same from the message already taken apart (its parts may have been
// completed, as with the file of a copy); with `repeat` above 1 json adds
// "repeat":N, the number of identical messages this one stands for.
std::string formatParts(MessageFormat format, const std::string& message, const MessageParts& parts,
                        long repeat = 1);

// A note at the position of the message `at`: "note: TEXT" in plain, at
// `at`'s file and line in gnu and json.
std::string noteLine(MessageFormat format, const MessageParts& at, const std::string& text);

// `text` as the contents of a JSON string (without the quotation marks).
// Bytes that are not UTF-8 are taken as Latin-1 characters, so the result
// is always valid JSON and keeps every byte's value.
std::string jsonEscape(const std::string& text);

}  // namespace lumeric

#endif  // LUMERIC_CLI_MESSAGEFORMAT_H
