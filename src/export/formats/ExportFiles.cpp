#include "export/formats/ExportFiles.h"

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "core/OutputFile.h"

namespace lumeric {

namespace {

std::string writeFailure(const std::string& name, int errorNumber) {
  return "Could not write " + name + " - Error # " + std::to_string(errorNumber);
}

// Writes `bytes` to `stream`; returns the error number, 0 when all went.
int writeBytes(const std::string& bytes, FILE* stream) {
  errno = 0;
  if (!bytes.empty() && std::fwrite(bytes.data(), 1, bytes.size(), stream) != bytes.size()) {
    return errno != 0 ? errno : EIO;
  }
  return 0;
}

int writeContent(const ExportedFile& file, FILE* stream) {
  return file.stream ? file.stream(stream) : writeBytes(file.bytes, stream);
}

}  // namespace

int SpillingText::spill(bool all) {
  if (error_ != 0) {
    text_.clear();
    return error_;
  }
  if (text_.size() < kPiece && !all) return 0;
  error_ = writeBytes(text_, stream_);
  text_.clear();
  return error_;
}

std::string contentOf(const ExportedFile& file) {
  if (!file.stream) return file.bytes;
  char* text = nullptr;
  size_t size = 0;
  FILE* stream = open_memstream(&text, &size);
  if (stream == nullptr) return std::string();
  file.stream(stream);
  std::fclose(stream);
  std::string content(text, size);
  std::free(text);
  return content;
}

bool writeExportedFiles(const ExportedFiles& files, ExportMessages& messages) {
  std::vector<std::unique_ptr<OutputFile>> outputs;
  for (const ExportedFile& file : files) {
    outputs.push_back(std::make_unique<OutputFile>());
    int errorNumber = 0;
    FILE* stream = outputs.back()->open(file.path.c_str(), errorNumber);
    if (stream == nullptr) {
      messages.error("Could not open " + file.path + " for writing - Error # " + std::to_string(errorNumber));
      return false;  // the outputs opened so far are abandoned
    }
    errorNumber = writeContent(file, stream);
    if (errorNumber == 0 && std::fflush(stream) != 0) errorNumber = errno != 0 ? errno : EIO;
    if (errorNumber != 0) {
      messages.error(writeFailure(file.path, errorNumber));
      return false;
    }
  }
  bool written = true;
  for (size_t i = 0; i < outputs.size(); ++i) {
    int errorNumber = 0;
    if (outputs[i]->commit(0, errorNumber) != OutputFile::kReplaced) {
      messages.error(writeFailure(files[i].path, errorNumber));
      written = false;
    }
  }
  return written;
}

bool writeExportToStream(const ExportedFiles& files, FILE* stream, ExportMessages& messages) {
  if (files.empty()) return true;
  int errorNumber = writeContent(files.front(), stream);
  errno = 0;
  if (errorNumber == 0 && (std::fflush(stream) != 0 || std::ferror(stream))) errorNumber = errno != 0 ? errno : EIO;
  if (errorNumber == 0) return true;
  messages.error(writeFailure("standard output", errorNumber));
  return false;
}

}  // namespace lumeric
