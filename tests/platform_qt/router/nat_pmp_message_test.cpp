// What is asked by NAT-PMP, byte for byte, and what answers mean.
#include "platform_qt/router/nat_pmp_message.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace verlume::qt {
namespace {

using namespace std::chrono_literals;
constexpr auto kAddress = NatPmpOperation::OuterAddress;
constexpr auto kTcpPort = NatPmpOperation::MapTcpPort;

std::string Bytes(std::initializer_list<int> bytes) {
  std::string text;
  for (const int byte : bytes) text += static_cast<char>(byte);
  return text;
}

const std::string kAddressAnswer = Bytes({0, 128, 0, 0, 0, 0, 0, 1, 203, 0, 113, 7});
// Port 4000, port 4001 outside, 1,200 seconds.
const std::string kPortAnswer =
    Bytes({0, 130, 0, 0, 0, 0, 0, 1, 0x0F, 0xA0, 0x0F, 0xA1, 0, 0, 0x04, 0xB0});

std::string With(std::string answer, std::size_t place, int byte) {
  answer[place] = static_cast<char>(byte);
  return answer;
}

TEST(NatPmpMessage, QuestionsHaveTwoAndTwelveBytes) {
  EXPECT_EQ(NatPmpAddressQuestion(), Bytes({0, 0}));
  EXPECT_EQ(NatPmpPortQuestion(4000, 4001, 1200s),
            Bytes({0, 2, 0, 0, 0x0F, 0xA0, 0x0F, 0xA1, 0, 0, 0x04, 0xB0}));
  EXPECT_EQ(NatPmpPortQuestion(0xFFFE, 0, 0s), Bytes({0, 2, 0, 0, 0xFF, 0xFE, 0, 0, 0, 0, 0, 0}));
}

TEST(NatPmpMessage, AnAnswerSaysTheOuterAddress) {
  const auto answer = ReadNatPmpAnswer(kAddressAnswer, kAddress);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->outcome, NatPmpOutcome::Done);
  EXPECT_EQ(Ipv4Text(answer->outerAddress), "203.0.113.7");
}

TEST(NatPmpMessage, AnAnswerSaysThePortAndHowLong) {
  const auto answer = ReadNatPmpAnswer(kPortAnswer, kTcpPort);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->outcome, NatPmpOutcome::Done);
  EXPECT_EQ(answer->port, 4000);
  EXPECT_EQ(answer->outerPort, 4001);
  EXPECT_EQ(answer->lifetime, 1200s);
}

TEST(NatPmpMessage, NumbersUseAllTheirBytes) {
  const std::string most = kPortAnswer.substr(0, 8) + std::string(8, '\xFF');
  const auto answer = ReadNatPmpAnswer(most, kTcpPort);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->port, 0xFFFF);
  EXPECT_EQ(answer->outerPort, 0xFFFF);
  EXPECT_EQ(answer->lifetime, std::chrono::seconds(0xFFFFFFFF));
}

struct Reading {
  const char* name;
  std::string bytes;
  NatPmpOperation wanted;
  std::optional<NatPmpOutcome> outcome;  // nothing: it answers another question
  std::uint16_t resultCode = 0;
};

TEST(NatPmpMessage, WhatAnswersMean) {
  using enum NatPmpOutcome;
  for (const Reading& each : {
           Reading{"nothing", "", kAddress, Nonsense},
           Reading{"one byte", kAddressAnswer.substr(0, 1), kAddress, Nonsense},
           Reading{"seven bytes", kAddressAnswer.substr(0, 7), kAddress, Nonsense},
           Reading{"no address", kAddressAnswer.substr(0, 11), kAddress, Nonsense},
           Reading{"no lifetime", kPortAnswer.substr(0, 15), kTcpPort, Nonsense},
           Reading{"more than enough", kAddressAnswer + "more", kAddress, Done},
           Reading{"a question", With(kAddressAnswer, 1, 0), kAddress, Nonsense},
           Reading{"a late address", kAddressAnswer, kTcpPort, std::nullopt},
           Reading{"a late port", kPortAnswer, kAddress, std::nullopt},
           Reading{"a port of UDP", With(kPortAnswer, 1, 129), kTcpPort, std::nullopt},
           Reading{"a refusal", With(kPortAnswer, 3, 2), kTcpPort, Refused, 2},
           Reading{"a large reason", With(kPortAnswer, 2, 1), kTcpPort, Refused, 256},
           Reading{"a short refusal", Bytes({0, 130, 0, 4, 0, 0, 0, 0}), kTcpPort, Refused, 4},
           Reading{"a refusal that is cut", Bytes({0, 130, 0, 4, 0, 0, 0}), kTcpPort, Nonsense},
           Reading{"another version", Bytes({2, 128, 0, 1, 0, 0, 0, 0}), kTcpPort, Refused, 1},
           Reading{"another version alone", With(kPortAnswer, 0, 2), kTcpPort, Refused, 0},
       }) {
    const auto answer = ReadNatPmpAnswer(each.bytes, each.wanted);
    ASSERT_EQ(answer.has_value(), each.outcome.has_value()) << each.name;
    if (!answer) continue;
    EXPECT_EQ(answer->outcome, *each.outcome) << each.name;
    if (answer->outcome == Refused) {
      EXPECT_EQ(answer->resultCode, each.resultCode) << each.name;
    }
  }
}

}  // namespace
}  // namespace verlume::qt
