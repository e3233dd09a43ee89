// Callers and peers that come and go when it suits nobody: a whole program, its windows in memory,
// whose socket is that of a World (see socket_contract.h).
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

#include "platform/socket_contract.h"
#include "platform_fake/fake_platform.h"
#include "shell/program.h"

namespace verlume {

template <class World>
class CallersContract : public testing::Test {
 protected:
  CallersContract() {
    fake.files.MakeFolder(u"/macros");
    fake.files.MakeFolder(u"/logs");
    fake.files.ReplaceText(u"/verlume/Verlume.ini",
                           u"[General]\r\nDateStamp=False\r\nTimeStamp=False\r\n"
                           u"Macrosfolder=/macros/\r\nNickname=Bob\r\n"
                           u"[Logging]\r\nLogfolder=/logs/\r\nLogdialogue=True\r\n");
    program.Start();
  }

  void Enter(const std::u16string& line) {
    fake.window.rtbCommands.SetText(u"");  // a command that was refused is still there
    fake.window.rtbCommands.Type(line + u"\r");
  }
  void EnterAndAgree(const std::u16string& line) {
    fake.dialogs.answers.push_back(Answer::Yes);
    Enter(line);
    EXPECT_TRUE(fake.dialogs.answers.empty());
  }
  std::u16string CallTo(std::int32_t itsPort) const {
    return u"/CALL " + world.Host() + u" " + DecimalText(itsPort);
  }

  // The program waits on a free port.
  void Listen() {
    Enter(u"/WAIT");
    port = program.State().LocalPort;
  }
  void Call(SocketUser& user) {
    user.socket.SetRemoteHost(world.Host());
    user.socket.SetRemotePort(port);
    user.socket.Connect();
  }
  // What the user does in the next box, before it is answered.
  void WhileOpen(std::function<void()> body) {
    fake.dialogs.whileOpen = [body, done = false]() mutable {
      if (!std::exchange(done, true)) body();
    };
  }
  // The peer calls, and the user answers, after what is done while the question is open.
  void AnswerTheCall(
      Answer answer, std::function<void()> whileOpen = [] {}) {
    WhileOpen([this, whileOpen] {
      ASSERT_TRUE(world.Wait([&] { return peer.connects == 1; }));
      whileOpen();
    });
    fake.dialogs.answers.push_back(answer);
    Listen();
    Call(peer);
    ASSERT_TRUE(world.Wait([&] { return fake.dialogs.answers.empty(); }));
  }
  // The peer is accepted, and says nothing to that.
  void Accept() {
    ASSERT_NO_FATAL_FAILURE(AnswerTheCall(Answer::Yes));
    ASSERT_TRUE(world.Wait([&] { return peer.texts.size() == 1; }));
    EXPECT_EQ(State(), ConnectionState::Waiting);
  }
  void Connect() {
    ASSERT_NO_FATAL_FAILURE(Accept());
    peer.socket.SendData(program.State().ProtocolMarker + u"CAlice" + u'\0', TextKind::Signal);
    ASSERT_TRUE(WaitForState(ConnectionState::Connected));
  }

  ConnectionState State() const { return StateOf(program.State()); }
  bool WaitForState(ConnectionState state) {
    return world.Wait([&] { return State() == state; });
  }
  bool WaitForClose(const SocketUser& user) {
    return world.Wait([&] { return user.closes == 1; });
  }
  bool StatusEndsIn(std::u16string_view end) const {
    return fake.window.lblStatus.caption.ends_with(end);
  }
  // Nothing is left of any call, and the user can wait for one, reject it, and give up a wait.
  void ExpectUsable() {
    EXPECT_EQ(State(), ConnectionState::Idle);
    EXPECT_EQ(socket.State(), SocketState::Closed);
    EXPECT_EQ(fake.window.shpStatus.fill, 255);
    EXPECT_EQ(fake.window.lblLocalPort.caption, u"");
    EXPECT_EQ(fake.window.lblRemoteIP.caption, u"");
    EXPECT_TRUE(fake.dialogs.answers.empty());
    Listen();
    fake.dialogs.answers.push_back(Answer::No);
    const std::size_t closesBefore = other.closes;
    Call(other);
    EXPECT_TRUE(world.Wait([&] { return other.closes == closesBefore + 1; }));
    EXPECT_TRUE(StatusEndsIn(u"You rejected the incoming call."));
    Listen();
    Enter(u"/CANCEL");
    EXPECT_TRUE(StatusEndsIn(u"You stopped waiting for an incoming call."));
    EXPECT_EQ(State(), ConnectionState::Idle);
    EXPECT_TRUE(fake.dialogs.answers.empty());
  }

  World world;
  fake::FakeNetwork unused;
  fake::FakePlatform fake{unused};
  Socket& socket = world.New();
  Platform platform = {fake.window.frmMain,
                       fake.about.frmAbout,
                       fake.macros.frmMacros,
                       socket,
                       fake.dialogs,
                       fake.commonDialog,
                       fake.files,
                       fake.clock,
                       fake.locale,
                       fake.application,
                       fake.help,
                       fake.tools};
  Program program{platform};
  SocketUser peer{world.New()};
  SocketUser other{world.New()};
  std::int32_t port = 0;
};

TYPED_TEST_SUITE_P(CallersContract);

TYPED_TEST_P(CallersContract, OneThatSaysNothingCanBeCancelled) {
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->Enter(u"/CANCEL");
  EXPECT_TRUE(this->StatusEndsIn(u"You stopped waiting for an incoming call."));
  EXPECT_TRUE(this->WaitForClose(this->peer));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, OneThatSaysNothingGivesWayToAnotherWait) {
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->EnterAndAgree(u"/WAIT");
  EXPECT_EQ(this->State(), ConnectionState::Waiting);
  EXPECT_EQ(this->socket.State(), SocketState::Listening);
  EXPECT_TRUE(this->WaitForClose(this->peer));
  EXPECT_EQ(this->State(), ConnectionState::Waiting) << "of the new wait nothing has ended";
  this->Enter(u"/CANCEL");
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, OneThatSaysNothingGivesWayToACall) {
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->other.socket.SetLocalPort(0);
  this->other.socket.Listen();
  this->EnterAndAgree(this->CallTo(this->other.socket.LocalPort()));
  EXPECT_EQ(this->State(), ConnectionState::Calling);
  EXPECT_TRUE(this->world.Wait([&] { return this->other.requests.size() == 1; }));
  EXPECT_TRUE(this->WaitForClose(this->peer));
  EXPECT_EQ(this->State(), ConnectionState::Calling);
  this->Enter(u"/CANCEL");
  this->other.socket.Close();
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, BytesBeforeTheHandshakeMakeNoConversation) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(
      Answer::Yes, [this] { this->peer.socket.SendData(u"early", TextKind::Line); }));
  ASSERT_TRUE(this->world.Wait([&] { return this->fake.window.rtbData.Text() == u"<>early"; }));
  this->peer.socket.SendData(std::u16string(100, u'\0'), TextKind::Line);
  ASSERT_TRUE(this->world.Wait([&] { return this->fake.window.lblBytesReceived.tag == u"105"; }));
  EXPECT_EQ(this->State(), ConnectionState::Waiting);
  EXPECT_FALSE(this->program.State().LogOpen);
  EXPECT_EQ(this->fake.dialogs.messages.size(), 1u);
  this->Enter(u"/CANCEL");
  EXPECT_TRUE(this->WaitForClose(this->peer));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, ASecondOneIsNeitherAskedAboutNorConnected) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::Yes, [this] {
    this->Call(this->other);
    ASSERT_TRUE(this->world.Wait([&] { return this->other.connects == 1; }));
  }));
  EXPECT_TRUE(this->world.Wait([&] { return this->peer.texts.size() == 1; }));
  EXPECT_TRUE(this->WaitForClose(this->other));
  EXPECT_EQ(this->fake.dialogs.messages.size(), 1u);
  EXPECT_TRUE(this->other.texts.empty());
  this->peer.socket.Close();
  EXPECT_TRUE(this->WaitForState(ConnectionState::Idle));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, ASecondOneIsRejectedWithTheFirst) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::No, [this] {
    this->Call(this->other);
    ASSERT_TRUE(this->world.Wait([&] { return this->other.connects == 1; }));
  }));
  EXPECT_TRUE(this->WaitForClose(this->peer));
  EXPECT_TRUE(this->WaitForClose(this->other));
  EXPECT_EQ(this->fake.dialogs.messages.size(), 1u);
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, OneDuringAConversationIsRefused) {
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  this->Call(this->other);
  EXPECT_TRUE(this->WaitForClose(this->other));
  EXPECT_EQ(this->other.connects, 0u);
  this->peer.socket.SendData(u"still here", TextKind::Line);
  EXPECT_TRUE(
      this->world.Wait([&] { return this->fake.window.rtbData.Text() == u"<Alice>still here"; }));
  EXPECT_EQ(this->fake.dialogs.messages.size(), 1u);
}

TYPED_TEST_P(CallersContract, OneThatLeftIsAcceptedInVain) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::Yes, [this] { this->peer.socket.Close(); }));
  EXPECT_TRUE(this->WaitForState(ConnectionState::Idle));
  EXPECT_TRUE(this->StatusEndsIn(u"A connection could NOT be established."));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, OneThatLeftIsRejectedAsWell) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::No, [this] { this->peer.socket.Close(); }));
  EXPECT_TRUE(this->StatusEndsIn(u"You rejected the incoming call."));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, OneThatLeavesInsteadOfConfirmingMakesNoConversation) {
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->peer.socket.Close();
  EXPECT_TRUE(this->WaitForState(ConnectionState::Idle));
  EXPECT_TRUE(this->StatusEndsIn(u"A connection could NOT be established."));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, AnAnswerToAPeerThatIsGoneEndsTheConversation) {
  this->peer.answer = [this](std::int64_t id) {
    this->peer.socket.Close();
    this->peer.socket.Accept(id);
    this->peer.socket.SendData(this->program.State().ProtocolMarker + u"SAlice" + u'\0',
                               TextKind::Signal);
    this->peer.socket.Close();
  };
  this->peer.socket.SetLocalPort(0);
  this->peer.socket.Listen();
  this->Enter(this->CallTo(this->peer.socket.LocalPort()));
  EXPECT_EQ(this->State(), ConnectionState::Calling);
  EXPECT_TRUE(this->WaitForState(ConnectionState::Idle));
  EXPECT_TRUE(this->StatusEndsIn(u"Disconnected."));
  EXPECT_TRUE(this->fake.files.ReadText(u"/logs/Alice.txt").ends_with(u"Disconnected.\r\n"));
  this->ExpectUsable();
}

// A box or a window stays for the user to leave.
TYPED_TEST_P(CallersContract, APeerThatClosesUnderABoxLeavesTheUserFree) {
  auto& dialogs = this->fake.dialogs;
  auto& commonDialog = this->fake.commonDialog;
  auto& window = this->fake.window;
  struct Box {
    const char* name;
    std::function<void()>& whileOpen;
    std::function<void()> open;
  };
  const Box boxes[] = {
      {"a message", dialogs.whileOpen, [&] { this->Enter(u"/CANCEL"); }},
      {"a refusal", dialogs.whileOpen, [&] { this->Enter(u"/CALL nobody 4000"); }},
      {"a question", dialogs.whileOpen,
       [&] {
         dialogs.answers = {Answer::No};
         this->Enter(u"/EXIT");
       }},
      {"an input box", dialogs.whileOpen,
       [&] {
         dialogs.typed = {u""};
         this->Enter(u"/NICK");
       }},
      {"a font dialog", commonDialog.whileOpen,
       [&] {
         commonDialog.fonts = {std::nullopt};
         window.mnuFormatFontSettings.Click();
       }},
      {"a colour dialog", commonDialog.whileOpen,
       [&] {
         commonDialog.colors = {std::nullopt};
         window.mnuFormatFontColor.Click();
       }},
      {"a file dialog", commonDialog.whileOpen,
       [&] {
         dialogs.answers = {Answer::Yes};
         commonDialog.files = {std::nullopt};
         window.mnuFileLogOpen.Click();
       }},
      {"a folder dialog", commonDialog.whileOpen,
       [&] {
         commonDialog.folders = {std::nullopt};
         window.mnuFileMacrosFolder.Click();
       }},
      {"the About box", this->fake.about.window.whileModal, [&] { window.mnuHelpAbout.Click(); }},
      {"the macro editor", this->fake.macros.window.whileModal,
       [&] { window.mnuToolsEditMacros.Click(); }},
  };
  for (const Box& box : boxes) {
    SCOPED_TRACE(box.name);
    this->peer.connects = 0;
    this->peer.texts.clear();
    ASSERT_NO_FATAL_FAILURE(this->Connect());
    bool isSeen = false;
    box.whileOpen = [&] {
      isSeen = true;
      this->peer.socket.Close();
      EXPECT_TRUE(this->WaitForState(ConnectionState::Idle)) << "while it is open";
      EXPECT_TRUE(this->StatusEndsIn(u"Disconnected."));
      this->fake.macros.cmdClose.onClick();
    };
    box.open();
    box.whileOpen = nullptr;
    EXPECT_TRUE(isSeen);
    this->ExpectUsable();
  }
}

TYPED_TEST_P(CallersContract, TheWindowMayBeClosedUnderTheQuestionAboutACall) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::Yes, [this] {
    this->fake.dialogs.answers.push_front(Answer::Yes);  // to the program's end
    this->fake.window.window.Close(UnloadMode::User);
  }));
  EXPECT_TRUE(this->fake.application.ended);
  EXPECT_EQ(this->socket.State(), SocketState::Closed);
  EXPECT_TRUE(this->WaitForClose(this->peer));
  EXPECT_TRUE(this->peer.texts.empty());
}

TYPED_TEST_P(CallersContract, AWindowThatStaysUnderTheQuestionAboutACallTakesIt) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::Yes, [this] {
    this->fake.dialogs.answers.push_front(Answer::No);
    this->fake.window.window.Close(UnloadMode::User);
  }));
  EXPECT_FALSE(this->fake.application.ended);
  EXPECT_TRUE(this->world.Wait([&] { return this->peer.texts.size() == 1; }));
}

TYPED_TEST_P(CallersContract, TheLanguageMayChangeUnderTheQuestionAboutACall) {
  ASSERT_NO_FATAL_FAILURE(
      this->AnswerTheCall(Answer::No, [this] { this->fake.window.mnuToolsLanguageGreek.Click(); }));
  EXPECT_TRUE(this->StatusEndsIn(u"Απορρίψατε την εισερχόμενη κλήση."));
  this->fake.window.mnuToolsLanguageEnglish.Click();
  EXPECT_TRUE(this->WaitForClose(this->peer));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, WaitingAndCallingMayAlternateAsFastAsTheyLike) {
  this->peer.answer = [this](std::int64_t) {
    this->peer.socket.Close();
    this->peer.socket.Listen();
  };
  this->peer.socket.SetLocalPort(0);
  this->peer.socket.Listen();
  const std::u16string call = this->CallTo(this->peer.socket.LocalPort());
  this->Listen();
  for (int round = 0; round < 1000; ++round) {
    this->EnterAndAgree(call);
    ASSERT_EQ(this->State(), ConnectionState::Calling);
    if (round % 50 == 0) {
      ASSERT_TRUE(this->WaitForState(ConnectionState::Idle)) << "the call is refused";
      this->Enter(u"/WAIT");
    } else {
      this->EnterAndAgree(u"/WAIT");
    }
    ASSERT_EQ(this->State(), ConnectionState::Waiting);
    ASSERT_EQ(this->socket.State(), SocketState::Listening);
  }
  this->Enter(u"/CANCEL");
  this->peer.socket.Close();
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, ACallToItselfIsRefused) {
  this->Listen();
  this->EnterAndAgree(this->CallTo(this->port));
  EXPECT_EQ(this->State(), ConnectionState::Calling);
  EXPECT_TRUE(this->WaitForState(ConnectionState::Idle));
  EXPECT_TRUE(this->StatusEndsIn(u"A connection could NOT be established."));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, CallsToWhatDoesNotExistComeToNothing) {
  for (const std::u16string& line :
       {std::u16string(u"/CALL nobody.invalid 4000"), this->CallTo(0)}) {
    this->Enter(line);
    EXPECT_EQ(this->State(), ConnectionState::Calling);
    EXPECT_TRUE(this->WaitForState(ConnectionState::Idle));
    EXPECT_TRUE(this->StatusEndsIn(u"A connection could NOT be established."));
  }
  this->fake.dialogs.answers = {Answer::No};
  this->Enter(this->CallTo(65536));
  EXPECT_EQ(this->fake.dialogs.messages.back().title, u"Verlume, 206.");
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, ACallByNameIsCancelledAtOnce) {
  this->Enter(u"/CALL nobody.invalid 4000");
  this->Enter(u"/CANCEL");
  EXPECT_TRUE(this->StatusEndsIn(u"You cancelled the call."));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, TheWindowMayBeClosedDuringACallByName) {
  this->Enter(u"/CALL nobody.invalid 4000");
  this->fake.dialogs.answers = {Answer::Yes};
  this->fake.window.window.Close(UnloadMode::User);
  EXPECT_TRUE(this->fake.application.ended);
  EXPECT_EQ(this->socket.State(), SocketState::Closed);
}

REGISTER_TYPED_TEST_SUITE_P(
    CallersContract, OneThatSaysNothingCanBeCancelled, OneThatSaysNothingGivesWayToAnotherWait,
    OneThatSaysNothingGivesWayToACall, BytesBeforeTheHandshakeMakeNoConversation,
    ASecondOneIsNeitherAskedAboutNorConnected, ASecondOneIsRejectedWithTheFirst,
    OneDuringAConversationIsRefused, OneThatLeftIsAcceptedInVain, OneThatLeftIsRejectedAsWell,
    OneThatLeavesInsteadOfConfirmingMakesNoConversation,
    AnAnswerToAPeerThatIsGoneEndsTheConversation, APeerThatClosesUnderABoxLeavesTheUserFree,
    TheWindowMayBeClosedUnderTheQuestionAboutACall,
    AWindowThatStaysUnderTheQuestionAboutACallTakesIt,
    TheLanguageMayChangeUnderTheQuestionAboutACall, WaitingAndCallingMayAlternateAsFastAsTheyLike,
    ACallToItselfIsRefused, CallsToWhatDoesNotExistComeToNothing, ACallByNameIsCancelledAtOnce,
    TheWindowMayBeClosedDuringACallByName);

}  // namespace verlume
