// A whole program with windows in memory and a socket of a World (see socket_contract.h), and two
// more sockets that call it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

#include "platform/socket_contract.h"
#include "platform_fake/fake_platform.h"
#include "shell/program/program.h"

namespace verlume {

template <class World>
class CallersFixture : public testing::Test {
 protected:
  CallersFixture() {
    fake.files.MakeFolder(u"/macros");
    fake.files.MakeFolder(u"/logs");
    fake.files.ReplaceText(u"/verlume/Verlume.ini",
                           u"[General]\r\nDateStamp=False\r\nTimeStamp=False\r\n"
                           u"Macrosfolder=/macros/\r\nNickname=Bob\r\n"
                           u"[Logging]\r\nLogfolder=/logs/\r\nLogdialogue=True\r\n");
    program.Start();
  }

  void Enter(const std::u16string& line) {
    fake.window.rtbCommands.SetText(u"");  // a refused command is still there
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

  // The program waits for a call on a free port.
  void Listen() {
    Enter(u"/WAIT");
    port = program.State().LocalPort;
  }
  void Call(SocketUser& user) {
    user.socket.SetRemoteHost(world.Host());
    user.socket.SetRemotePort(port);
    user.socket.Connect();
  }
  // Runs `body` once while the next message box is open.
  void WhileOpen(std::function<void()> body) {
    fake.dialogs.whileOpen = [body, done = false]() mutable {
      if (!std::exchange(done, true)) body();
    };
  }
  // The peer calls, and the user answers; `whileOpen` runs before the answer.
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
  // The user accepts the peer, which does not confirm.
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

  // Seconds pass.
  void Tick(int seconds) {
    for (; seconds > 0; --seconds) fake.window.tmrTimer.onTimer();
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
  // The program is idle again, and the user can wait for a call, reject it, and cancel a wait.
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
                       fake.people.frmPeople,
                       fake.verify.frmVerify,
                       fake.reach.frmReach,
                       socket,
                       fake.socket.privacy,
                       fake.router,
                       fake.addresses,
                       fake.dialogs,
                       fake.commonDialog,
                       fake.files,
                       fake.clock,
                       fake.locale,
                       fake.application,
                       fake.help,
                       fake.tools,
                       fake.clipboard,
                       fake.links,
                       fake.attention};
  Program program{platform};
  SocketUser peer{world.New()};
  SocketUser other{world.New()};
  std::int32_t port = 0;
};

}  // namespace verlume
