#include "macros/macro_style.h"

#include "macros/macro_editor_fixture.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr Color kRed = 0x0000FF;
constexpr Color kBlue = 0xFF0000;

class MacroStyleTest : public MacroEditorTest {
 protected:
  // Opens the editor with a new macro.
  void Write(const std::function<void()>& act) {
    Open([this, act] {
      Add(u"new");
      act();
    });
  }
};

TEST_F(MacroStyleTest, BeginsAsTheCommandPanesStyle) {
  state.Font.Name = u"Georgia";
  state.Font.Bold = state.Font.Underline = state.Font.Strikethrough = true;
  state.Font.Color = kRed;
  state.Font.Size = 11;
  Open([this] {
    EXPECT_EQ(window.chkBold.value, 1);
    EXPECT_EQ(window.chkItalics.value, 0);
    EXPECT_EQ(window.chkUnderlined.value, 1);
    EXPECT_EQ(window.lblColour.backColor, kRed);
    EXPECT_EQ(text.timesFocused, 0) << "the window is not there yet";
    Add(u"new");
    const SelectionFormat format = text.SelFormat();
    EXPECT_EQ(format.fontName, u"Georgia");
    EXPECT_EQ(format.fontSize, 11);
    EXPECT_EQ(format.color, kRed);
    EXPECT_EQ(format.bold, true);
    EXPECT_EQ(format.italic, false);
    EXPECT_EQ(format.underline, true);
    EXPECT_EQ(format.strikethrough, true);
    text.Type(u"x");
    EXPECT_NE(text.Rtf().find(u"\\fcharset161"), text.Rtf().npos);
  });
}

TEST_F(MacroStyleTest, BeginsAfreshEachTime) {
  Open([this] { window.chkBold.SetValue(1); });
  Open([this] {
    EXPECT_EQ(window.chkBold.value, 0);
    EXPECT_FALSE(state.MacroFont.Bold);
  });
}

TEST_F(MacroStyleTest, BoxesSetTheStyleOfWhatIsTypedNext) {
  Write([this] {
    const int focused = text.timesFocused;
    window.chkBold.SetValue(1);
    window.chkItalics.SetValue(1);
    window.chkUnderlined.SetValue(1);
    EXPECT_EQ(text.timesFocused, focused + 3);
    EXPECT_TRUE(state.MacroFont.Bold && state.MacroFont.Italic && state.MacroFont.Underline);
    text.Type(u"a");
    window.chkBold.SetValue(0);
    text.Type(u"b");
    text.Select(0, 1);
    EXPECT_EQ(text.SelFormat().bold, true);
    EXPECT_EQ(text.SelFormat().italic, true);
    EXPECT_EQ(text.SelFormat().underline, true);
    text.Select(1, 1);
    EXPECT_EQ(text.SelFormat().bold, false);
  });
  EXPECT_FALSE(state.Font.Bold) << "the command pane's style is another one";
}

TEST_F(MacroStyleTest, BoxesSetTheStyleOfTheSelection) {
  Open([this] {
    Edit(u"bye");
    text.Select(0, 3);
    window.chkUnderlined.SetValue(1);
    EXPECT_EQ(text.SelFormat().underline, true);
    EXPECT_EQ(text.SelStart(), 0u);
    EXPECT_EQ(text.SelLength(), 3u);
  });
}

TEST_F(MacroStyleTest, FailureInABoxIsIgnored) {
  Write([this] {
    text.formatFails = FailureNumber::InternalError;
    window.chkBold.SetValue(1);
    window.chkItalics.SetValue(1);
    window.chkUnderlined.SetValue(1);
    EXPECT_TRUE(state.MacroFont.Bold && state.MacroFont.Italic && state.MacroFont.Underline);
  });
  EXPECT_THAT(Titles(), IsEmpty());
  EXPECT_THAT(fake.application.loggedErrors, SizeIs(3)) << "one for each box";
}

TEST_F(MacroStyleTest, BoxesLeaveAMacroThatIsOnlyShown) {
  Open([this] {
    Choose(u"bye");
    text.Select(0, 3);
    window.chkBold.SetValue(1);
    EXPECT_EQ(text.SelFormat().bold, false) << "what is run is what was saved";
  });
}

TEST_F(MacroStyleTest, StyleChosenBeforeAddIsKept) {
  Open([this] {
    Choose(u"hello");
    text.Select(text.TextLength(), 0);
    window.chkItalics.SetValue(1);
    text.Select(0, 4);
    Add(u"new");
    EXPECT_EQ(text.SelFormat().italic, true);
    EXPECT_EQ(text.SelFormat().bold, true) << "from the text of hello, under the caret";
    EXPECT_EQ(window.chkItalics.value, 1);
  });
}

TEST_F(MacroStyleTest, CaretShowsTheStyleUnderIt) {
  Open([this] {
    Choose(u"hello");
    EXPECT_EQ(window.chkBold.value, 1);
    EXPECT_EQ(window.lblColour.backColor, kRed);
    EXPECT_EQ(state.MacroFont.Color, kRed);
    Choose(u"bye");
    EXPECT_EQ(window.chkBold.value, 0);
    EXPECT_EQ(window.lblColour.backColor, 0);
  });
}

TEST_F(MacroStyleTest, SelectionChangesNoStyle) {
  Open([this] {
    Choose(u"bye");
    Edit(u"hello");
    state.MacroFont.Bold = false;
    text.Select(0, 4);
    EXPECT_FALSE(state.MacroFont.Bold);
    text.Select(4, 0);
    EXPECT_TRUE(state.MacroFont.Bold);
  });
}

TEST_F(MacroStyleTest, UndeterminedStyleIsOffAndLeavesTheColour) {
  Open([this] {
    Choose(u"hello");
    text.formatIsMixed = true;
    text.Select(3, 0);
    EXPECT_EQ(window.chkBold.value, 0);
    EXPECT_FALSE(state.MacroFont.Bold);
    EXPECT_EQ(window.lblColour.backColor, kRed);
    EXPECT_EQ(state.MacroFont.Color, kRed);
  });
}

TEST_F(MacroStyleTest, ColourIsChosenByAnyButtonButTheRightOne) {
  Write([this] {
    state.MacroFont.Color = kBlue;
    window.lblColour.onMouseDown(MouseButton::Right);
    EXPECT_THAT(fake.commonDialog.colorsShown, IsEmpty());
    fake.commonDialog.colors = {kRed, kBlue};
    const int focused = text.timesFocused;
    window.lblColour.onMouseDown(MouseButton::Left);
    EXPECT_EQ(state.MacroFont.Color, kRed);
    EXPECT_EQ(window.lblColour.backColor, kRed);
    EXPECT_EQ(text.SelFormat().color, kRed);
    EXPECT_EQ(text.timesFocused, focused + 1);
    window.lblColour.onMouseDown(MouseButton::Other);
    EXPECT_EQ(state.MacroFont.Color, kBlue);
    EXPECT_THAT(fake.commonDialog.colorsShown, ElementsAre(kBlue, kRed));
  });
}

TEST_F(MacroStyleTest, CancelledDialogsAreSilent) {
  Write([this] {
    state.MacroFont.Color = kBlue;
    fake.commonDialog.colors = {std::nullopt, std::nullopt};
    fake.commonDialog.fonts = {std::nullopt};
    window.lblColour.onMouseDown(MouseButton::Left);
    text.Type(u"\x0B\x06");
    EXPECT_EQ(state.MacroFont.Color, kBlue);
    EXPECT_EQ(text.Text(), u"");
  });
  EXPECT_THAT(Titles(), IsEmpty());
}

TEST_F(MacroStyleTest, FailureOfTheColourIsReported) {
  Write([this] {
    fake.commonDialog.colors = {kRed};
    text.formatFails = FailureNumber::InternalError;
    AnswerNoToErrors();
    window.lblColour.onMouseDown(MouseButton::Left);
  });
  ExpectReported(u"51", u"Verlume, 253.");
}

TEST_F(MacroStyleTest, KeysToggleTheBoxes) {
  Write([this] {
    text.Type(u"\x02\x09\x15");
    EXPECT_EQ(window.chkBold.value + window.chkItalics.value + window.chkUnderlined.value, 3);
    EXPECT_TRUE(state.MacroFont.Bold && state.MacroFont.Italic && state.MacroFont.Underline);
    text.Type(u"\x02\x09\x15");
    EXPECT_EQ(window.chkBold.value + window.chkItalics.value + window.chkUnderlined.value, 0);
    EXPECT_EQ(text.Text(), u"") << "they insert nothing";
  });
}

TEST_F(MacroStyleTest, TabTogglesItalicsAndInsertsNoTab) {
  Write([this] {
    EXPECT_TRUE(text.PressKey(key_code::kTab));
    text.Type(u"a\tb");
    EXPECT_EQ(text.Text(), u"ab");
    EXPECT_EQ(window.chkItalics.value, 1);
  });
}

TEST_F(MacroStyleTest, EnterDoesNothing) {
  Write([this] {
    text.Type(u"a\r\nb");
    EXPECT_EQ(text.Text(), u"ab");
    EXPECT_EQ(StateName(), "New");
  });
}

TEST_F(MacroStyleTest, OtherKeysAreTyped) {
  Write([this] {
    text.Type(u"a $l.\x01");
    EXPECT_EQ(text.Text(), u"a $l.\x01");
  });
}

TEST_F(MacroStyleTest, ControlKIsAClickOnTheColour) {
  Write([this] {
    fake.commonDialog.colors = {kRed};
    text.Type(u"\x0B");
    EXPECT_EQ(state.MacroFont.Color, kRed);
    EXPECT_EQ(window.lblColour.backColor, kRed);
    EXPECT_EQ(text.Text(), u"");
  });
}

TEST_F(MacroStyleTest, ControlFChoosesTheFont) {
  Write([this] {
    state.MacroFont.Italic = true;
    fake.commonDialog.fonts = {FontChoice{.name = u"Georgia",
                                          .bold = true,
                                          .italic = false,
                                          .underline = true,
                                          .strikethrough = true,
                                          .color = kRed,
                                          .size = 9}};
    text.Type(u"\x06");
    const auto& shown = fake.commonDialog.fontsShown.at(0);
    EXPECT_EQ(shown.start.name, u"Arial");
    EXPECT_EQ(shown.start.size, 10);
    EXPECT_TRUE(shown.start.italic);
    EXPECT_EQ(shown.minimumSize, 8);
    EXPECT_EQ(shown.maximumSize, 11);
    EXPECT_EQ(state.MacroFont.Name, u"Georgia");
    EXPECT_EQ(state.MacroFont.Size, 9);
    EXPECT_EQ(state.MacroFont.Color, kRed);
    EXPECT_TRUE(state.MacroFont.Bold && state.MacroFont.Underline && state.MacroFont.Strikethrough);
    EXPECT_FALSE(state.MacroFont.Italic);
    EXPECT_EQ(text.SelFormat().fontName, u"Georgia");
    EXPECT_EQ(text.SelFormat().strikethrough, true);
    EXPECT_EQ(window.chkBold.value, 1);
    EXPECT_EQ(window.chkItalics.value, 0);
    EXPECT_EQ(window.lblColour.backColor, kRed);
  });
}

TEST_F(MacroStyleTest, FailureInAKeyIsReported) {
  Write([this] {
    fake.commonDialog.fonts = {FontChoice{}};
    text.formatFails = FailureNumber::InternalError;
    AnswerNoToErrors();
    text.Type(u"\x06");
    EXPECT_EQ(text.Text(), u"");
  });
  ExpectReported(u"51", u"Verlume, 254.");
}

TEST_F(MacroStyleTest, ControlSAsksForTheSize) {
  Write([this] {
    fake.dialogs.typed = {u" 9 "};
    text.Type(u"\x13");
    EXPECT_EQ(state.MacroFont.Size, 9);
    EXPECT_EQ(text.SelFormat().fontSize, 9);
    fake.dialogs.typed = {u""};
    text.Type(u"\x13");
    EXPECT_EQ(state.MacroFont.Size, 9);
  });
  EXPECT_EQ(fake.dialogs.asked[1].title, u"Font size definition");
  EXPECT_EQ(fake.dialogs.asked[1].prompt,
            u"Type the font size.\r\n\r\nYou may type a number between 8 and 11 inclusive.");
  EXPECT_EQ(fake.dialogs.asked[1].defaultText, u"10");
  EXPECT_EQ(fake.dialogs.asked[2].defaultText, u"9");
}

TEST_F(MacroStyleTest, SizeOutOfRangeIsToldAndAskedForAgain) {
  for (const char16_t* wrong : {u"7", u"12", u"9.5", u"1 0", u" ", u"ten", u"-9", u"99999999999999",
                                u"9,5", u"0x9", u"1e1"}) {
    Write([&] {
      fake.dialogs.asked.clear();
      fake.dialogs.messages.clear();
      fake.dialogs.typed = {wrong, u"11"};
      text.Type(u"\x13");
      EXPECT_THAT(Titles(), ElementsAre(u"Font size definition")) << testing::PrintToString(wrong);
      EXPECT_EQ(fake.dialogs.messages[0].text,
                u"The font size must be between 8 and 11 inclusive.");
      EXPECT_EQ(fake.dialogs.messages[0].icon, MessageIcon::Information);
      EXPECT_EQ(fake.dialogs.asked.back().defaultText, u"");
      EXPECT_EQ(state.MacroFont.Size, 11);
    });
  }
}

TEST_F(MacroStyleTest, SizeIsAskedForInGreek) {
  state.IsGreek = true;
  Write([this] {
    fake.dialogs.typed = {u"7", u""};
    text.Type(u"\x13");
  });
  EXPECT_EQ(fake.dialogs.asked[1].title, u"Ορισμός μεγέθους γραμματοσειράς");
  EXPECT_EQ(fake.dialogs.asked[1].prompt,
            u"Πληκτρολογήστε το μέγεθος που θέλετε να έχει η γραμματοσειρά.\r\n\r\nΜπορείτε να "
            u"πληκτρολογήσετε έναν αριθμό από το 8 μέχρι και το 11.");
  EXPECT_EQ(fake.dialogs.messages[0].text,
            u"Το μέγεθος της γραμματοσειράς πρέπει να είναι μεταξύ του 8 και του 11.");
}

}  // namespace
}  // namespace verlume
