#include "stream/frames.h"

#include <algorithm>
#include <utility>

#include "stream/utf8_text.h"

namespace verlume::stream {
namespace {

constexpr std::size_t kHelloStart = 1 + std::tuple_size_v<Transcript>;
constexpr std::size_t kNumberLength = 8;

std::string BigEndian(std::uint64_t number, std::size_t length) {
  std::string bytes(length, '\0');
  for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte, number >>= 8)
    *byte = static_cast<char>(number & 0xFF);
  return bytes;
}

std::uint64_t FromBigEndian(std::string_view bytes) {
  std::uint64_t number = 0;
  for (const char byte : bytes) number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

struct Lengths {
  std::size_t least;
  std::size_t greatest;
};

// Of the body of a known kind; nothing for an unknown one.
std::optional<Lengths> LengthsOf(std::uint8_t kind) {
  switch (static_cast<FrameKind>(kind)) {
    case FrameKind::Hello:
      return Lengths{kHelloStart, kHelloStart + kLongestNickname};
    case FrameKind::Text:
    case FrameKind::TextPart:
      return Lengths{0, kLongestBody};
    case FrameKind::Acknowledgement:
      return Lengths{kNumberLength, kNumberLength};
    case FrameKind::Alive:
    case FrameKind::Goodbye:
      return Lengths{0, 0};
  }
  return std::nullopt;
}

}  // namespace

std::string WriteFrame(FrameKind kind, std::string_view body) {
  std::string bytes = BigEndian(body.size(), 4);
  bytes += static_cast<char>(kind);
  bytes += body;
  return bytes;
}

std::string WriteHello(const Hello& hello) {
  std::string body(1, static_cast<char>(hello.role));
  body.append(hello.transcript.begin(), hello.transcript.end());
  body += CutUtf8(hello.nickname, kLongestNickname);
  return WriteFrame(FrameKind::Hello, body);
}

std::string WriteAcknowledgement(std::uint64_t texts) {
  return WriteFrame(FrameKind::Acknowledgement, BigEndian(texts, kNumberLength));
}

std::optional<Hello> ReadHello(std::string_view body) {
  Hello hello;
  hello.role = static_cast<Role>(body[0]);
  if (hello.role != Role::Caller && hello.role != Role::Callee) return std::nullopt;
  std::copy_n(body.begin() + 1, hello.transcript.size(), hello.transcript.begin());
  hello.nickname = body.substr(kHelloStart);
  return hello;
}

std::uint64_t ReadAcknowledgement(std::string_view body) {
  return FromBigEndian(body);
}

std::optional<Frame> FrameReader::Read(std::string_view& bytes) {
  while (!isBroken_) {
    if (header_.size() < kHeaderLength && !ReadHeader(bytes)) return std::nullopt;
    if (isBroken_) return std::nullopt;
    const std::string_view piece = bytes.substr(0, missing_);
    if (isKnown_) body_ += piece;
    missing_ -= piece.size();
    bytes.remove_prefix(piece.size());
    if (missing_ > 0) return std::nullopt;
    const auto kind = static_cast<FrameKind>(std::exchange(header_, {})[4]);
    if (isKnown_) return Frame{kind, std::exchange(body_, {})};
  }
  return std::nullopt;
}

bool FrameReader::ReadHeader(std::string_view& bytes) {
  if (hasEnded_ && !bytes.empty()) isBroken_ = true;
  const std::string_view piece = bytes.substr(0, kHeaderLength - header_.size());
  header_ += piece;
  bytes.remove_prefix(piece.size());
  if (header_.size() < kHeaderLength) return isBroken_;
  CheckHeader();
  return true;
}

void FrameReader::CheckHeader() {
  const std::uint64_t length = FromBigEndian(std::string_view(header_).substr(0, 4));
  const auto kind = static_cast<std::uint8_t>(header_[4]);
  const auto lengths = LengthsOf(kind);
  isKnown_ = lengths.has_value();
  if (length > kLongestBody) isBroken_ = true;
  if (isKnown_ && (length < lengths->least || length > lengths->greatest)) isBroken_ = true;
  const bool isHello = kind == static_cast<std::uint8_t>(FrameKind::Hello);
  if (isKnown_ && isHello == hasGreeted_) isBroken_ = true;
  hasGreeted_ = hasGreeted_ || isHello;
  hasEnded_ = kind == static_cast<std::uint8_t>(FrameKind::Goodbye);
  missing_ = static_cast<std::size_t>(length);
}

}  // namespace verlume::stream
