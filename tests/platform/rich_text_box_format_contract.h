// Formats of selections and insertion points; part of rich_text_box_contract.h.
#pragma once

namespace verlume {

template <class Platform>
class RichTextBoxFormat : public RichTextBoxContract<Platform> {};
TYPED_TEST_SUITE_P(RichTextBoxFormat);

TYPED_TEST_P(RichTextBoxFormat, ABoxBeginsInArialTenBlack) {
  ExpectFormat(this->single->SelFormat(), {u"Arial", 10, 0, false, false, false, false});
  this->platform.Type(*this->single, u"x");
  ExpectFormat(FormatOf(*this->single, 0, 1), {u"Arial", 10, 0, false, false, false, false});
}

TYPED_TEST_P(RichTextBoxFormat, AnEmptyBoxKeepsTheFormatForWhatIsTyped) {
  RichTextBox& box = *this->single;
  box.SetSelFormat(Fancy());
  ExpectFormat(box.SelFormat(), Fancy());
  box.Select(0, 0);
  ExpectFormat(box.SelFormat(), Fancy());
  this->platform.Type(box, u"ab");
  ExpectFormat(FormatOf(box, 0, 2), Fancy());
}

TYPED_TEST_P(RichTextBoxFormat, TheInsertionPointsFormatIsForWhatIsTypedNext) {
  RichTextBox& box = *this->single;
  this->platform.Type(box, u"ab");
  box.SetSelFormat(Bold(true));
  EXPECT_EQ(box.SelFormat().bold, true);
  this->platform.Type(box, u"cd");
  EXPECT_EQ(FormatOf(box, 0, 2).bold, false);
  EXPECT_EQ(FormatOf(box, 2, 2).bold, true);
  EXPECT_EQ(FormatOf(box, 2, 2).fontName, u"Arial");
  box.Select(4, 0);
  box.SetSelFormat(Bold(false));
  box.SetSelText(u"ef");
  EXPECT_EQ(FormatOf(box, 4, 2).bold, false);
}

TYPED_TEST_P(RichTextBoxFormat, AMixedSelectionIsUndetermined) {
  RichTextBox& box = *this->many;
  box.SetText(u"abcd");
  box.Select(2, 2);
  box.SetSelFormat(Fancy());
  ExpectFormat(FormatOf(box, 0, 4), {});
  ExpectFormat(FormatOf(box, 2, 2), Fancy());
  ExpectFormat(FormatOf(box, 0, 2), {u"Arial", 10, 0, false, false, false, false});
}

TYPED_TEST_P(RichTextBoxFormat, OnlyTheMixedMembersAreUndetermined) {
  RichTextBox& box = *this->many;
  box.SetText(u"ab\ncd");
  box.Select(1, 3);
  SelectionFormat change = Bold(true);
  change.color = 0xFF0000;
  box.SetSelFormat(change);
  ExpectFormat(FormatOf(box, 0, 5),
               {u"Arial", 10, std::nullopt, std::nullopt, false, false, false});
  ExpectFormat(FormatOf(box, 1, 3), {u"Arial", 10, 0xFF0000, true, false, false, false});
}

TYPED_TEST_P(RichTextBoxFormat, AutomaticColourReadsAsBlack) {
  RichTextBox& box = *this->many;
  box.SetRtf(u"{\\rtf1{\\colortbl ;\\red0\\green0\\blue0;}a\\cf1 b}");
  EXPECT_EQ(FormatOf(box, 0, 2).color, 0);
}

TYPED_TEST_P(RichTextBoxFormat, AutomaticColourIsWrittenAsSuch) {
  this->many->SetRtf(u"{\\rtf1 a}");
  EXPECT_EQ(this->many->Rtf().find(u"\\red"), std::u16string::npos);
}

TYPED_TEST_P(RichTextBoxFormat, NewTextTakesTheInsertionPointsFormat) {
  RichTextBox& box = *this->single;
  box.SetSelFormat(Fancy());
  box.SetText(u"abc");
  ExpectFormat(FormatOf(box, 0, 3), Fancy());
}

TYPED_TEST_P(RichTextBoxFormat, AnEmptiedBoxKeepsItsFormat) {
  RichTextBox& box = *this->single;
  box.SetSelFormat(Fancy());
  this->platform.Type(box, u"abc");
  box.SetText(u"");
  ExpectFormat(box.SelFormat(), Fancy());
  this->platform.Type(box, u"x");
  ExpectFormat(FormatOf(box, 0, 1), Fancy());
  box.Select(0, 1);
  box.SetSelText(u"");
  ExpectFormat(box.SelFormat(), Fancy());
}

TYPED_TEST_P(RichTextBoxFormat, PlainTextTakesTheSelectionsFormat) {
  RichTextBox& box = *this->many;
  box.SetText(u"abcd");
  box.Select(1, 2);
  box.SetSelFormat(Fancy());
  box.SetSelText(u"xyz");
  EXPECT_EQ(box.Text(), u"axyzd");
  ExpectFormat(FormatOf(box, 1, 3), Fancy());
  EXPECT_EQ(FormatOf(box, 4, 1).bold, false);
}

TYPED_TEST_P(RichTextBoxFormat, RichTextBringsItsOwnFormat) {
  RichTextBox& box = *this->many;
  box.SetSelFormat(Fancy());
  box.SetSelText(u"<nick>");
  box.SetSelDocument(richtext::ReadRtf(kBoldRtf));
  EXPECT_EQ(box.Text(), u"<nick>one two");
  ExpectFormat(FormatOf(box, 0, 6), Fancy());
  ExpectFormat(FormatOf(box, 6, 3), {u"Tahoma", 9, 0x0000FF, true, false, false, false});
  ExpectFormat(FormatOf(box, 9, 4), {u"Tahoma", 9, 0x0000FF, false, false, false, false});
}

TYPED_TEST_P(RichTextBoxFormat, RichTextBeginsInItsOwnDefaults) {
  RichTextBox& box = *this->many;
  box.SetSelFormat(Fancy());
  box.SetSelDocument(richtext::ReadRtf(u"{\\rtf1 a}"));
  ExpectFormat(FormatOf(box, 0, 1), {u"Arial", 12, 0, false, false, false, false});
}

TYPED_TEST_P(RichTextBoxFormat, AnInsertionPointTakesTheCharacterBefore) {
  RichTextBox& box = *this->many;
  box.SetRtf(u"{\\rtf1 a\\b b\\b0 c}");
  EXPECT_EQ(FormatOf(box, 1, 0).bold, false);
  EXPECT_EQ(FormatOf(box, 2, 0).bold, true);
  EXPECT_EQ(FormatOf(box, 3, 0).bold, false);
}

TYPED_TEST_P(RichTextBoxFormat, AtTheStartOfALineItTakesTheFirstCharacter) {
  RichTextBox& box = *this->many;
  box.SetRtf(u"{\\rtf1\\b a\\b0\\par\\i b}");
  EXPECT_EQ(box.SelFormat().bold, true);
  EXPECT_EQ(FormatOf(box, 2, 0).italic, true);
}

TYPED_TEST_P(RichTextBoxFormat, ADialogueLineIsWrittenPieceByPiece) {
  RichTextBox& box = *this->many;
  const SelectionFormat tag = {.fontName = u"Arial",
                               .fontSize = 8,
                               .color = 0,
                               .bold = false,
                               .italic = false,
                               .underline = false,
                               .strikethrough = false};
  for (int line = 0; line < 2; ++line) {
    box.Select(box.TextLength(), 0);
    if (box.TextLength() > 0) box.SetSelText(u"\r\n");
    box.SetSelFormat(tag);
    box.SetSelText(u"<B>");
    box.Select(box.TextLength(), 0);
    box.SetSelDocument(richtext::ReadRtf(kBoldRtf));
    box.Select(box.TextLength(), 0);
  }
  EXPECT_EQ(box.Text(), u"<B>one two\n<B>one two");
  ExpectFormat(FormatOf(box, 11, 3), tag);
  EXPECT_EQ(FormatOf(box, 14, 3).bold, true);
}

TYPED_TEST_P(RichTextBoxFormat, TheCharacterSetIsWrittenWithTheFonts) {
  RichTextBox& box = *this->many;
  box.SetText(u"a");
  box.SetFontCharset(161);
  EXPECT_NE(box.Rtf().find(u"\\fcharset161"), std::u16string::npos);
  box.SetFontCharset(204);
  EXPECT_NE(box.Rtf().find(u"\\fcharset204"), std::u16string::npos);
}

TYPED_TEST_P(RichTextBoxFormat, AHandlerOfTheSelectionMaySetTheFormat) {
  RichTextBox& box = *this->single;
  int told = 0;
  box.onSelChange = [&] {
    ++told;
    box.SetSelFormat(Bold(true));
  };
  box.SetText(u"ab");
  box.Select(2, 0);
  this->platform.Type(box, u"c");
  EXPECT_EQ(told, 3);
  EXPECT_EQ(FormatOf(box, 2, 1).bold, true);
}

REGISTER_TYPED_TEST_SUITE_P(
    RichTextBoxFormat, ABoxBeginsInArialTenBlack, AnEmptyBoxKeepsTheFormatForWhatIsTyped,
    TheInsertionPointsFormatIsForWhatIsTypedNext, AMixedSelectionIsUndetermined,
    OnlyTheMixedMembersAreUndetermined, AutomaticColourReadsAsBlack, AutomaticColourIsWrittenAsSuch,
    NewTextTakesTheInsertionPointsFormat, AnEmptiedBoxKeepsItsFormat,
    PlainTextTakesTheSelectionsFormat, RichTextBringsItsOwnFormat, RichTextBeginsInItsOwnDefaults,
    AnInsertionPointTakesTheCharacterBefore, AtTheStartOfALineItTakesTheFirstCharacter,
    ADialogueLineIsWrittenPieceByPiece, TheCharacterSetIsWrittenWithTheFonts,
    AHandlerOfTheSelectionMaySetTheFormat);

}  // namespace verlume
