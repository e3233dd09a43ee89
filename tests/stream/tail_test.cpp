#include "stream/tail.h"

#include <gtest/gtest.h>

#include "platform/protocol_marker.h"

namespace verlume::stream {
namespace {

using Tail = FirstWords::Tail;

std::string Start(std::string_view tail) {
  return WriteGreeting(Greeting::Start, "Bob", false) + std::string(tail);
}

Tail TailOf(std::string_view tail) {
  return ReadFirstWords(Start(tail), Greeting::Start).tail;
}

std::string WithNul(std::string_view text) {
  return std::string(text) + '\0';
}

TEST(TailTest, AGreetingWithATailIsWrittenAndRead) {
  const std::string bytes = WriteGreeting(Greeting::Start, "Bob", true);
  EXPECT_EQ(bytes, std::string(kMarkerBytes) + WithNul("SBob") + WithNul("+secure/1"));
  const FirstWords first = ReadFirstWords(bytes, Greeting::Start);
  EXPECT_EQ(first.tail, Tail::Private);
  EXPECT_EQ(first.nickname, "Bob");
  EXPECT_EQ(first.length, bytes.size());
}

TEST(TailTest, WhatStandsBehindTheTailIsNoPartOfIt) {
  const std::string bytes = WriteGreeting(Greeting::Confirm, "", true);
  const std::string glued = bytes + "hello";
  const FirstWords first = ReadFirstWords(glued, Greeting::Confirm);
  EXPECT_EQ(first.tail, Tail::Private);
  EXPECT_EQ(first.length, bytes.size());
}

TEST(TailTest, OfACutGreetingOnlyTheMarkerAndTheTailAreWaitedFor) {
  const std::string bytes = WriteGreeting(Greeting::Start, "Bob", true);
  const std::size_t kind = kMarkerLength;
  const std::size_t tail = bytes.find('+');
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    const bool isWaitedFor = size <= kind || size > tail;
    const FirstWords first = ReadFirstWords(bytes.substr(0, size), Greeting::Start);
    EXPECT_EQ(first.tail, isWaitedFor ? Tail::Incomplete : Tail::None) << size;
  }
}

TEST(TailTest, OtherWordsAreIgnored) {
  EXPECT_EQ(TailOf(WithNul("+secure/1")), Tail::Private);
  EXPECT_EQ(TailOf(WithNul("+a secure/1 b")), Tail::Private);
  EXPECT_EQ(TailOf(WithNul("+")), Tail::None);
  EXPECT_EQ(TailOf(WithNul("+secure/2")), Tail::None);
  EXPECT_EQ(TailOf(WithNul("+secure/11 xsecure/1")), Tail::None);
}

TEST(TailTest, AnythingElseIsNoTail) {
  EXPECT_EQ(TailOf(""), Tail::None);
  EXPECT_EQ(TailOf("hello"), Tail::None);
  EXPECT_EQ(TailOf(WithNul("secure/1")), Tail::None);
  EXPECT_EQ(TailOf(WithNul(" +secure/1")), Tail::None);
  EXPECT_EQ(TailOf(WithNul("+secure/1 ")), Tail::None);
  EXPECT_EQ(TailOf(WithNul("+ secure/1")), Tail::None);
  EXPECT_EQ(TailOf(WithNul("+a  secure/1")), Tail::None);
  EXPECT_EQ(TailOf("+\xE5"), Tail::None);
  EXPECT_EQ(TailOf("+a\r\n"), Tail::None);
}

TEST(TailTest, ATailIsNoLongerThanItsLimit) {
  const std::string padding(kLongestTail - 11, 'x');
  EXPECT_EQ(TailOf(WithNul("+secure/1 " + padding)), Tail::Private);
  EXPECT_EQ(TailOf("+secure/1 " + padding), Tail::Incomplete);
  EXPECT_EQ(TailOf("+secure/1 " + padding + "x"), Tail::None);
  EXPECT_EQ(TailOf(WithNul("+secure/1 " + padding + "x")), Tail::None);
}

TEST(TailTest, OnlyTheWantedGreetingHasATail) {
  const std::string bytes = WriteGreeting(Greeting::Start, "Bob", true);
  const FirstWords first = ReadFirstWords(bytes, Greeting::Confirm);
  EXPECT_EQ(first.tail, Tail::None);
  EXPECT_EQ(first.nickname, "");
  std::string otherMarker = bytes;
  otherMarker[5] ^= 1;
  EXPECT_EQ(ReadFirstWords(otherMarker, Greeting::Start).tail, Tail::None);
  EXPECT_EQ(ReadFirstWords("{\\rtf1 hello}", Greeting::Start).tail, Tail::None);
}

TEST(TailTest, TheNicknameOfAGreetingWithoutATailIsReadAsWell) {
  EXPECT_EQ(ReadFirstWords(Start(""), Greeting::Start).nickname, "Bob");
  EXPECT_EQ(ReadFirstWords(Start("hello"), Greeting::Start).nickname, "Bob");
}

}  // namespace
}  // namespace verlume::stream
