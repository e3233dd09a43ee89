#include "commands/placeholders.h"

#include <gmock/gmock.h>

#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace verlume {
namespace {

std::u16string RtfOf(std::u16string_view text, std::u16string_view fontName = u"Arial") {
  richtext::Document document;
  document.text = text;
  document.runs = {{text.size(), {}}};
  document.fonts = {{std::u16string(fontName)}};
  return richtext::WriteRtf(document);
}

// The plain text of a typed text after its placeholders have been expanded.
std::u16string Expanded(std::u16string_view text, const Nicknames& nicknames) {
  return richtext::ReadRtf(ExpandPlaceholders(RtfOf(text), nicknames)).text;
}

std::u16string Action(std::u16string_view text, std::u16string_view word,
                      std::u16string_view nickname) {
  return richtext::ReadRtf(ExpandActionLine(RtfOf(text), word, {nickname, u"Eve"})).text;
}

const Nicknames kAlone{u"Bob", std::nullopt};
const Nicknames kConnected{u"Bob", u"Eve"};

TEST(Placeholders, TheLocalNicknameHasFourSpellings) {
  EXPECT_EQ(Expanded(u"$l $L $τ $Τ", kAlone), u"Bob Bob Bob Bob");
}

TEST(Placeholders, TheRemoteNicknameHasFourSpellings) {
  EXPECT_EQ(Expanded(u"$r $R $α $Α", kConnected), u"Eve Eve Eve Eve");
}

TEST(Placeholders, TheRemoteOnesStayAsTypedWithoutAPeer) {
  EXPECT_EQ(Expanded(u"$l $r $R $α $Α", kAlone), u"Bob $r $R $α $Α");
}

TEST(Placeholders, OthersStayAsTyped) {
  EXPECT_EQ(Expanded(u"$ $$ $x $ά l $1", kConnected), u"$ $$ $x $ά l $1");
}

TEST(Placeholders, StandAnywhereInTheText) {
  EXPECT_EQ(Expanded(u"$l$r$llama", kConnected), u"BobEveBoblama");
  EXPECT_EQ(Expanded(u"αβγ$τ", kConnected), u"αβγBob");
}

TEST(Placeholders, ANicknameIsNeverSearchedForPlaceholders) {
  EXPECT_EQ(Expanded(u"$l and $r", {u"$r", u"$l"}), u"$r and $l");
  EXPECT_EQ(Expanded(u"$lr", {u"$", u"Eve"}), u"$r");
}

TEST(Placeholders, ANicknameShowsLiterallyWhateverItHolds) {
  for (const std::u16string_view nickname : {u"a\\b", u"{x", u"x}", u"\\par", u"Ελένη", u"Łukasz",
                                             u"\\'e1", u"two words", u"-1", u"\U0001F600"}) {
    EXPECT_EQ(Expanded(u"1$l2", {nickname, std::nullopt}), u"1" + std::u16string(nickname) + u"2");
    EXPECT_EQ(Action(u"/me goes", u"/me", nickname), std::u16string(nickname) + u" goes");
  }
}

TEST(Placeholders, AnEmptyRemoteNicknameLeavesNothing) {
  EXPECT_EQ(Expanded(u"a$rb", {u"Bob", u""}), u"ab");
}

TEST(Placeholders, OnlyTextIsSearchedNotAFontName) {
  const std::u16string rtf = RtfOf(u"$l", u"Font$l");
  const richtext::Document document = richtext::ReadRtf(ExpandPlaceholders(rtf, kAlone));
  EXPECT_EQ(document.text, u"Bob");
  EXPECT_EQ(document.fonts.at(0).name, u"Font$l");
}

TEST(Placeholders, TwoFormatsInsideOneArePlainText) {
  richtext::Document document;
  document.text = u"$l";
  document.runs = {{1, {.bold = true}}, {1, {}}};
  document.fonts = {{u"Arial"}};
  EXPECT_EQ(richtext::ReadRtf(ExpandPlaceholders(richtext::WriteRtf(document), kAlone)).text,
            u"$l");
}

TEST(ActionLine, EverySpellingOfTheWordBecomesTheNickname) {
  for (const std::u16string_view word : {u"/me", u"/mE", u"/Me", u"/ME", u"/εγώ", u"/εγΏ", u"/εΓώ",
                                         u"/εΓΏ", u"/Εγώ", u"/ΕγΏ", u"/ΕΓώ", u"/ΕΓΏ"}) {
    EXPECT_EQ(Action(std::u16string(word) + u" waves", word, u"Bob"), u"Bob waves");
  }
}

TEST(ActionLine, OnlyTheFirstWordIsReplaced) {
  EXPECT_EQ(Action(u"/me types /me", u"/me", u"Bob"), u"Bob types /me");
}

TEST(ActionLine, AWordAloneIsTheNicknameAlone) {
  EXPECT_EQ(Action(u"/me", u"/me", u"Bob"), u"Bob");
}

TEST(ActionLine, PlaceholdersBesideTheWordAreExpanded) {
  EXPECT_EQ(Action(u"/me waves to $r, says $l", u"/me", u"Bob"), u"Bob waves to Eve, says Bob");
}

TEST(ActionLine, TheNicknameIsNeverSearched) {
  EXPECT_EQ(Action(u"/me sees $r", u"/me", u"$r /me"), u"$r /me sees Eve");
}

TEST(ActionLine, AFontNameIsNotTheWord) {
  const std::u16string rtf = RtfOf(u"/me waves", u"A/me");
  const richtext::Document document = richtext::ReadRtf(ExpandActionLine(rtf, u"/me", kAlone));
  EXPECT_EQ(document.text, u"Bob waves");
  EXPECT_EQ(document.fonts.at(0).name, u"A/me");
}

TEST(ActionLine, AWordOfTwoFormatsStaysAsTyped) {
  richtext::Document document;
  document.text = u"/me waves $l";
  document.runs = {{2, {.bold = true}}, {10, {}}};
  document.fonts = {{u"Arial"}};
  const std::u16string rtf = richtext::WriteRtf(document);
  EXPECT_EQ(richtext::ReadRtf(ExpandActionLine(rtf, u"/me", kAlone)).text, u"/me waves Bob");
}

TEST(ActionLine, AnUnknownSpellingReplacesNothing) {
  EXPECT_EQ(Action(u"/me waves", u"/ME", u"Bob"), u"/me waves");
  EXPECT_EQ(Action(u"/my waves", u"/my", u"Bob"), u"/my waves");
}

TEST(ActionLine, KeepsTheFormatOfTheLine) {
  richtext::Document document;
  document.text = u"/εγώ γελάω";
  document.runs = {{5, {.bold = true}}, {5, {.italic = true}}};
  document.fonts = {{u"Arial"}};
  const std::u16string rtf = richtext::WriteRtf(document);
  const richtext::Document read = richtext::ReadRtf(ExpandActionLine(rtf, u"/εγώ", kAlone));
  EXPECT_EQ(read.text, u"Bob γελάω");
  ASSERT_EQ(read.runs.size(), 2u);
  EXPECT_EQ(read.runs[0].length, 4u);
  EXPECT_TRUE(read.runs[0].format.bold);
  EXPECT_TRUE(read.runs[1].format.italic);
}

}  // namespace
}  // namespace verlume
