// Callers and peers that come and go while a box or a window is open.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "platform/callers_fixture.h"

namespace verlume {

template <class World>
class CallersBoxesContract : public CallersFixture<World> {};

TYPED_TEST_SUITE_P(CallersBoxesContract);

TYPED_TEST_P(CallersBoxesContract, APeerThatClosesUnderABoxLeavesTheUserFree) {
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

TYPED_TEST_P(CallersBoxesContract, TheWindowMayBeClosedUnderTheQuestionAboutACall) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::Yes, [this] {
    this->fake.dialogs.answers.push_front(Answer::Yes);  // to the program's end
    this->fake.window.window.Close(UnloadMode::User);
  }));
  EXPECT_TRUE(this->fake.application.ended);
  EXPECT_EQ(this->socket.State(), SocketState::Closed);
  EXPECT_TRUE(this->WaitForClose(this->peer));
  EXPECT_TRUE(this->peer.texts.empty());
}

TYPED_TEST_P(CallersBoxesContract, AWindowThatStaysUnderTheQuestionAboutACallTakesIt) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::Yes, [this] {
    this->fake.dialogs.answers.push_front(Answer::No);
    this->fake.window.window.Close(UnloadMode::User);
  }));
  EXPECT_FALSE(this->fake.application.ended);
  EXPECT_TRUE(this->world.Wait([&] { return this->peer.texts.size() == 1; }));
}

TYPED_TEST_P(CallersBoxesContract, TheLanguageMayChangeUnderTheQuestionAboutACall) {
  ASSERT_NO_FATAL_FAILURE(
      this->AnswerTheCall(Answer::No, [this] { this->fake.window.mnuToolsLanguageGreek.Click(); }));
  EXPECT_TRUE(this->StatusEndsIn(u"Απορρίψατε την εισερχόμενη κλήση."));
  this->fake.window.mnuToolsLanguageEnglish.Click();
  EXPECT_TRUE(this->WaitForClose(this->peer));
  this->ExpectUsable();
}

REGISTER_TYPED_TEST_SUITE_P(CallersBoxesContract, APeerThatClosesUnderABoxLeavesTheUserFree,
                            TheWindowMayBeClosedUnderTheQuestionAboutACall,
                            AWindowThatStaysUnderTheQuestionAboutACallTakesIt,
                            TheLanguageMayChangeUnderTheQuestionAboutACall);

}  // namespace verlume
