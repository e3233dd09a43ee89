#include "stream/frames.h"

#include <gtest/gtest.h>

#include <vector>

namespace verlume::stream {
namespace {

using namespace std::string_literals;

std::string HelloFrame() {
  return WriteHello({.role = Role::Callee, .transcript = {1, 2, 3}, .nickname = "Bob"});
}

// What a reader makes of bytes that come in pieces of this length.
struct Reading {
  std::vector<Frame> frames;
  bool isBroken;
};
Reading ReadAll(std::string_view bytes, std::size_t pieceLength = 1 << 20) {
  FrameReader reader;
  std::vector<Frame> frames;
  while (!bytes.empty() && !reader.IsBroken()) {
    std::string_view piece = bytes.substr(0, pieceLength);
    bytes.remove_prefix(piece.size());
    while (auto frame = reader.Read(piece)) frames.push_back(std::move(*frame));
    EXPECT_TRUE(piece.empty() || reader.IsBroken());
  }
  return {std::move(frames), reader.IsBroken()};
}
bool IsBrokenBy(std::string_view bytes) {
  return ReadAll(bytes).isBroken;
}
std::string Header(std::uint32_t length, char kind) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(length >> shift & 0xFF);
  return bytes + kind;
}

TEST(FramesTest, AFrameIsLengthKindAndBody) {
  EXPECT_EQ(WriteFrame(FrameKind::Text, "hello"), "\0\0\0\5\2hello"s);
  EXPECT_EQ(WriteAcknowledgement(0x102), "\0\0\0\10\4\0\0\0\0\0\0\1\2"s);
  EXPECT_EQ(HelloFrame().substr(0, 9), "\0\0\0\x24\1\2\1\2\3"s);
}

TEST(FramesTest, FramesAreReadInPiecesOfAnyLength) {
  const std::string bytes = HelloFrame() + WriteFrame(FrameKind::TextPart, "he") +
                            WriteFrame(FrameKind::Text, "llo") + WriteAcknowledgement(7) +
                            WriteFrame(FrameKind::Alive, "") + WriteFrame(FrameKind::Goodbye, "");
  for (std::size_t length = 1; length <= bytes.size(); ++length) {
    const Reading reading = ReadAll(bytes, length);
    ASSERT_EQ(reading.frames.size(), 6u) << length;
    EXPECT_FALSE(reading.isBroken);
    const auto hello = ReadHello(reading.frames[0].body);
    ASSERT_TRUE(hello);
    EXPECT_EQ(hello->role, Role::Callee);
    EXPECT_EQ(hello->transcript[2], 3);
    EXPECT_EQ(hello->nickname, "Bob");
    EXPECT_EQ(reading.frames[1].body, "he");
    EXPECT_EQ(reading.frames[2].kind, FrameKind::Text);
    EXPECT_EQ(ReadAcknowledgement(reading.frames[3].body), 7u);
    EXPECT_EQ(reading.frames[5].kind, FrameKind::Goodbye);
  }
}

TEST(FramesTest, UnknownKindsAreSkipped) {
  const std::string unknown = Header(kLongestBody, '\x63') + std::string(kLongestBody, 'x');
  const Reading reading =
      ReadAll(unknown + HelloFrame() + unknown + WriteFrame(FrameKind::Text, "a"), 1000);
  ASSERT_EQ(reading.frames.size(), 2u);
  EXPECT_EQ(reading.frames[1].body, "a");
  EXPECT_FALSE(reading.isBroken);
}

TEST(FramesTest, ALengthThatTheKindDoesNotHaveBreaksTheConnection) {
  EXPECT_TRUE(IsBrokenBy(Header(32, '\1')));
  EXPECT_FALSE(IsBrokenBy(Header(33, '\1')));
  EXPECT_FALSE(IsBrokenBy(Header(33 + 128, '\1')));
  EXPECT_TRUE(IsBrokenBy(Header(33 + 129, '\1')));
  for (const char kind : {'\2', '\3', '\x63'}) {
    EXPECT_FALSE(IsBrokenBy(HelloFrame() + Header(kLongestBody, kind)));
    EXPECT_TRUE(IsBrokenBy(HelloFrame() + Header(kLongestBody + 1, kind)));
    EXPECT_TRUE(IsBrokenBy(HelloFrame() + Header(0xFFFFFFFF, kind)));
  }
  EXPECT_TRUE(IsBrokenBy(HelloFrame() + Header(7, '\4')));
  EXPECT_TRUE(IsBrokenBy(HelloFrame() + Header(9, '\4')));
  EXPECT_TRUE(IsBrokenBy(HelloFrame() + Header(1, '\5')));
  EXPECT_TRUE(IsBrokenBy(HelloFrame() + Header(1, '\6')));
}

TEST(FramesTest, HelloIsTheFirstKnownFrameAndTheOnlyOne) {
  for (const FrameKind kind :
       {FrameKind::Text, FrameKind::TextPart, FrameKind::Alive, FrameKind::Goodbye}) {
    EXPECT_TRUE(IsBrokenBy(WriteFrame(kind, "")));
  }
  EXPECT_TRUE(IsBrokenBy(HelloFrame() + HelloFrame()));
  EXPECT_TRUE(IsBrokenBy(WriteAcknowledgement(0)));
}

TEST(FramesTest, NothingFollowsAGoodbye) {
  const std::string goodbye = HelloFrame() + WriteFrame(FrameKind::Goodbye, "");
  EXPECT_FALSE(IsBrokenBy(goodbye));
  EXPECT_TRUE(IsBrokenBy(goodbye + "\0"s));
  EXPECT_TRUE(IsBrokenBy(goodbye + Header(0, '\x63')));
}

TEST(FramesTest, AHelloHasARole) {
  std::string body(33, '\0');
  EXPECT_FALSE(ReadHello(body));
  body[0] = 1;
  EXPECT_TRUE(ReadHello(body));
  body[0] = 3;
  EXPECT_FALSE(ReadHello(body));
}

TEST(FramesTest, ALongNicknameIsCutBetweenCharacters) {
  std::string name = "a";
  while (name.size() < 200) name += "\xCE\xB1";
  const Reading reading =
      ReadAll(WriteHello({.role = Role::Caller, .transcript = {}, .nickname = name}));
  ASSERT_EQ(reading.frames.size(), 1u);
  EXPECT_EQ(ReadHello(reading.frames[0].body)->nickname, name.substr(0, 127));
}

}  // namespace
}  // namespace verlume::stream
