#include "reach/port_keeper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reach/reach_samples.h"
#include "support/program_copy.h"

namespace verlume {
namespace {

using namespace samples;
using fake::ProgramCopy;
using testing::ElementsAre;
using testing::IsEmpty;

class PortKeeperTest : public testing::Test {
 protected:
  void Allow() { ann.platform.window.mnuCommAskRouter.Click(); }
  void Wait() { ann.Enter(u"/WAIT 4000"); }
  void RouterPasses(std::int32_t outerPort) {
    router.Say(RouterLanguage::Upnp, Mapped(kOuter, outerPort));
  }
  void BobCalls(Answer answer = Answer::Yes) {
    ann.platform.dialogs.answers = {answer};
    bob.Enter(u"/CALL ann 4000");
    network.RunUntilIdle();
  }
  bool IsAsked() const { return bar.fraRouter.visible; }
  std::u16string ToolTip() const { return ann.platform.window.lblLocalIP.toolTip; }
  std::u16string Copied() const { return ann.platform.window.welcomeCard.cmdCardCopy.textToCopy; }
  std::u16string Invitation() {
    ann.platform.dialogs.answers = {Answer::Ok};
    ann.platform.window.mnuCommInvite.Click();
    return ann.platform.clipboard.text;
  }
  bool SettingsHave(std::u16string_view text) const {
    return ann.Settings().find(text) != std::u16string::npos;
  }

  fake::FakeNetwork network;
  ProgramCopy ann{network, u"Ann"};
  ProgramCopy bob{network, u"Bob"};
  fake::FakeRouter& router = ann.platform.router;
  fake::FakeRouterBar& bar = ann.platform.window.routerBar;
};

TEST_F(PortKeeperTest, TheFirstWaitAsksInABarAndNothingWaitsForTheAnswer) {
  ann.platform.attention.listenedTo = true;
  EXPECT_FALSE(IsAsked());
  Wait();
  EXPECT_TRUE(IsAsked());
  EXPECT_TRUE(ann.program.State().IsWaiting);
  EXPECT_TRUE(ann.platform.dialogs.messages.empty());
  EXPECT_THAT(router.asked, IsEmpty());
  EXPECT_TRUE(bar.lblRouter.caption.starts_with(u"May Verlume ask your router"));
  EXPECT_EQ(bar.fraRouter.accessibleName, bar.lblRouter.caption);
  EXPECT_THAT(ann.platform.attention.announced, ElementsAre(bar.lblRouter.caption));
}

TEST_F(PortKeeperTest, YesAsksTheRouterAtOnceAndTheUserNeverAgain) {
  Wait();
  bar.cmdRouterYes.Click();
  EXPECT_FALSE(IsAsked());
  EXPECT_THAT(router.asked, ElementsAre(4000));
  EXPECT_TRUE(ann.platform.window.mnuCommAskRouter.checked);
  EXPECT_TRUE(SettingsHave(u"AskRouter=1"));
  ann.Enter(u"/CANCEL");
  Wait();
  EXPECT_FALSE(IsAsked());
  EXPECT_THAT(router.asked, ElementsAre(4000, 4000));
}

TEST_F(PortKeeperTest, NoAsksNobody) {
  Wait();
  bar.cmdRouterNo.Click();
  EXPECT_FALSE(IsAsked());
  EXPECT_FALSE(ann.platform.window.mnuCommAskRouter.checked);
  EXPECT_TRUE(SettingsHave(u"AskRouter=2"));
  ann.Enter(u"/CANCEL");
  Wait();
  EXPECT_FALSE(IsAsked());
  EXPECT_THAT(router.asked, IsEmpty());
}

TEST_F(PortKeeperTest, CloseIsNotNow) {
  Wait();
  bar.fraRouter.hasFocus = true;
  bar.cmdRouterClose.Click();
  EXPECT_FALSE(IsAsked());
  EXPECT_FALSE(SettingsHave(u"AskRouter"));
  ann.Enter(u"/CANCEL");
  Wait();
  EXPECT_FALSE(IsAsked()) << "not before the next start";
  ProgramCopy again(network, ann.Settings(), ProgramCopy::SettingsFile{});
  again.Enter(u"/WAIT 4001");
  EXPECT_TRUE(again.platform.window.routerBar.fraRouter.visible);
}

TEST_F(PortKeeperTest, TheBarGoesWithTheWaitAndComesBackWithTheNext) {
  Wait();
  ann.Enter(u"/CANCEL");
  EXPECT_FALSE(IsAsked());
  Wait();
  EXPECT_TRUE(IsAsked());
  BobCalls();
  EXPECT_TRUE(ann.program.State().IsConnected);
  EXPECT_FALSE(IsAsked());
}

TEST_F(PortKeeperTest, TheBarSpeaksTheLanguageInForce) {
  Wait();
  ann.platform.window.mnuToolsLanguageGreek.Click();
  EXPECT_TRUE(bar.lblRouter.caption.starts_with(u"Να ζητά το Verlume από τον δρομολογητή"));
  EXPECT_TRUE(IsAsked());
}

TEST_F(PortKeeperTest, TheChoiceIsReadAtTheNextStart) {
  const auto copyWith = [this](std::u16string_view value) {
    const std::u16string settings =
        std::u16string(u"[General]\r\nMacrosfolder=/macros/\r\nAskRouter=").append(value);
    ProgramCopy copy(network, settings, ProgramCopy::SettingsFile{});
    EXPECT_TRUE(copy.platform.dialogs.messages.empty());
    return copy.program.State().AskRouter;
  };
  EXPECT_EQ(copyWith(u"1"), RouterChoice::Yes);
  EXPECT_EQ(copyWith(u"2"), RouterChoice::No);
  for (const char16_t* nonsense : {u"0", u"3", u"-1", u"11", u"yes", u"", u"99999999999999999999"})
    EXPECT_EQ(copyWith(nonsense), RouterChoice::NotYet);
}

TEST_F(PortKeeperTest, ThePortInUseIsAskedFor) {
  Allow();
  ann.Enter(u"/WAIT");
  EXPECT_THAT(router.asked, ElementsAre(ann.platform.socket.LocalPort()));
}

TEST_F(PortKeeperTest, ThePortIsKeptThroughTheConversationThatComesOfTheWait) {
  Allow();
  Wait();
  BobCalls();
  EXPECT_TRUE(ann.program.State().IsConnected);
  EXPECT_EQ(router.Port(), 4000);
  bob.Enter(u"/CLOSE");
  network.RunUntilIdle();
  EXPECT_FALSE(ann.program.State().IsConnected);
  EXPECT_EQ(router.Port(), 0);
  EXPECT_EQ(router.timesReleased, 1);
}

TEST_F(PortKeeperTest, ThePortIsGivenBackWhenTheWaitEnds) {
  Allow();
  Wait();
  ann.Enter(u"/CANCEL");
  EXPECT_EQ(router.Port(), 0);
  Wait();
  BobCalls(Answer::No);
  EXPECT_EQ(router.Port(), 0) << "a refused call ends the wait";
  Wait();
  ann.platform.window.window.Unload();
  EXPECT_EQ(router.Port(), 0) << "so does the end of the program";
  EXPECT_EQ(router.timesReleased, 3);
}

TEST_F(PortKeeperTest, AnotherWaitAsksForItsOwnPort) {
  Allow();
  Wait();
  ann.platform.dialogs.answers = {Answer::Yes};
  ann.Enter(u"/WAIT 4001");
  EXPECT_EQ(router.Port(), 4001);
}

TEST_F(PortKeeperTest, WaitAgainAsksAgain) {
  Allow();
  Wait();
  BobCalls();
  bob.Enter(u"/CLOSE");
  network.RunUntilIdle();
  ann.platform.window.againBar.cmdAgain.Click();
  EXPECT_EQ(router.Port(), 4000);
}

TEST_F(PortKeeperTest, WhoCallsAsksNoRouter) {
  bob.platform.window.mnuCommAskRouter.Click();
  Wait();
  BobCalls();
  EXPECT_TRUE(bob.program.State().IsConnected);
  EXPECT_THAT(bob.platform.router.asked, IsEmpty());
  EXPECT_FALSE(bob.platform.window.routerBar.fraRouter.visible);
}

TEST_F(PortKeeperTest, AWaitThatCouldNotBeginAsksNobody) {
  Allow();
  network.forbiddenPorts = {4000};
  ann.platform.dialogs.answers = {Answer::No};
  Wait();
  EXPECT_THAT(router.asked, IsEmpty());
}

TEST_F(PortKeeperTest, TheSwitchWorksAtOnce) {
  Wait();
  Allow();
  EXPECT_FALSE(IsAsked());
  EXPECT_EQ(router.Port(), 4000);
  RouterPasses(4001);
  EXPECT_EQ(Copied(), u"81.2.69.160:4001");
  ann.platform.window.mnuCommAskRouter.Click();
  EXPECT_EQ(router.Port(), 0);
  EXPECT_TRUE(SettingsHave(u"AskRouter=2"));
  EXPECT_FALSE(ann.platform.window.mnuCommAskRouter.checked);
  EXPECT_EQ(Copied(), u"192.0.2.1:4000");
  EXPECT_EQ(ToolTip(), u"Local address");
}

TEST_F(PortKeeperTest, WhileNobodyIsWaitedForTheSwitchAsksNothing) {
  Allow();
  EXPECT_THAT(router.asked, IsEmpty());
}

TEST_F(PortKeeperTest, WhatTheRouterPassesOnIsGivenToOthers) {
  Allow();
  Wait();
  EXPECT_EQ(Copied(), u"192.0.2.1:4000");
  RouterPasses(4001);
  EXPECT_EQ(Copied(), u"81.2.69.160:4001");
  EXPECT_TRUE(Invitation().starts_with(u"verlume://81.2.69.160:4001/?key="));
  EXPECT_EQ(ToolTip(), u"Local address. The router says: 81.2.69.160, port 4001");
  EXPECT_EQ(ann.platform.window.lblLocalIP.caption, u"192.0.2.1");
  EXPECT_EQ(ann.platform.window.lblLocalPort.caption, u"4000");
}

TEST_F(PortKeeperTest, TheToolTipSpeaksTheLanguageInForce) {
  Allow();
  Wait();
  RouterPasses(4000);
  ann.platform.window.mnuToolsLanguageGreek.Click();
  EXPECT_EQ(ToolTip(), u"Τοπική διεύθυνση. Ο δρομολογητής λέει: 81.2.69.160, θύρα 4000");
}

TEST_F(PortKeeperTest, ALieIsGivenToNobody) {
  Allow();
  Wait();
  for (const std::u16string& lie : {std::u16string(u"192.168.178.2"), std::u16string(u"100.64.0.7"),
                                    std::u16string(u"203.0.113.5"), HostileWords()}) {
    router.Say(RouterLanguage::NatPmp, Mapped(lie, 4000));
    EXPECT_EQ(Copied(), u"192.0.2.1:4000");
    EXPECT_TRUE(Invitation().starts_with(u"verlume://192.0.2.1:4000/"));
  }
  EXPECT_EQ(ToolTip(), u"Local address") << "nonsense is not shown there";
  router.Say(RouterLanguage::NatPmp, Mapped(u"192.168.178.2", 4000));
  EXPECT_EQ(ToolTip(),
            u"Local address. The router says: 192.168.178.2, port 4000, which the Internet cannot "
            u"reach");
}

TEST_F(PortKeeperTest, AnIPv6AddressGoesIntoTheInvitation) {
  ann.platform.addresses.list = {kLoopback, kTemporary, kGlobal};
  Wait();
  EXPECT_TRUE(Invitation().starts_with(u"verlume://[2a02:587::1]:4000/?key="));
  EXPECT_EQ(Copied(), u"[2a02:587::1]:4000");
}

TEST_F(PortKeeperTest, AfterAChangeOfNetworkTheWaitGoesOn) {
  Allow();
  Wait();
  RouterPasses(4001);
  ann.platform.socket.localIP = u"192.168.7.7";
  ann.platform.addresses.Become({kLoopback, {u"192.168.7.7", u"wlan0"}});
  EXPECT_TRUE(ann.program.State().IsWaiting);
  EXPECT_EQ(ann.program.State().LocalAddress, u"192.168.7.7");
  EXPECT_EQ(ann.platform.window.lblLocalIP.caption, u"192.168.7.7");
  EXPECT_THAT(router.asked, ElementsAre(4000, 4000)) << "anew";
  EXPECT_EQ(Copied(), u"192.168.7.7:4000") << "until the new router has answered";
  BobCalls();
  EXPECT_TRUE(ann.program.State().IsConnected);
}

TEST_F(PortKeeperTest, WithoutAnyNetworkItWaitsQuietly) {
  Allow();
  Wait();
  ann.platform.socket.localIP = u"127.0.0.1";
  ann.platform.addresses.Become({kLoopback, kLinkLocal});
  EXPECT_TRUE(ann.program.State().IsWaiting);
  EXPECT_EQ(ann.platform.window.lblLocalIP.caption, u"192.0.2.1");
  EXPECT_THAT(router.asked, ElementsAre(4000));
  EXPECT_TRUE(ann.platform.dialogs.messages.empty());
  ann.platform.socket.localIP = u"192.0.2.1";
  ann.platform.addresses.Become({kLoopback, kPrivate});
  EXPECT_THAT(router.asked, ElementsAre(4000, 4000));
}

TEST_F(PortKeeperTest, InAConversationThePortIsAskedForAnewAndThePanelStays) {
  Allow();
  Wait();
  BobCalls();
  ann.platform.socket.localIP = u"192.168.7.7";
  ann.platform.addresses.Become({kLoopback, kPrivate});
  EXPECT_THAT(router.asked, ElementsAre(4000, 4000));
  EXPECT_EQ(ann.platform.window.lblLocalIP.caption, u"192.0.2.1");
}

TEST_F(PortKeeperTest, WhileIdleAChangeOfNetworkIsLeftToRefresh) {
  ann.platform.socket.localIP = u"192.168.7.7";
  ann.platform.addresses.Become({kLoopback, kPrivate});
  EXPECT_EQ(ann.platform.window.lblLocalIP.caption, u"192.0.2.1");
  EXPECT_THAT(router.asked, IsEmpty());
}

TEST_F(PortKeeperTest, ALateReportIsGivenToNobody) {
  Allow();
  Wait();
  ann.Enter(u"/CANCEL");
  router.Say(RouterLanguage::Upnp, Mapped(kOuter, 4001));
  EXPECT_EQ(ann.program.State().Place, PlaceToCall());
  EXPECT_EQ(Copied(), u"192.0.2.1");
}

}  // namespace
}  // namespace verlume
