// Assembles arrivals from the bytes that a connection brings. Standard C++ only; the caller passes
// the time in.
//
// TCP splits a text anywhere. An RTF document (with or without the protocol marker and its kind
// character before it) is held back until its braces are balanced; everything else is ready at
// once. What is complete does not wait for what follows it. A document that is too long to be held
// back comes out in parts, each of them a document.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "richtext/document_scan.h"
#include "stream/time_point.h"

namespace verlume::stream {

class ArrivalAssembler {
 public:
  // How long an incomplete document waits for its next byte. A link may stall for a while, and the
  // sender's machine gives up sooner than this.
  static constexpr std::chrono::milliseconds kTimeout = std::chrono::seconds(20);
  // How many bytes of an incomplete document are held back.
  static constexpr std::size_t kLongestHeldBack = 4 << 20;

  explicit ArrivalAssembler(std::chrono::milliseconds timeout = kTimeout) : timeout_(timeout) {}

  // Adds what one read returned. Scans each byte once.
  void Add(std::string_view bytes, TimePoint now);

  // What is complete; otherwise a part of a document that is too long, or an incomplete one whose
  // timeout has passed; otherwise nothing. The marker comes with the first part only.
  std::optional<std::string> Take(TimePoint now);

  // Everything that is left, complete or not. For the end of the connection.
  std::optional<std::string> Flush();

  // Restarts the timeout. For a pause in reading: the next byte may have come, but was not read.
  void RestartTimeout(TimePoint now) { lastByte_ = now; }

  // When the timeout of what is held back passes; nothing when nothing is held back.
  std::optional<TimePoint> Deadline() const;

 private:
  enum class At { Start, Marker, Kind, Opening, Document, AfterDocument, OtherText };

  std::string TakeComplete();
  std::string TakePart();
  void Scan(std::string_view bytes);
  void ScanFirst(char byte);
  void ScanMarker(char byte);
  void ScanOpening(char byte);

  std::chrono::milliseconds timeout_;
  std::string buffer_;
  std::size_t complete_ = 0;  // length of what can be taken, up to the end of a document's line
  At at_ = At::Start;
  std::size_t matched_ = 0;  // bytes of the marker or of the opening seen so far
  richtext::DocumentScan document_;
  TimePoint lastByte_;
};

}  // namespace verlume::stream
