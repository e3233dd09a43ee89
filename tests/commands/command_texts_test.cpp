#include "commands/command_texts.h"

#include <gtest/gtest.h>

#include "commands/command_table.h"

namespace verlume {
namespace {

TEST(CommandTexts, ExplainEveryCommandInBothLanguages) {
  for (const CommandRow& row : CommandTable()) {
    const CommandText& text = TextOfCommand(row.english);
    EXPECT_EQ(text.command, row.english);
    EXPECT_FALSE(text.explanation.english.empty());
    EXPECT_FALSE(text.explanation.greek.empty());
    EXPECT_NE(text.explanation.english, text.explanation.greek);
    EXPECT_EQ(text.arguments.english.empty(), text.arguments.greek.empty());
  }
}

TEST(CommandTexts, NameTheArgumentsOfTheCommandsThatReadSome) {
  for (const CommandRow& row : CommandTable()) {
    const bool reads =
        row.kind == CommandKind::NormalisedRoutine || row.kind == CommandKind::Action;
    EXPECT_EQ(!TextOfCommand(row.english).arguments.english.empty(), reads);
  }
}

}  // namespace
}  // namespace verlume
