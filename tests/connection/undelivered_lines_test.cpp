// Which lines of the dialogue pane are marked as not having gone out.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

using testing::ElementsAre;

constexpr Author kSent = Author::User;
constexpr Author kNotSent = Author::UserNotSent;
constexpr Author kNotDelivered = Author::UserNotDelivered;

class UndeliveredLinesTest : public testing::Test, protected fake::TwoSides {
 protected:
  void AliceSays(int lines) {
    for (int line = 0; line < lines; ++line) {
      alice.wire.SendChatLine(u"{\\rtf1 hello}");
      alice.dialogue.WriteDialogueLine(u"{\\rtf1 hello}", Sender::Local, CommandPane::Clear);
    }
    network.RunUntilIdle();
  }
  const std::vector<Author>& Authors() const { return alice.fake.window.rtbData.authors; }
};

TEST_F(UndeliveredLinesTest, WithoutAConnectionALineIsNotSent) {
  AliceSays(1);
  Connect();
  AliceSays(1);
  alice.actions.CloseConnection();
  alice.dialogue.WriteDialogueLine(u"{\\rtf1 alone}", Sender::LocalAction, CommandPane::Clear);
  EXPECT_THAT(Authors(), ElementsAre(kNotSent, kSent, kNotSent));
}

TEST_F(UndeliveredLinesTest, WhatABrokenConnectionLostIsMarked) {
  Connect();
  AliceSays(2);
  network.Cut();
  AliceSays(2);
  bob.actions.CloseConnection();
  network.RunUntilIdle();
  ASSERT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_THAT(Authors(), ElementsAre(kSent, kSent, kNotDelivered, kNotDelivered));
}

TEST_F(UndeliveredLinesTest, SoIsWhatWasLostAfterTheUserHasClosed) {
  Connect();
  AliceSays(1);
  network.Cut();
  AliceSays(1);
  alice.actions.CloseConnection();
  AliceSays(1);
  network.RunUntilIdle();
  EXPECT_THAT(Authors(), ElementsAre(kSent, kNotDelivered, kNotSent));
}

TEST_F(UndeliveredLinesTest, LinesOfTheNextConversationAreNotMeant) {
  Connect();
  network.Cut();
  AliceSays(2);
  const auto tell = std::exchange(alice.fake.socket.onUndelivered, nullptr);
  alice.actions.CloseConnection();
  network.Mend();
  network.RunUntilIdle();
  Connect();
  AliceSays(3);
  tell(1, 1);
  EXPECT_THAT(Authors(), ElementsAre(kSent, kNotDelivered, kSent, kSent, kSent));
}

}  // namespace
}  // namespace verlume
