#include "shell/start/hand_over.h"

#include <gtest/gtest.h>

#include <random>

namespace verlume {
namespace {

using Kind = StartTask::Kind;

const StartTask kTasks[] = {{Kind::Wait, u"", 0},
                            {Kind::Wait, u"", 4000},
                            {Kind::Call, u"υπολογιστής", 4000},
                            {Kind::Call, u"2001:db8::1", 32767},
                            {Kind::OpenInvitation, u"verlume://192.0.2.7:4000/?key=x", 0}};

TEST(HandOver, EveryTaskArrivesAsItIs) {
  for (const StartTask& task : kTasks) EXPECT_EQ(HandedOver(HandOverText(task)), task);
}

TEST(HandOver, NothingToDoIsNotHandedOver) {
  EXPECT_EQ(HandOverText({}), "");
  EXPECT_EQ(HandedOver(""), std::nullopt);
}

TEST(HandOver, OtherTextsAreNoTasks) {
  for (const std::string& text :
       {std::string("verlume 1\n"), std::string("verlume 1\n--help\n"),
        std::string("verlume 1\n--folder\n/tmp\n"),
        std::string("verlume 1\n--folder\n/tmp\n--wait\n4000\n"),
        std::string("verlume 1\n--wait\n4000"), std::string("verlume 1\n--wait\n+4000\n"),
        std::string("verlume 1\n--wait\n70000\n"), std::string("verlume 1\n\n--wait\n4000\n"),
        std::string("verlume 2\n--wait\n4000\n"), std::string("verlume 1\n--wait=4000\n"),
        std::string("verlume 1\n--call\nbob\x1b[m\n4000\n"),
        std::string("verlume 1\n--call\n\xff\n4000\n"),
        std::string("verlume 1\n--call\nbob 1\n4000\n"), std::string("verlume 1\nverlume://x\r\n"),
        std::string("verlume 1\n/CALL bob 4000\n"), std::string("verlume 1\n--wait\n4000\n\0", 24),
        "verlume 1\nverlume://" + std::string(5000000, 'x') + "\n",
        "verlume 1\n" + std::string(4000, '\n'), std::string("GET / HTTP/1.1\r\n\r\n")}) {
    EXPECT_EQ(HandedOver(text), std::nullopt) << text.substr(0, 60);
  }
}

TEST(HandOver, TheLongestInvitationFits) {
  const StartTask task = {Kind::OpenInvitation, u"verlume://" + std::u16string(1014, u'\u20AC'), 0};
  EXPECT_LE(HandOverText(task).size(), kLongestHandOver);
  EXPECT_EQ(HandedOver(HandOverText(task)), task);
}

TEST(HandOver, WhateverIsChangedItIsNoTaskOrOneThatCanBeHandedOver) {
  std::mt19937 random(1);
  int understood = 0;
  for (int round = 0; round < 20000; ++round) {
    std::string text = HandOverText(kTasks[random() % std::size(kTasks)]);
    for (unsigned changes = random() % 3 + 1; changes > 0; --changes) {
      text[random() % text.size()] = static_cast<char>(random());
    }
    const auto task = HandedOver(text);
    if (!task) continue;
    ++understood;
    ASSERT_EQ(HandOverText(*task), text);
  }
  EXPECT_GT(understood, 0);
}

}  // namespace
}  // namespace verlume
