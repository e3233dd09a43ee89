#include "platform_qt/router/http_answer.h"

#include <gtest/gtest.h>

namespace verlume::qt {
namespace {

// What is read when the bytes come in pieces of that many; then the connection is closed.
std::optional<HttpAnswer> Read(std::string_view bytes, std::size_t piece) {
  HttpReader reader;
  while (!bytes.empty() && reader.Add(bytes.substr(0, piece))) {
    bytes.remove_prefix(std::min(piece, bytes.size()));
  }
  reader.End();
  return reader.Answer();
}

std::string BodyOf(std::string_view bytes) {
  const auto whole = Read(bytes, bytes.size());
  const auto byDrops = Read(bytes, 1);
  EXPECT_EQ(whole.has_value(), byDrops.has_value());
  if (!whole || !byDrops) return "no answer";
  EXPECT_EQ(whole->status, byDrops->status);
  EXPECT_EQ(whole->body, byDrops->body);
  return whole->body;
}

TEST(HttpAnswer, EndsWithItsLength) {
  EXPECT_EQ(BodyOf("HTTP/1.1 200 OK\r\ncontent-length:  3 \r\n\r\nabcdef"), "abc");
  EXPECT_EQ(BodyOf("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n"), "");
}

TEST(HttpAnswer, EndsWithTheConnection) {
  EXPECT_EQ(BodyOf("HTTP/1.0 200 OK\r\n\r\nabcdef"), "abcdef");
  EXPECT_EQ(BodyOf("HTTP/1.0 200 OK\r\nContent-Length: 100\r\n\r\nabcdef"), "abcdef");
}

TEST(HttpAnswer, EndsWithTheLastChunk) {
  EXPECT_EQ(BodyOf("HTTP/1.1 200 OK\r\nTransfer-Encoding: Chunked\r\n\r\n"
                   "3\r\nabc\r\n00A;x=y\r\n0123456789\r\n0\r\n\r\n"),
            "abc0123456789");
}

TEST(HttpAnswer, TellsItsStatus) {
  EXPECT_EQ(Read("HTTP/1.1 500 Internal Server Error\r\n\r\n", 1)->status, 500);
}

TEST(HttpAnswer, NonsenseIsNoAnswer) {
  for (const char* nonsense :
       {"", "HTTP/1.1 200 OK\r\n", "hello\r\n\r\n", "HTTP/2 200\r\n\r\n", "HTTP/1.1 2x0 OK\r\n\r\n",
        "HTTP/1.1 200 OK\r\nContent-Length: -1\r\n\r\nx",
        "HTTP/1.1 200 OK\r\nContent-Length: 99999999999999999999999\r\n\r\nx",
        "HTTP/1.1 200 OK\r\nContent-Length: 70000\r\n\r\nx",
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nxyz\r\n",
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nFFFFFFFFFFFFFFFF\r\nx",
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nabc"}) {
    EXPECT_EQ(BodyOf(nonsense), "no answer") << nonsense;
  }
}

TEST(HttpAnswer, OneThatIsTooLongIsNone) {
  const std::string head = "HTTP/1.1 200 OK\r\n\r\n";
  const std::string longest(HttpReader::kLongestAnswer - head.size(), 'x');
  EXPECT_TRUE(Read(head + longest, 1000));
  EXPECT_FALSE(Read(head + longest + 'x', 1000));
  HttpReader reader;
  int pieces = 0;
  while (reader.Add("HTTP/1.1 200 OK\r\nX: y")) ++pieces;
  EXPECT_LT(pieces, 4000) << "a head has an end, too";
}

TEST(HttpAnswer, FieldsAreFoundInAnyCase) {
  EXPECT_EQ(HeadField("HTTP/1.1 200 OK\r\nLOCATION:\t x \r\nST: y", "Location"), "x");
  EXPECT_EQ(HeadField("HTTP/1.1 200 OK\r\nLOCATION: x\r\nST:", "st"), "");
  EXPECT_EQ(HeadField("HTTP/1.1 200 OK\r\nX-Location: x", "Location"), std::nullopt);
}

}  // namespace
}  // namespace verlume::qt
