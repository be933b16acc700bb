// The output scene file, written whole or not at all.  The result goes to a
// temporary file beside the target, which replaces the target only when
// everything was written; a run that fails, or is killed, leaves the old
// target as it was.  A target that exists and is not a regular file (a
// device, a pipe) is written directly.
#ifndef LUMERIC_CORE_OUTPUTFILE_H
#define LUMERIC_CORE_OUTPUTFILE_H

#include <cstdio>
#include <string>

namespace lumeric {

class OutputFile {
 public:
  OutputFile() = default;
  // Abandons an output still open.
  ~OutputFile() { abandon(); }
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  // Creates the temporary file for `target` and returns its stream, or
  // null with `errorNumber` set (EISDIR when the target is a directory).
  FILE* open(const char* target, int& errorNumber);
  bool isOpen() const { return stream_ != nullptr; }
  FILE* stream() const { return stream_; }
  // The name the output was opened with.
  const std::string& target() const { return target_; }
  // Whether commit() renames a temporary file over the target (false for a
  // target written where it is).
  bool replacesTarget() const { return !temporary_.empty(); }

  enum Outcome { kReplaced, kWriteFailed, kCloseFailed };
  // Flushes and closes the temporary file and renames it over the target.
  // `writeError` is the system error number of a write that failed before
  // (0 when none did); the output is then abandoned.  On failure the
  // temporary file is removed, the target is left alone, and `errorNumber`
  // tells why.
  Outcome commit(int writeError, int& errorNumber);
  // Closes and removes the temporary file; the target is left alone.
  void abandon();

 private:
  FILE* stream_ = nullptr;
  std::string target_;
  // What the output replaces: the target, or the file a link names.
  std::string destination_;
  std::string temporary_;
};

}  // namespace lumeric

#endif  // LUMERIC_CORE_OUTPUTFILE_H
