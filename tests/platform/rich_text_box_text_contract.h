// Text, selection, files and events; part of rich_text_box_contract.h.
#pragma once

namespace verlume {

template <class Platform>
class RichTextBoxText : public RichTextBoxContract<Platform> {};
TYPED_TEST_SUITE_P(RichTextBoxText);

TYPED_TEST_P(RichTextBoxText, ABoxBeginsEmpty) {
  EXPECT_EQ(this->many->Text(), u"");
  EXPECT_EQ(this->many->TextLength(), 0u);
  EXPECT_EQ(this->many->SelStart(), 0u);
  EXPECT_EQ(this->many->SelLength(), 0u);
  EXPECT_EQ(this->many->BackColor(), 0xFFFFFF);
  EXPECT_FALSE(this->many->Locked());
}

TYPED_TEST_P(RichTextBoxText, LineBreaksAreOneUnit) {
  this->many->SetText(u"a\r\nb\rc\nd");
  EXPECT_EQ(this->many->Text(), u"a\nb\nc\nd");
  EXPECT_EQ(this->many->TextLength(), 7u);
  this->many->Select(4, 0);
  this->many->SetSelText(u"\r\n");
  EXPECT_EQ(this->many->Text(), u"a\nb\n\nc\nd");
  EXPECT_EQ(this->many->SelStart(), 5u);
}

TYPED_TEST_P(RichTextBoxText, LineBreaksBecomeBlanksInASingleLine) {
  RichTextBox& box = *this->single;
  box.SetText(u"a\r\nb\nc");
  EXPECT_EQ(box.Text(), u"a b c");
  box.SetSelText(u"x\r");
  EXPECT_EQ(box.Text(), u"x a b c");
  box.SetRtf(u"{\\rtf1 a\\par b\\line c}");
  EXPECT_EQ(box.Text(), u"a b c");
  box.Select(0, 1);
  box.SetSelDocument(richtext::ReadRtf(u"{\\rtf1 x\\par y}"));
  EXPECT_EQ(box.Text(), u"x y b c");
  this->platform.Type(box, u"\r");
  EXPECT_EQ(box.Text(), u"x y  b c");
}

TYPED_TEST_P(RichTextBoxText, SeparatorsAndObjectMarksAreHarmless) {
  using namespace std::string_view_literals;
  RichTextBox& box = *this->many;
  box.SetText(u"a\u2028b\u2029c"sv);
  EXPECT_EQ(box.Text(), u"a\nb\nc");
  box.SetText(u"a\0b\uFFFCc"sv);
  EXPECT_EQ(box.Text(), u"a\uFFFDb\uFFFDc");
  const std::u16string frames = {u'a', 0xFDD0, u'b', 0xFDD1, u'c'};
  box.SetText(frames);
  EXPECT_EQ(box.TextLength(), 5u);
  EXPECT_EQ(box.Text(), u"a\uFFFDb\uFFFDc");
  box.SetRtf(u"{\\rtf1 a\\u8232?b\\u-4?c}");
  EXPECT_EQ(box.TextLength(), 5u);
  EXPECT_EQ(box.Text(), u"a\nb\uFFFDc");
}

TYPED_TEST_P(RichTextBoxText, NoBreakSpacesAndSurrogatesStay) {
  const std::u16string text = {u'a', 0x00A0, 0xD83D, 0xDE00, 0xD800, u'b'};
  this->many->SetText(text);
  EXPECT_EQ(this->many->Text(), text);
  EXPECT_EQ(this->many->TextLength(), 6u);
}

TYPED_TEST_P(RichTextBoxText, SettingTextPutsTheInsertionPointAtTheStart) {
  this->many->SetSelText(u"before");
  EXPECT_EQ(this->many->SelStart(), 6u);
  this->many->SetText(u"after it");
  EXPECT_EQ(this->many->SelStart(), 0u);
  EXPECT_EQ(this->many->SelLength(), 0u);
  this->many->Select(3, 2);
  this->many->SetRtf(kBoldRtf);
  EXPECT_EQ(this->many->SelStart(), 0u);
  EXPECT_EQ(this->many->SelLength(), 0u);
}

TYPED_TEST_P(RichTextBoxText, ASelectionIsCutToTheText) {
  RichTextBox& box = *this->many;
  box.SetText(u"abcdef");
  box.Select(2, 3);
  EXPECT_EQ(box.SelStart(), 2u);
  EXPECT_EQ(box.SelLength(), 3u);
  box.Select(4, 100);
  EXPECT_EQ(box.SelLength(), 2u);
  box.Select(static_cast<std::size_t>(-1), static_cast<std::size_t>(-1));
  EXPECT_EQ(box.SelStart(), 6u);
  EXPECT_EQ(box.SelLength(), 0u);
}

TYPED_TEST_P(RichTextBoxText, PuttingInReplacesTheSelection) {
  RichTextBox& box = *this->many;
  box.SetText(u"abcdef");
  box.Select(1, 4);
  box.SetSelText(u"--");
  EXPECT_EQ(box.Text(), u"a--f");
  EXPECT_EQ(box.SelStart(), 3u);
  EXPECT_EQ(box.SelLength(), 0u);
  box.Select(0, 1);
  box.SetSelDocument(richtext::ReadRtf(kBoldRtf));
  EXPECT_EQ(box.Text(), u"one two--f");
  EXPECT_EQ(box.SelStart(), 7u);
}

TYPED_TEST_P(RichTextBoxText, ALockedBoxIsChangedByTheProgramAlone) {
  RichTextBox& box = *this->many;
  box.SetLocked(true);
  EXPECT_TRUE(box.Locked());
  box.SetSelText(u"line");
  box.SetSelDocument(richtext::ReadRtf(kBoldRtf));
  EXPECT_EQ(box.Text(), u"lineone two");
  this->platform.Type(box, u"x\r");
  EXPECT_EQ(box.Text(), u"lineone two");
  box.SetLocked(false);
  this->platform.Type(box, u"x");
  EXPECT_EQ(box.Text(), u"lineone twox");
}

TYPED_TEST_P(RichTextBoxText, WhatIsNoRtfIsPlainText) {
  this->many->SetRtf(u"no {rtf} \\b here");
  EXPECT_EQ(this->many->Text(), u"no {rtf} \\b here");
}

TYPED_TEST_P(RichTextBoxText, RichTextSurvivesSettingItAgain) {
  this->many->SetRtf(
      u"{\\rtf1\\ansi\\ansicpg1253{\\fonttbl{\\f0 Arial;}{\\f1 Tahoma;}}"
      u"{\\colortbl ;\\red1\\green2\\blue3;}\\f0\\fs20 a\\b b\\par"
      u"\\f1\\fs17\\cf1\\i\\ul\\strike \\'e1\\u960?\\par}");
  const std::u16string once = this->many->Rtf();
  EXPECT_EQ(this->many->Text(), u"ab\nαπ");
  this->many->SetRtf(once);
  EXPECT_EQ(this->many->Rtf(), once);
  this->single->SetRtf(once);
  EXPECT_EQ(this->single->Text(), u"ab απ");
}

TYPED_TEST_P(RichTextBoxText, FilesAreLoadedInBothFormats) {
  RichTextBox& box = *this->many;
  this->platform.files.files[u"/a.rtf"] = "{\\rtf1 \\'e1\\b b}";
  this->platform.files.files[u"/a.txt"] = "one\r\ntwo";
  box.LoadFile(u"/a.rtf", TextFileFormat::RichText);
  EXPECT_EQ(box.TextLength(), 2u);
  EXPECT_EQ(FormatOf(box, 1, 1).bold, true);
  box.LoadFile(u"/a.txt", TextFileFormat::RichText);
  EXPECT_EQ(box.Text(), u"one\ntwo");
  box.LoadFile(u"/a.rtf", TextFileFormat::PlainText);
  EXPECT_EQ(box.Text(), u"{\\rtf1 \\'e1\\b b}");
  EXPECT_EQ(box.SelStart(), 0u);
}

TYPED_TEST_P(RichTextBoxText, PlainTextFilesAreLoadedInTheFormatOfANewBox) {
  RichTextBox& box = *this->many;
  const SelectionFormat own = box.SelFormat();
  this->platform.files.files[u"/a.txt"] = "one\r\ntwo";
  this->platform.files.files[u"/empty.txt"] = "";
  box.SetSelText(u"before ");
  box.SetSelFormat(Fancy());
  box.SetSelText(u"said by a peer");
  box.LoadFile(u"/a.txt", TextFileFormat::PlainText);
  ExpectFormat(FormatOf(box, 0, box.TextLength()), own);
  box.SetSelFormat(Fancy());
  box.LoadFile(u"/empty.txt", TextFileFormat::PlainText);
  ExpectFormat(box.SelFormat(), own);
}

TYPED_TEST_P(RichTextBoxText, FilesAreSavedInBothFormats) {
  RichTextBox& box = *this->many;
  box.SetRtf(u"{\\rtf1 a\\par\\b \\u960?}");
  box.SaveFile(u"/a.txt", TextFileFormat::PlainText);
  EXPECT_EQ(this->platform.files.files[u"/a.txt"], "a\n\xCF\x80");
  box.SaveFile(u"/a.rtf", TextFileFormat::RichText);
  const std::u16string saved = box.Rtf();
  box.SetText(u"");
  box.LoadFile(u"/a.rtf", TextFileFormat::RichText);
  EXPECT_EQ(box.Rtf(), saved);
}

TYPED_TEST_P(RichTextBoxText, SavedRichTextIsForWordProcessorsToo) {
  RichTextBox& box = *this->many;
  box.SetText(u"two  blanks");
  box.SaveFile(u"/a.rtf", TextFileFormat::RichText);
  EXPECT_NE(this->platform.files.files[u"/a.rtf"].find("\\dntblnsbdb\\pard"), std::string::npos);
  EXPECT_EQ(box.Rtf().find(u"\\dntblnsbdb"), std::u16string::npos);
}

TYPED_TEST_P(RichTextBoxText, AFailureLeavesTheBoxAndTheFile) {
  RichTextBox& box = *this->many;
  box.SetText(u"kept");
  EXPECT_THROW(box.LoadFile(u"/none.rtf", TextFileFormat::RichText), RunTimeFailure);
  EXPECT_THROW(box.LoadFile(u"/none.txt", TextFileFormat::PlainText), RunTimeFailure);
  EXPECT_EQ(box.Text(), u"kept");
  this->platform.files.files[u"/a.txt"] = "old";
  this->platform.files.writesFail = FailureNumber::DiskFull;
  EXPECT_THROW(box.SaveFile(u"/a.txt", TextFileFormat::PlainText), RunTimeFailure);
  EXPECT_EQ(this->platform.files.files[u"/a.txt"], "old");
}

TYPED_TEST_P(RichTextBoxText, TheTagAndTheGroundAreKept) {
  this->many->SetTag(u"spare");
  this->many->SetBackColor(0x123456);
  EXPECT_EQ(this->many->Tag(), u"spare");
  EXPECT_EQ(this->many->BackColor(), 0x123456);
}

TYPED_TEST_P(RichTextBoxText, KeysPassTheHandlersBeforeTheBox) {
  RichTextBox& box = *this->single;
  std::vector<int> seen;
  box.onKeyDown = [&](int& code, int shift) { seen.insert(seen.end(), {code, shift}); };
  box.onKeyPress = [&](int& code) {
    seen.push_back(code);
    if (code == 13 || code == u'y') code = 0;
  };
  this->platform.Type(box, u"xyz\r");
  EXPECT_EQ(box.Text(), u"xz");
  EXPECT_EQ(seen, (std::vector<int>{-1, 0, u'x', -1, 0, u'y', -1, 0, u'z', -1, 0, 13}));
}

TYPED_TEST_P(RichTextBoxText, AKeySwallowedOnItsWayDownTypesNothing) {
  RichTextBox& box = *this->single;
  int pressed = 0;
  box.onKeyDown = [](int& code, int) { code = 0; };
  box.onKeyPress = [&](int&) { ++pressed; };
  this->platform.Type(box, u"x\r");
  EXPECT_EQ(box.Text(), u"");
  EXPECT_EQ(pressed, 0);
}

TYPED_TEST_P(RichTextBoxText, TheProgramsChangesOfTheSelectionAreTold) {
  RichTextBox& box = *this->many;
  this->platform.files.files[u"/a.rtf"] = "{\\rtf1 a}";
  int told = 0;
  box.onSelChange = [&] { ++told; };
  const auto tells = [&](auto change) {
    told = 0;
    change();
    return told;
  };
  EXPECT_EQ(tells([&] { box.SetText(u"abc"); }), 1);
  EXPECT_EQ(tells([&] { box.Select(1, 1); }), 1);
  EXPECT_EQ(tells([&] { box.SetRtf(kBoldRtf); }), 1);
  EXPECT_EQ(tells([&] { box.LoadFile(u"/a.rtf", TextFileFormat::RichText); }), 1);
  EXPECT_EQ(tells([&] { box.SetSelFormat(Fancy()); }), 0);
  EXPECT_EQ(tells([&] { box.SetBackColor(0); }), 0);
  EXPECT_EQ(tells([&] { this->platform.Type(box, u"x"); }), 1);
}

TYPED_TEST_P(RichTextBoxText, ALongTextIsOneTextInAnyBox) {
  std::u16string text;
  while (text.size() < 20'000) text += u"words and \U0001F600 and more ";
  text += std::u16string(9'000, u'w');
  for (RichTextBox* box : {this->many.get(), this->single.get()}) {
    box->SetText(text);
    EXPECT_TRUE(box->Text() == text);
    EXPECT_EQ(box->TextLength(), text.size());
    EXPECT_TRUE(richtext::ReadRtf(box->Rtf()).text == text);
    box->Select(text.size(), 0);
    EXPECT_EQ(box->SelStart(), text.size());
    for (const std::size_t start : {0u, 4'000u, 4'096u, 8'200u}) {
      box->Select(start, 8'192);
      EXPECT_EQ(box->SelStart(), start);
      EXPECT_EQ(box->SelLength(), 8'192u);
    }
    box->SetSelText(u"X");
    EXPECT_TRUE(box->Text() == text.substr(0, 8'200) + u"X" + text.substr(8'200 + 8'192));
    EXPECT_EQ(box->SelStart(), 8'201u);
  }
}

TYPED_TEST_P(RichTextBoxText, AChangedTextIsToldOnceWhoeverChangedIt) {
  RichTextBox& box = *this->single;
  this->platform.files.files[u"/a.rtf"] = "{\\rtf1 a}";
  std::vector<std::u16string> told;
  box.onChange = [&] { told.push_back(box.Text()); };
  box.SetText(u"abc");
  box.Select(3, 0);
  box.SetSelText(u"d");
  box.SetSelDocument(richtext::ReadRtf(u"{\\rtf1 e}"));
  box.SetSelFormat(Fancy());
  this->platform.Type(box, u"fg");
  box.SetRtf(kBoldRtf);
  box.LoadFile(u"/a.rtf", TextFileFormat::RichText);
  box.SetText(u"");
  box.Select(0, 0);
  EXPECT_EQ(told, (std::vector<std::u16string>{u"abc", u"abcd", u"abcde", u"abcdef", u"abcdefg",
                                               u"one two", u"a", u""}));
}

TYPED_TEST_P(RichTextBoxText, AChangedTextIsToldBehindItsSelection) {
  RichTextBox& box = *this->single;
  std::string told;
  box.onSelChange = [&] { told += 's'; };
  box.onChange = [&] { told += 'c'; };
  this->platform.Type(box, u"x");
  EXPECT_EQ(told, "sc");
  box.SetText(u"abc");
  EXPECT_EQ(told, "scsc");
}

TYPED_TEST_P(RichTextBoxText, AnUpdateIsToldOfOnceAtItsEnd) {
  RichTextBox& box = *this->many;
  std::string told;
  box.onSelChange = [&] { told += 's'; };
  box.onChange = [&] { told += 'c'; };
  {
    const RichTextUpdate update(box);
    box.SetSelText(u"one");
    {
      const RichTextUpdate inner(box);
      box.Select(0, 1);
      EXPECT_EQ(box.SelLength(), 1u);
      box.SetSelFormat(Fancy());
      box.SetSelText(u"O");
    }
    box.Select(box.TextLength(), 0);
    box.SetSelDocument(richtext::ReadRtf(u"{\\rtf1 , two}"));
    EXPECT_EQ(told, "");
  }
  EXPECT_EQ(told, "sc");
  EXPECT_EQ(box.Text(), u"One, two");
  EXPECT_EQ(box.SelStart(), 8u);
  ExpectFormat(FormatOf(box, 0, 1), Fancy());
}

TYPED_TEST_P(RichTextBoxText, AFormatSetInAnUpdateIsOfWhatIsPutInNext) {
  RichTextBox& box = *this->many;
  {
    const RichTextUpdate update(box);
    box.SetSelText(u"plain");
    box.SetSelFormat(Fancy());
  }
  box.SetSelText(u"fancy");
  ExpectFormat(FormatOf(box, 5, 5), Fancy());
  EXPECT_EQ(FormatOf(box, 0, 5).bold, false);
}

TYPED_TEST_P(RichTextBoxText, AnUpdateThatChangesNothingTellsNothing) {
  RichTextBox& box = *this->many;
  box.onSelChange = box.onChange = [] { ADD_FAILURE(); };
  const RichTextUpdate update(box);
}

REGISTER_TYPED_TEST_SUITE_P(
    RichTextBoxText, ABoxBeginsEmpty, LineBreaksAreOneUnit, LineBreaksBecomeBlanksInASingleLine,
    SeparatorsAndObjectMarksAreHarmless, NoBreakSpacesAndSurrogatesStay,
    SettingTextPutsTheInsertionPointAtTheStart, ASelectionIsCutToTheText,
    PuttingInReplacesTheSelection, ALockedBoxIsChangedByTheProgramAlone, WhatIsNoRtfIsPlainText,
    RichTextSurvivesSettingItAgain, FilesAreLoadedInBothFormats,
    PlainTextFilesAreLoadedInTheFormatOfANewBox, FilesAreSavedInBothFormats,
    AFailureLeavesTheBoxAndTheFile, TheTagAndTheGroundAreKept, KeysPassTheHandlersBeforeTheBox,
    AKeySwallowedOnItsWayDownTypesNothing, TheProgramsChangesOfTheSelectionAreTold,
    AChangedTextIsToldOnceWhoeverChangedIt, AChangedTextIsToldBehindItsSelection,
    ALongTextIsOneTextInAnyBox, SavedRichTextIsForWordProcessorsToo, AnUpdateIsToldOfOnceAtItsEnd,
    AFormatSetInAnUpdateIsOfWhatIsPutInNext, AnUpdateThatChangesNothingTellsNothing);

}  // namespace verlume
