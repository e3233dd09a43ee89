#include "stream/arrival_assembler.h"

#include <utility>

#include "platform/protocol_marker.h"
#include "richtext/rtf_cut.h"

namespace verlume::stream {
namespace {

constexpr std::string_view kOpening = "{\\rtf";

bool IsLineEnd(char byte) {
  return byte == '\r' || byte == '\n' || byte == '\0';
}

// Whether the first byte, which follows a complete document, belongs to that document's line end. A
// NUL may also open the marker of the next message; the byte behind it decides.
bool IsPartOfLineEnd(std::string_view bytes) {
  if (bytes[0] == '\0' && bytes.size() > 1) return IsLineEnd(bytes[1]) || bytes[1] == '{';
  return IsLineEnd(bytes[0]);
}

}  // namespace

void ArrivalAssembler::Add(std::string_view bytes, TimePoint now) {
  if (bytes.empty()) return;
  if (buffer_.empty() && at_ == At::AfterDocument) {
    // The document is already delivered. Its line end comes late and must not become an arrival.
    if (now - lastByte_ >= timeout_) at_ = At::Start;
    while (at_ == At::AfterDocument && !bytes.empty() && IsPartOfLineEnd(bytes))
      bytes.remove_prefix(1);
  }
  buffer_.append(bytes);
  lastByte_ = now;
  Scan(bytes);
}

void ArrivalAssembler::Scan(std::string_view bytes) {
  for (; !bytes.empty() && at_ != At::OtherText; bytes.remove_prefix(1)) {
    if (at_ == At::Document) bytes.remove_prefix(document_.Skippable(bytes));
    if (bytes.empty()) break;
    switch (at_) {
      case At::Start:
        ScanFirst(bytes[0]);
        break;
      case At::Marker:
        ScanMarker(bytes[0]);
        break;
      case At::Kind:
        at_ = At::Opening;
        matched_ = 0;
        break;
      case At::Opening:
        ScanOpening(bytes[0]);
        break;
      case At::Document:
        if (document_.Feed(bytes[0])) at_ = At::AfterDocument;
        break;
      case At::AfterDocument:
        // A second document in the same read is held together as well.
        if (!IsPartOfLineEnd(bytes)) ScanFirst(bytes[0]);
        break;
      case At::OtherText:
        break;
    }
    if (at_ == At::AfterDocument) complete_ = buffer_.size() - bytes.size() + 1;
  }
  if (at_ == At::OtherText) complete_ = buffer_.size();
}

void ArrivalAssembler::ScanFirst(char byte) {
  matched_ = 1;
  at_ = byte == '\0' ? At::Marker : byte == kOpening[0] ? At::Opening : At::OtherText;
}

void ArrivalAssembler::ScanMarker(char byte) {
  ++matched_;
  const bool isLast = matched_ == kMarkerLength;
  if ((byte == '\0') != isLast) {
    at_ = At::OtherText;
  } else if (isLast) {
    at_ = At::Kind;
  }
}

void ArrivalAssembler::ScanOpening(char byte) {
  if (byte != kOpening[matched_]) {
    at_ = At::OtherText;
  } else if (++matched_ == kOpening.size()) {
    at_ = At::Document;
    document_ = richtext::DocumentScan();
  }
}

std::optional<std::string> ArrivalAssembler::Take(TimePoint now) {
  if (buffer_.empty()) return std::nullopt;
  if (complete_ > 0) return TakeComplete();
  if (buffer_.size() >= kLongestHeldBack) return TakePart();
  if (now < *Deadline()) return std::nullopt;
  return Flush();
}

std::string ArrivalAssembler::TakeComplete() {
  if (at_ == At::OtherText) at_ = At::Start;
  std::string complete = std::exchange(buffer_, buffer_.substr(complete_));
  complete.resize(std::exchange(complete_, 0));
  return complete;
}

// Only a document gets so long. Its first half is taken: cutting and showing that takes no longer
// than showing the longest complete one, and the cut stays away from the end of the buffer, where a
// word may be incomplete.
std::string ArrivalAssembler::TakePart() {
  const std::size_t begin = buffer_[0] == '\0' ? kMarkerLength + 1 : 0;
  const std::string_view document = std::string_view(buffer_).substr(begin);
  richtext::CutDocument cut = richtext::CutRtf(document, document.size() / 2);
  std::string part = buffer_.substr(0, begin) + cut.before;
  buffer_ = std::move(cut.behind);
  at_ = At::Start;
  Scan(buffer_);
  return part;
}

std::optional<std::string> ArrivalAssembler::Flush() {
  if (buffer_.empty()) return std::nullopt;
  if (at_ != At::AfterDocument) at_ = At::Start;
  complete_ = 0;
  return std::exchange(buffer_, {});
}

std::optional<TimePoint> ArrivalAssembler::Deadline() const {
  if (buffer_.empty()) return std::nullopt;
  return lastByte_ + timeout_;
}

}  // namespace verlume::stream
