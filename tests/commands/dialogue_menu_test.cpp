#include "commands/dialogue_menu.h"

#include "macros/room_test.h"
#include "platform/char_code.h"

namespace verlume {
namespace {

using testing::ElementsAre;

class DialogueMenuTest : public RoomTest {
 protected:
  DialogueMenuTest() { pane.SetText(u"look at http://example.org/a (or not)\nand more"); }

  std::vector<std::u16string> Enabled(std::size_t position) {
    std::vector<std::u16string> captions;
    for (const PopupEntry& entry : menu.rtbData_ContextMenu(position)) {
      if (entry.enabled) captions.push_back(entry.caption);
    }
    return captions;
  }
  void Choose(std::u16string_view caption, std::size_t position = 0) {
    for (const PopupEntry& entry : menu.rtbData_ContextMenu(position)) {
      if (entry.caption == caption && entry.enabled) return entry.perform();
    }
    ADD_FAILURE() << "no such entry";
  }

  FindInDialogue find{state, fake.platform, errors};
  DialogueLinks links{state, fake.platform, errors};
  DialogueMenu menu{state, fake.platform, find, links};
  fake::FakeRichTextBox& pane = fake.window.rtbData;
};

TEST_F(DialogueMenuTest, WhatCanDoNothingIsGrey) {
  pane.SetText(u"");
  EXPECT_THAT(Enabled(0), ElementsAre());
  pane.SetText(u"one http://a.org");
  EXPECT_THAT(Enabled(0), ElementsAre(u"Select all", u"Save dialogue as"));
  EXPECT_THAT(Enabled(8), ElementsAre(u"Select all", u"Open link", u"Save dialogue as"));
  EXPECT_THAT(Enabled(15), ElementsAre(u"Select all", u"Open link", u"Save dialogue as"));
  pane.Select(0, 3);
  EXPECT_THAT(Enabled(0), ElementsAre(u"Copy", u"Copy as plain text", u"Select all", u"Find this",
                                      u"Save dialogue as"));
}

TEST_F(DialogueMenuTest, SpeaksTheLanguageInForce) {
  state.IsGreek = true;
  std::vector<std::u16string> captions;
  for (const PopupEntry& entry : menu.rtbData_ContextMenu(0)) captions.push_back(entry.caption);
  EXPECT_THAT(captions,
              ElementsAre(u"Αντιγραφή", u"Αντιγραφή ως απλό κείμενο", u"Επιλογή όλων",
                          u"Εύρεση της επιλογής", u"Άνοιγμα συνδέσμου", u"Αποθήκευση διαλόγου ως"));
}

TEST_F(DialogueMenuTest, Copies) {
  pane.Select(0, 4);
  Choose(u"Copy");
  EXPECT_EQ(pane.copied, u"look");
  EXPECT_EQ(pane.copiedAs, TextFileFormat::RichText);
  Choose(u"Copy as plain text");
  EXPECT_EQ(pane.copiedAs, TextFileFormat::PlainText);
  Choose(u"Select all");
  EXPECT_EQ(pane.SelLength(), pane.TextLength());
}

TEST_F(DialogueMenuTest, FindsWhatIsSelected) {
  pane.SetText(u"one two one");
  pane.Select(8, 3);
  Choose(u"Find this");
  EXPECT_TRUE(fake.window.fraFind.visible);
  EXPECT_EQ(fake.window.txtFind.text, u"one");
  EXPECT_EQ(fake.window.lblFindResult.caption, u"2 of 2");
  EXPECT_TRUE(fake.window.txtFind.HasFocus());
}

TEST_F(DialogueMenuTest, LooksForNothingThatCannotStandInTheBar) {
  pane.Select(30, 10);
  EXPECT_THAT(Enabled(0), testing::Not(testing::Contains(u"Find this"))) << "two lines";
  pane.SetText(std::u16string(300, u'x'));
  pane.Select(0, 300);
  EXPECT_THAT(Enabled(0), testing::Not(testing::Contains(u"Find this"))) << "too long";
}

TEST_F(DialogueMenuTest, Saves) {
  int saved = 0;
  fake.window.mnuFileLogSaveAs.onClick = [&] { ++saved; };
  Choose(u"Save dialogue as");
  EXPECT_EQ(saved, 1);
}

TEST_F(DialogueMenuTest, OpensTheLinkOfItsPlaceAfterAQuestion) {
  fake.dialogs.answers = {Answer::Yes};
  Choose(u"Open link", 10);
  EXPECT_THAT(fake.links.opened, ElementsAre(u"http://example.org/a"));
}

TEST_F(DialogueMenuTest, CtrlCInTheCommandPaneCopiesWhatIsSelectedInTheDialogue) {
  fake.window.rtbCommands.SetText(u"typed");
  int code = char_code::kCtrlC;
  menu.rtbCommands_KeyPress(code);
  EXPECT_EQ(code, char_code::kCtrlC) << "nothing is selected";
  pane.Select(0, 4);
  menu.rtbCommands_KeyPress(code);
  EXPECT_EQ(code, char_code::kSwallowed);
  EXPECT_EQ(pane.copied, u"look");
  fake.window.rtbCommands.Select(0, 2);
  code = char_code::kCtrlC;
  menu.rtbCommands_KeyPress(code);
  EXPECT_EQ(code, char_code::kCtrlC) << "its own selection goes first";
}

class DialogueLinksTest : public DialogueMenuTest {
 protected:
  std::u16string Question(std::u16string_view address) {
    fake.dialogs.answers = {Answer::No};
    links.rtbData_Link(address);
    return fake.dialogs.messages.back().text;
  }
};

TEST_F(DialogueLinksTest, NothingIsOpenedUnlessTheUserAgrees) {
  fake.links.host = {u"example.org", u"example.org"};
  EXPECT_EQ(Question(u"http://example.org/a"),
            u"Open this address in another program?\r\n\r\nhttp://example.org/a\r\n\r\n"
            u"It leads to: example.org");
  EXPECT_EQ(fake.dialogs.messages.back().defaultAnswer, Answer::No);
  EXPECT_THAT(fake.links.opened, ElementsAre());
  EXPECT_TRUE(fake.window.rtbCommands.HasFocus());
}

TEST_F(DialogueLinksTest, AsksInGreek) {
  state.IsGreek = true;
  fake.links.host = {u"example.org", u"example.org"};
  EXPECT_EQ(Question(u"http://example.org"),
            u"Να ανοιχτεί αυτή η διεύθυνση σε άλλο πρόγραμμα;\r\n\r\nhttp://example.org\r\n\r\n"
            u"Οδηγεί στο: example.org");
}

TEST_F(DialogueLinksTest, SaysWhatCannotBeOpened) {
  fake.links.opens = false;
  fake.dialogs.answers = {Answer::Yes, Answer::Ok};
  links.rtbData_Link(u"mailto:ann@example.org");
  EXPECT_EQ(fake.dialogs.messages.back().text, u"This address cannot be opened.");
}

}  // namespace
}  // namespace verlume
