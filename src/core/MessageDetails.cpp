#include "core/MessageDetails.h"

namespace lumeric {

namespace {

MessageDetails theDetails;

}  // namespace

const MessageDetails& postedMessageDetails() { return theDetails; }

OfferedCandidates::OfferedCandidates(const NameCandidates& candidates) : earlier_(theDetails.candidates) {
  theDetails.candidates = &candidates;
}

OfferedCandidates::~OfferedCandidates() { theDetails.candidates = earlier_; }

CopiedFromFile::CopiedFromFile(const char* file) : earlier_(theDetails.copiedFrom) { theDetails.copiedFrom = file; }

CopiedFromFile::~CopiedFromFile() { theDetails.copiedFrom = earlier_; }

RepetitionsOf::RepetitionsOf(const void* loop) : earlier_(theDetails.repetitionsOf) {
  if (earlier_ == nullptr) theDetails.repetitionsOf = loop;
}

RepetitionsOf::~RepetitionsOf() { theDetails.repetitionsOf = earlier_; }

}  // namespace lumeric
