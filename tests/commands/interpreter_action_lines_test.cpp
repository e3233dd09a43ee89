#include "commands/interpreter.h"

#include <gmock/gmock.h>

#include "commands/interpreter_fixture.h"
#include "platform/char_code.h"

namespace verlume {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class ActionLines : public fake::InterpreterSide {};

TEST_F(ActionLines, TheWordBecomesTheNicknameAndTheLineHasNoTag) {
  Enter(u"/mE waves");
  EXPECT_EQ(Shown(), u" Bob waves");
  window.rtbData.SetText(u"");
  Enter(u"/εγώ γελάω");
  EXPECT_EQ(Shown(), u" Bob γελάω");
  EXPECT_FALSE(state.RemoteMessage);
}

TEST_F(ActionLines, TravelMarkedAsActionLines) {
  Connect();
  Enter(u"/me waves to $r");
  ASSERT_THAT(fake.socket.sent, SizeIs(1));
  const std::u16string opening = state.ProtocolMarker + u"M";
  ASSERT_TRUE(fake.socket.sent[0].starts_with(opening));
  EXPECT_EQ(richtext::ReadRtf(fake.socket.sent[0].substr(opening.size())).text,
            u"Bob waves to Eve");
  EXPECT_EQ(opening + state.OutgoingText, fake.socket.sent[0]);
}

TEST_F(ActionLines, TheNextLineHasItsTagAgain) {
  Enter(u"/me waves");
  window.rtbData.SetText(u"");
  Enter(u"hello");
  EXPECT_EQ(Shown(), u"<Bob>hello");
}

TEST_F(ActionLines, ALongerWordIsAChatLine) {
  Enter(u"/mexico");
  EXPECT_EQ(Shown(), u"<Bob>/mexico");
}

TEST_F(ActionLines, ALineTakenAwayMeanwhileIsNotSent) {
  Connect();
  for (const std::u16string_view left : {u"", u"something else"}) {
    pane.SetText(u"/me waves");
    int yields = 0;
    fake.application.onYield = [&] {
      if (++yields == 2) pane.SetText(left);
    };
    Press(char_code::kEnter);
    EXPECT_EQ(Shown(), u"");
    EXPECT_THAT(fake.socket.sent, IsEmpty());
    EXPECT_EQ(pane.Text(), left);
    EXPECT_FALSE(state.RemoteMessage);
  }
}

}  // namespace
}  // namespace verlume
