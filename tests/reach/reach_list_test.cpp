#include "reach/reach_list.h"

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

using Row = TableBox::Row;

class ReachListTest : public testing::Test {
 protected:
  ReachListTest() { ann.platform.addresses.list = {kLoopback, kPrivate}; }

  // Opens the window and looks at it.
  void Open(const std::function<void()>& look) {
    window.window.whileModal = look;
    ann.platform.window.mnuCommReach.Click();
    ASSERT_EQ(window.window.timesShownModal, ++timesOpened_);
  }
  void Allow() { ann.platform.window.mnuCommAskRouter.Click(); }
  void Wait() { ann.Enter(u"/WAIT 4000"); }

  fake::FakeNetwork network;
  ProgramCopy ann{network, u"Ann"};
  fake::FakeReachWindow& window = ann.platform.reach;
  fake::FakeRouter& router = ann.platform.router;

 private:
  int timesOpened_ = 0;
};

TEST_F(ReachListTest, WhoDoesNotWaitIsToldToWait) {
  Open([this] {
    EXPECT_THAT(window.lstReachAddresses.rows,
                ElementsAre(Row{u"192.168.1.5", u"computers on this network"},
                            Row{u"127.0.0.1", u"this computer only"}));
    EXPECT_EQ(window.lblReachRouter.caption, u"Verlume does not ask the router.");
    EXPECT_EQ(window.lblReachAdvice.caption, u"Wait for a call first: Communication > Wait.");
    EXPECT_EQ(window.txtReachAddress.text, u"");
    EXPECT_FALSE(window.cmdReachCopyAddress.enabled);
    EXPECT_FALSE(window.cmdReachCopyInvitation.enabled);
  });
  EXPECT_TRUE(ann.platform.window.rtbCommands.HasFocus());
  EXPECT_EQ(router.timesAskedForAddress, 0) << "it may not be asked";
}

TEST_F(ReachListTest, WhileWaitingTheAddressAndTheInvitationCanBeCopied) {
  Allow();
  Wait();
  router.Say(RouterLanguage::Upnp, Mapped(kOuter, 4001));
  Open([this] {
    EXPECT_EQ(window.txtReachAddress.text, u"81.2.69.160 4001");
    window.cmdReachCopyAddress.Click();
    EXPECT_EQ(ann.platform.clipboard.text, u"81.2.69.160 4001");
    window.cmdReachCopyInvitation.Click();
    EXPECT_TRUE(ann.platform.clipboard.text.starts_with(u"verlume://81.2.69.160:4001/?key="));
    EXPECT_EQ(window.lblReachAdvice.caption,
              u"Give the other side the address below, or an invitation.");
    window.cmdReachClose.Click();
    EXPECT_TRUE(window.window.unloaded);
  });
}

TEST_F(ReachListTest, WithoutPrivateConversationsThereIsNoInvitation) {
  Wait();
  ann.platform.window.mnuPrivateNever.Click();
  Open([this] {
    EXPECT_TRUE(window.cmdReachCopyAddress.enabled);
    EXPECT_FALSE(window.cmdReachCopyInvitation.enabled);
  });
}

TEST_F(ReachListTest, WhatIsSaidMeanwhileIsShown) {
  Allow();
  Wait();
  Open([this] {
    EXPECT_EQ(window.lblReachRouter.caption, u"It is being asked…");
    window.lstReachAddresses.Choose(1);
    router.Say(RouterLanguage::NatPmp, In(RouterState::Refused, u"2"));
    EXPECT_EQ(window.lblReachRouter.caption, u"It is being asked…");
    router.Say(RouterLanguage::Upnp, In(RouterState::Silent));
    EXPECT_EQ(window.lblReachRouter.caption, u"It refuses to pass calls on. Its own words: “2”");
    EXPECT_EQ(window.lstReachAddresses.selected, 1) << "the rows are the same";
    ann.platform.addresses.Become({kLoopback, kGlobal});
    EXPECT_EQ(window.lstReachAddresses.rows.front().front(), kGlobal.text);
    EXPECT_EQ(window.txtReachAddress.text, u"2a02:587::1 4000");
  });
}

TEST_F(ReachListTest, AWaitThatEndsMeanwhileIsShownWithinASecond) {
  Wait();
  Open([this] {
    ann.platform.window.mnuCommCancel.Click();
    ann.platform.window.tmrTimer.onTimer();
    EXPECT_EQ(window.lblReachAdvice.caption, u"Wait for a call first: Communication > Wait.");
    EXPECT_FALSE(window.cmdReachCopyAddress.enabled);
  });
}

TEST_F(ReachListTest, NothingIsCopiedThatIsNotShown) {
  Wait();
  Open([] {});
  window.lblReachAdvice.caption = u"closed";
  ann.platform.window.tmrTimer.onTimer();
  router.Say(RouterLanguage::Upnp, In(RouterState::Silent));
  EXPECT_EQ(window.lblReachAdvice.caption, u"closed");
}

TEST_F(ReachListTest, OnceAllowedTheRouterIsAskedForItsAddress) {
  Allow();
  Open([this] {
    EXPECT_EQ(router.timesAskedForAddress, 1);
    EXPECT_EQ(window.lblReachRouter.caption, u"It is being asked…");
    RouterReport report = In(RouterState::NotAsked);
    report.outerAddress = u"100.64.0.7";
    router.Say(RouterLanguage::Upnp, report);
    EXPECT_EQ(window.lblReachRouter.caption,
              u"It is asked to pass calls on when you wait for a call. It says that its outer "
              u"address is 100.64.0.7. That is on a network of your provider's, behind the "
              u"provider's own router.");
    window.cmdReachAgain.Click();
    EXPECT_EQ(router.timesAskedForAddress, 2);
  });
}

TEST_F(ReachListTest, LookAgainAsksForThePortAnewAndForTheFirewalls) {
  Allow();
  Wait();
  router.Say(RouterLanguage::Upnp, Mapped(kOuter, 4000));
  Open([this] {
    EXPECT_THAT(router.asked, ElementsAre(4000));
    ann.platform.addresses.firewalls = {{u"ufw", true}};
    window.cmdReachAgain.Click();
    EXPECT_THAT(router.asked, ElementsAre(4000, 4000));
    EXPECT_EQ(window.lblReachFirewall.caption,
              u"ufw is on. It keeps calls out, unless the port is open in it.");
    router.Say(RouterLanguage::Upnp, Mapped(kOuter, 4000));
    EXPECT_EQ(window.lblReachAdvice.caption,
              u"Open TCP port 4000 in the firewall ufw. In a terminal: sudo ufw allow 4000/tcp");
  });
}

TEST_F(ReachListTest, InGreek) {
  ann.platform.window.mnuToolsLanguageGreek.Click();
  Wait();
  Open([this] {
    EXPECT_THAT(window.lstReachAddresses.rows.front(),
                ElementsAre(u"192.168.1.5", u"οι υπολογιστές αυτού του δικτύου"));
    EXPECT_EQ(window.lblReachRouter.caption, u"Το Verlume δεν ρωτά τον δρομολογητή.");
    EXPECT_TRUE(window.lblReachAdvice.caption.starts_with(u"Επιτρέψτε στο Verlume"));
  });
}

}  // namespace
}  // namespace verlume
