// Makes arrivals out of the bytes that a connection brings. Standard C++ only; time is passed in,
// as milliseconds of any clock that never goes back.
//
// TCP cuts a text where it likes. An RTF document (with or without the protocol marker and its kind
// character before it) is held back until its braces are balanced; everything else is ready at
// once. What has come whole does not wait for what comes behind it. A document that is too long to
// wait for comes out in pieces, each of them a document.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "richtext/document_scan.h"

namespace verlume::stream {

class ArrivalAssembler {
 public:
  // How long a document may wait for its next byte: a link may stall in the middle of it, and its
  // sender's machine gives up sooner than this.
  static constexpr std::int64_t kPatience = 20'000;
  // How many bytes of a document may wait.
  static constexpr std::size_t kLargest = 4 << 20;

  explicit ArrivalAssembler(std::int64_t patience = kPatience) : patience_(patience) {}

  // Adds what one read brought. Each byte is looked at once.
  void Add(std::string_view bytes, std::int64_t now);

  // What waits and is whole; of what is too large, a piece; all that waits, when it is overdue;
  // nothing otherwise. What stands before a document stands before its first piece alone.
  std::optional<std::string> Take(std::int64_t now);

  // All that waits, whole or not: nothing more will come.
  std::optional<std::string> TakeAll();

  // Bytes may have come meanwhile that could not be read yet: the next byte is waited for anew.
  void StartWaitingAnew(std::int64_t now) { lastByte_ = now; }

  // When Take gives what waits at the latest; nothing when nothing waits.
  std::optional<std::int64_t> Deadline() const;

 private:
  enum class At { Start, Marker, Kind, Opening, Document, AfterDocument, OtherText };

  std::string TakeWhole();
  std::string TakePiece();
  void Scan(std::string_view bytes);
  void Begin(char byte);
  void FeedMarker(char byte);
  void FeedOpening(char byte);

  std::int64_t patience_;
  std::string waiting_;
  std::size_t whole_ = 0;  // how much of it ends with a document, and with its line
  At at_ = At::Start;
  std::size_t matched_ = 0;  // bytes of the marker or of the opening seen so far
  richtext::DocumentScan document_;
  std::int64_t lastByte_ = 0;
};

}  // namespace verlume::stream
