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

TEST_F(CompletionWords, ASlashAloneIsEveryCommandOfTheLanguageInTheTablesOrder) {
  for (const bool isGreek : {false, true}) {
    const auto words = Words(u"/", isGreek);
    ASSERT_EQ(words.size(), CommandTable().size());
    for (std::size_t i = 0; i < words.size(); ++i) {
      EXPECT_EQ(words[i], isGreek ? CommandTable()[i].greek : CommandTable()[i].english);
    }
  }
}

TEST_F(CompletionWords, ALetterBehindTheSlashBringsTheOtherLanguageToo) {
  EXPECT_THAT(Words(u"/κλ", false), ElementsAre(u"/ΚΛΉΣΗ", u"/ΚΛΕΊΣΙΜΟ"));
  EXPECT_THAT(Words(u"/ca", true), ElementsAre(u"/CALL", u"/CANCEL"));
}

TEST_F(CompletionWords, MacrosComeBehindTheCommands) {
  macros = {u"sit", u"Wave", u"walk"};
  EXPECT_EQ(CompletionsOf(u"/wa", false, macros, locale),
            (std::vector<Completion>{{u"/WAIT", false}, {u"/Wave", true}, {u"/walk", true}}));
  EXPECT_THAT(Words(u"/s"), ElementsAre(u"/SAVEDIALOGUEAS", u"/SIZE", u"/sit"));
}

TEST_F(CompletionWords, MacroOfSeveralWordsIsFoundByItsFirstLetters) {
  macros = {u"good day"};
  EXPECT_THAT(Words(u"/goo"), ElementsAre(u"/good day"));
}

TEST_F(CompletionWords, MacroTakesThePlaceOfTheCommandThatItHides) {
  macros = {u"WAIT"};
  EXPECT_EQ(CompletionsOf(u"/wa", false, macros, locale),
            (std::vector<Completion>{{u"/WAIT", true}}));
}

TEST_F(CompletionWords, ACommandIsCompleteInAnyCaseButWithItsAccents) {
  EXPECT_TRUE(IsComplete(u"/wait", {u"/WAIT"}, locale));
  EXPECT_TRUE(IsComplete(u"/κλήση", {u"/ΚΛΉΣΗ"}, locale));
  EXPECT_FALSE(IsComplete(u"/κληση", {u"/ΚΛΉΣΗ"}, locale));
  EXPECT_FALSE(IsComplete(u"/wai", {u"/WAIT"}, locale));
}

TEST_F(CompletionWords, AMacroIsCompleteAsItsFileIsSpelt) {
  EXPECT_TRUE(IsComplete(u"/Wave", {u"/Wave", true}, locale));
  EXPECT_FALSE(IsComplete(u"/wave", {u"/Wave", true}, locale));
  EXPECT_FALSE(IsComplete(u"/wave", {u"/WAVE", true}, locale));
}

}  // namespace
}  // namespace verlume
