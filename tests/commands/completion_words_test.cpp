#include "commands/completion_words.h"

#include <gmock/gmock.h>

#include "commands/command_table.h"
#include "platform_fake/fake_system.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CompletionWords : public testing::Test {
 protected:
  std::vector<std::u16string> Words(std::u16string_view typed, bool isGreek = false) const {
    std::vector<std::u16string> words;
    for (const Completion& one : CompletionsOf(typed, isGreek, macros, locale)) {
      words.push_back(one.word);
    }
    return words;
  }

  fake::FakeLocale locale;
  std::vector<std::u16string> macros;
};

TEST_F(CompletionWords, AWordThatBeginsWithASlashIsOneOfThem) {
  for (const auto text : {u"/", u"/w", u"/WAIT", u"//", u"/a.b"}) EXPECT_TRUE(IsCommandWord(text));
  for (const auto text : {u"", u"w", u" /w", u"/w ", u"/w a", u"w/"}) {
    EXPECT_FALSE(IsCommandWord(text));
  }
}

TEST_F(CompletionWords, BeginAsTheTypedWordDoes) {
  EXPECT_THAT(Words(u"/LOG"), ElementsAre(u"/LOGFOLDER", u"/LOGDIALOGUE"));
  EXPECT_THAT(Words(u"LOG"), IsEmpty());
  EXPECT_THAT(Words(u"/WAITS"), IsEmpty());
}

TEST_F(CompletionWords, CaseAndAccentsDoNotMatter) {
  EXPECT_THAT(Words(u"/wA"), ElementsAre(u"/WAIT"));
  EXPECT_THAT(Words(u"/κλη", true), ElementsAre(u"/ΚΛΉΣΗ"));
  EXPECT_THAT(Words(u"/Κλή", true), ElementsAre(u"/ΚΛΉΣΗ"));
}

TEST_F(CompletionWords, ASlashAloneIsEveryCommandOfTheLanguageThoseUsedMostFirst) {
  constexpr std::size_t kUsedMost = 5;
  const std::vector<std::u16string> english = {u"/WAIT", u"/CALL", u"/NICK", u"/ME", u"/CLOSE"};
  const std::vector<std::u16string> greek = {u"/ΑΝΑΜΟΝΉ", u"/ΚΛΉΣΗ", u"/ΨΕΥΔΏΝΥΜΟ", u"/ΕΓΏ",
                                             u"/ΚΛΕΊΣΙΜΟ"};
  for (const bool isGreek : {false, true}) {
    std::vector<std::u16string> expected = isGreek ? greek : english;
    for (const CommandRow& row : CommandTable()) {
      const std::u16string word(isGreek ? row.greek : row.english);
      const auto first = expected.begin() + kUsedMost;
      if (std::find(expected.begin(), first, word) == first) expected.push_back(word);
    }
    EXPECT_EQ(Words(u"/", isGreek), expected);
    EXPECT_EQ(expected.size(), CommandTable().size());
  }
}

TEST_F(CompletionWords, ALetterBehindTheSlashBringsTheOtherLanguageToo) {
  EXPECT_THAT(Words(u"/κλ", false), ElementsAre(u"/ΚΛΉΣΗ", u"/ΚΛΕΊΣΙΜΟ"));
  EXPECT_THAT(Words(u"/ca", true), ElementsAre(u"/CALL", u"/CANCEL"));
}

TEST_F(CompletionWords, MacrosComeBehindTheCommands) {
  macros = {u"sit", u"Wave", u"walk"};
  EXPECT_EQ(CompletionsOf(u"/wa", false, macros, locale),
            (std::vector<Completion>{{u"/WAIT", FindCommand(u"/WAIT")}, {u"/Wave"}, {u"/walk"}}));
  EXPECT_THAT(Words(u"/s"), ElementsAre(u"/SAVEDIALOGUEAS", u"/SIZE", u"/sit"));
}

TEST_F(CompletionWords, MacroOfSeveralWordsIsFoundByItsFirstLetters) {
  macros = {u"good day"};
  EXPECT_THAT(Words(u"/goo"), ElementsAre(u"/good day"));
}

TEST_F(CompletionWords, MacroTakesThePlaceOfTheCommandThatItHides) {
  macros = {u"WAIT"};
  EXPECT_EQ(CompletionsOf(u"/wa", false, macros, locale), (std::vector<Completion>{{u"/WAIT"}}));
}

TEST_F(CompletionWords, ACommandIsCompleteInAnyCaseButWithItsAccents) {
  const CommandRow* wait = FindCommand(u"/WAIT");
  const CommandRow* call = FindCommand(u"/CALL");
  EXPECT_TRUE(IsComplete(u"/wait", {u"/WAIT", wait}, locale));
  EXPECT_TRUE(IsComplete(u"/κλήση", {u"/ΚΛΉΣΗ", call}, locale));
  EXPECT_FALSE(IsComplete(u"/κληση", {u"/ΚΛΉΣΗ", call}, locale));
  EXPECT_FALSE(IsComplete(u"/wai", {u"/WAIT", wait}, locale));
}

TEST_F(CompletionWords, AMacroIsCompleteAsItsFileIsSpelt) {
  EXPECT_TRUE(IsComplete(u"/Wave", {u"/Wave"}, locale));
  EXPECT_FALSE(IsComplete(u"/wave", {u"/Wave"}, locale));
  EXPECT_FALSE(IsComplete(u"/wave", {u"/WAVE"}, locale));
}

}  // namespace
}  // namespace verlume
