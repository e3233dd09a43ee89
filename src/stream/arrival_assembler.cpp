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

// Whether the first byte, which comes after a whole document, still ends that document's line. A
// NUL may also open the next message's marker; what follows it tells.
bool EndsTheLine(std::string_view bytes) {
  if (bytes[0] == '\0' && bytes.size() > 1) return IsLineEnd(bytes[1]) || bytes[1] == '{';
  return IsLineEnd(bytes[0]);
}

}  // namespace

void ArrivalAssembler::Add(std::string_view bytes, std::int64_t now) {
  if (bytes.empty()) return;
  if (waiting_.empty() && at_ == At::AfterDocument) {
    // The document itself is delivered; the end of its line comes late and is not shown again.
    if (now - lastByte_ >= patience_) at_ = At::Start;
    while (at_ == At::AfterDocument && !bytes.empty() && EndsTheLine(bytes)) bytes.remove_prefix(1);
  }
  waiting_.append(bytes);
  lastByte_ = now;
  Scan(bytes);
}

void ArrivalAssembler::Scan(std::string_view bytes) {
  for (; !bytes.empty() && at_ != At::OtherText; bytes.remove_prefix(1)) {
    if (at_ == At::Document) bytes.remove_prefix(document_.Skippable(bytes));
    if (bytes.empty()) break;
    switch (at_) {
      case At::Start:
        Begin(bytes[0]);
        break;
      case At::Marker:
        FeedMarker(bytes[0]);
        break;
      case At::Kind:
        at_ = At::Opening;
        matched_ = 0;
        break;
      case At::Opening:
        FeedOpening(bytes[0]);
        break;
      case At::Document:
        if (document_.Feed(bytes[0])) at_ = At::AfterDocument;
        break;
      case At::AfterDocument:
        // A second document in the same read is not torn either.
        if (!EndsTheLine(bytes)) Begin(bytes[0]);
        break;
      case At::OtherText:
        break;
    }
    if (at_ == At::AfterDocument) whole_ = waiting_.size() - bytes.size() + 1;
  }
  if (at_ == At::OtherText) whole_ = waiting_.size();
}

void ArrivalAssembler::Begin(char byte) {
  matched_ = 1;
  at_ = byte == '\0' ? At::Marker : byte == kOpening[0] ? At::Opening : At::OtherText;
}

void ArrivalAssembler::FeedMarker(char byte) {
  ++matched_;
  const bool isLast = matched_ == kMarkerLength;
  if ((byte == '\0') != isLast) {
    at_ = At::OtherText;
  } else if (isLast) {
    at_ = At::Kind;
  }
}

void ArrivalAssembler::FeedOpening(char byte) {
  if (byte != kOpening[matched_]) {
    at_ = At::OtherText;
  } else if (++matched_ == kOpening.size()) {
    at_ = At::Document;
    document_ = richtext::DocumentScan();
  }
}

std::optional<std::string> ArrivalAssembler::Take(std::int64_t now) {
  if (waiting_.empty()) return std::nullopt;
  if (whole_ > 0) return TakeWhole();
  if (waiting_.size() >= kLargest) return TakePiece();
  if (now < *Deadline()) return std::nullopt;
  return TakeAll();
}

std::string ArrivalAssembler::TakeWhole() {
  if (at_ == At::OtherText) at_ = At::Start;
  std::string whole = std::exchange(waiting_, waiting_.substr(whole_));
  whole.resize(std::exchange(whole_, 0));
  return whole;
}

// Only a document waits for so long. Half of it is cut off: to cut and to show it takes no longer
// than to show the longest whole one, and the end of what has come, which may cut a word, is far.
std::string ArrivalAssembler::TakePiece() {
  const std::size_t begin = waiting_[0] == '\0' ? kMarkerLength + 1 : 0;
  const std::string_view document = std::string_view(waiting_).substr(begin);
  richtext::CutDocument cut = richtext::CutRtf(document, document.size() / 2);
  std::string piece = waiting_.substr(0, begin) + cut.before;
  waiting_ = std::move(cut.behind);
  at_ = At::Start;
  Scan(waiting_);
  return piece;
}

std::optional<std::string> ArrivalAssembler::TakeAll() {
  if (waiting_.empty()) return std::nullopt;
  if (at_ != At::AfterDocument) at_ = At::Start;
  whole_ = 0;
  return std::exchange(waiting_, {});
}

std::optional<std::int64_t> ArrivalAssembler::Deadline() const {
  if (waiting_.empty()) return std::nullopt;
  return lastByte_ + patience_;
}

}  // namespace verlume::stream
