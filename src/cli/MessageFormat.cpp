#include "cli/MessageFormat.h"

#include <cctype>
#include <cstdio>
#include <string>

namespace lumeric {

namespace {

const char kFileStart[] = "File \"";
const char kWarningStart[] = "Warning: ";

bool startsWith(const std::string& text, size_t pos, const char* piece) {
  return text.compare(pos, std::char_traits<char>::length(piece), piece) == 0;
}

// Reads "Line N: " at `pos`; on success `end` is just past it.
bool readLinePrefix(const std::string& text, size_t pos, long& line, size_t& end) {
  if (!startsWith(text, pos, "Line ")) return false;
  size_t at = pos + 5;
  bool negative = at < text.size() && text[at] == '-';
  if (negative) ++at;
  size_t digitsStart = at;
  long value = 0;
  while (at < text.size() && std::isdigit(static_cast<unsigned char>(text[at]))) {
    if (at - digitsStart >= 10) return false;  // the library prints an int
    value = value * 10 + (text[at] - '0');
    ++at;
  }
  if (at == digitsStart || !startsWith(text, at, ": ")) return false;
  line = negative ? -value : value;
  end = at + 2;
  return true;
}

// Takes the "File \"NAME\" " prefix, with its "Line N: " when there is one.
// The name itself may hold quotation marks, so the name ends at the first
// "\" Line N: "; only a message without a line ends it at the first "\" ".
size_t readFilePrefix(const std::string& text, MessageParts& parts) {
  const size_t nameStart = std::char_traits<char>::length(kFileStart);
  if (!startsWith(text, 0, kFileStart)) return 0;
  for (size_t quote = text.find("\" ", nameStart); quote != std::string::npos;
       quote = text.find("\" ", quote + 1)) {
    size_t end;
    if (readLinePrefix(text, quote + 2, parts.line, end)) {
      parts.hasFile = parts.hasLine = true;
      parts.file = text.substr(nameStart, quote - nameStart);
      return end;
    }
  }
  size_t quote = text.find("\" ", nameStart);
  if (quote == std::string::npos) return 0;
  parts.hasFile = true;
  parts.file = text.substr(nameStart, quote - nameStart);
  return quote + 2;
}

const char* severityName(MessageParts::Severity severity) {
  switch (severity) {
    case MessageParts::kError: return "error";
    case MessageParts::kWarning: return "warning";
    case MessageParts::kNote: return "note";
  }
  return "error";
}

std::string gnuLine(const MessageParts& parts) {
  std::string severity = severityName(parts.severity);
  if (parts.hasFile && parts.hasLine) {
    return parts.file + ":" + std::to_string(parts.line) + ": " + severity + ": " + parts.text;
  }
  if (parts.hasFile) return parts.file + ": " + severity + ": " + parts.text;
  // A line without a file belongs to a copy, whose source may be the input
  // or any file it included; naming no file keeps editors from jumping to
  // a wrong place, and the line stays in the text for the reader.
  if (parts.hasLine) return "lumeric: " + severity + ": Line " + std::to_string(parts.line) + ": " + parts.text;
  return "lumeric: " + severity + ": " + parts.text;
}

std::string jsonLine(const MessageParts& parts, long repeat = 1) {
  std::string line = "{\"file\":";
  line += parts.hasFile ? "\"" + jsonEscape(parts.file) + "\"" : "null";
  line += ",\"line\":";
  line += parts.hasLine ? std::to_string(parts.line) : "null";
  line += ",\"severity\":\"";
  line += severityName(parts.severity);
  line += "\",\"message\":\"" + jsonEscape(parts.text) + "\"";
  if (repeat > 1) line += ",\"repeat\":" + std::to_string(repeat);
  return line + "}";
}

// Length of the well-formed UTF-8 sequence at `pos`, or 0 when there is none.
size_t utf8Length(const std::string& text, size_t pos) {
  auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
  unsigned char lead = byte(pos);
  size_t length = 0;
  unsigned long code = 0;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
    code = lead & 0x1F;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    code = lead & 0x0F;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    code = lead & 0x07;
  } else {
    return 0;
  }
  if (pos + length > text.size()) return 0;
  for (size_t i = 1; i < length; ++i) {
    if ((byte(pos + i) & 0xC0) != 0x80) return 0;
    code = (code << 6) | (byte(pos + i) & 0x3F);
  }
  bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
  bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (overlong || surrogate || code > 0x10FFFF) return 0;
  return length;
}

}  // namespace

bool parseMessageFormat(const std::string& name, MessageFormat& format) {
  if (name == "plain") {
    format = MessageFormat::kPlain;
  } else if (name == "gnu") {
    format = MessageFormat::kGnu;
  } else if (name == "json") {
    format = MessageFormat::kJson;
  } else {
    return false;
  }
  return true;
}

MessageParts splitMessage(const std::string& message, int flag) {
  MessageParts parts;
  size_t textStart = readFilePrefix(message, parts);
  if (!parts.hasFile && readLinePrefix(message, 0, parts.line, textStart)) parts.hasLine = true;
  parts.text = message.substr(textStart);
  if (flag == 1) {
    parts.severity = MessageParts::kError;
  } else if (startsWith(parts.text, 0, kWarningStart)) {
    parts.severity = MessageParts::kWarning;
    parts.text.erase(0, std::char_traits<char>::length(kWarningStart));
  } else {
    parts.severity = MessageParts::kNote;
  }
  return parts;
}

std::string formatMessage(MessageFormat format, const std::string& message, int flag) {
  switch (format) {
    case MessageFormat::kPlain:
      return (flag == 1 ? "error: " : "") + message + "\n";
    case MessageFormat::kGnu:
      return gnuLine(splitMessage(message, flag)) + "\n";
    case MessageFormat::kJson:
      return jsonLine(splitMessage(message, flag)) + "\n";
  }
  return message + "\n";
}

std::string formatParts(MessageFormat format, const std::string& message, const MessageParts& parts, long repeat) {
  switch (format) {
    case MessageFormat::kPlain:
      return (parts.severity == MessageParts::kError ? "error: " : "") + message + "\n";
    case MessageFormat::kGnu:
      return gnuLine(parts) + "\n";
    case MessageFormat::kJson:
      return jsonLine(parts, repeat) + "\n";
  }
  return message + "\n";
}

std::string noteLine(MessageFormat format, const MessageParts& at, const std::string& text) {
  MessageParts note = at;
  note.severity = MessageParts::kNote;
  note.text = text;
  // A copy named by its line alone keeps the line out of the note, which
  // is about the message just printed.
  if (format == MessageFormat::kGnu && !note.hasFile) note.hasLine = false;
  return format == MessageFormat::kPlain ? "note: " + text + "\n" : formatParts(format, text, note);
}

std::string jsonEscape(const std::string& text) {
  std::string escaped;
  for (size_t i = 0; i < text.size(); ++i) {
    unsigned char c = static_cast<unsigned char>(text[i]);
    if (c == '"' || c == '\\') {
      escaped += '\\';
      escaped += static_cast<char>(c);
    } else if (c == '\n') {
      escaped += "\\n";
    } else if (c == '\t') {
      escaped += "\\t";
    } else if (c == '\r') {
      escaped += "\\r";
    } else if (c < 0x20 || c >= 0x80) {
      size_t length = c >= 0x80 ? utf8Length(text, i) : 0;
      if (length > 0) {
        escaped.append(text, i, length);
        i += length - 1;
      } else {
        char code[8];
        std::snprintf(code, sizeof code, "\\u%04x", c);
        escaped += code;
      }
    } else {
      escaped += static_cast<char>(c);
    }
  }
  return escaped;
}

}  // namespace lumeric
