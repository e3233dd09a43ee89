// What crosses a private connection: frames of a length, a kind and a body (docs/protocol.md).
// Standard C++ only.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace verlume::stream {

// The longest body, in bytes.
inline constexpr std::size_t kLongestBody = 64 << 10;
// The longest nickname in a hello, in bytes.
inline constexpr std::size_t kLongestNickname = 128;

enum class FrameKind : std::uint8_t {
  Hello = 1,
  Text = 2,
  TextPart = 3,
  Acknowledgement = 4,
  Alive = 5,
  Goodbye = 6,
};

enum class Role : std::uint8_t { Caller = 1, Callee = 2 };

// Of what both sides have said in clear.
using Transcript = std::array<std::uint8_t, 32>;

struct Hello {
  Role role = Role::Caller;
  Transcript transcript{};
  std::string nickname;  // UTF-8
};

struct Frame {
  FrameKind kind;
  std::string body;
};

// The body is not longer than kLongestBody.
std::string WriteFrame(FrameKind kind, std::string_view body);
// Of a longer nickname only the beginning is said.
std::string WriteHello(const Hello& hello);
std::string WriteAcknowledgement(std::uint64_t texts);

// Nothing if the role is none. The body is that of a hello frame.
std::optional<Hello> ReadHello(std::string_view body);
// The body is that of an acknowledgement frame.
std::uint64_t ReadAcknowledgement(std::string_view body);

// Reads frames from the bytes that a connection brings, in pieces of any length. It keeps one body
// at most; frames of unknown kinds are skipped without being kept.
class FrameReader {
 public:
  // The next frame that is complete; takes from `bytes` what it has read. Nothing when all bytes
  // are read, or the peer has not kept to the protocol: a length that its kind does not have,
  // anything known before the hello, a second hello, anything behind the goodbye.
  std::optional<Frame> Read(std::string_view& bytes);

  bool IsBroken() const { return isBroken_; }

 private:
  // False while the header is incomplete.
  bool ReadHeader(std::string_view& bytes);
  void CheckHeader();

  static constexpr std::size_t kHeaderLength = 5;

  std::string header_;
  std::string body_;
  std::size_t missing_ = 0;  // of the body
  bool isKnown_ = false;
  bool isBroken_ = false;
  bool hasGreeted_ = false;
  bool hasEnded_ = false;
};

}  // namespace verlume::stream
