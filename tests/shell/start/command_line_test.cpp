#include "shell/start/command_line.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "shell/nickname.h"

namespace verlume {
namespace {

using Arguments = std::vector<std::u16string>;
using Kind = StartTask::Kind;

const std::u16string kInvitation = u"verlume://192.0.2.7:4000/?key=x";

// What a terminal would be sent: one line, and nothing that changes how the others look.
bool IsOneHarmlessLine(std::u16string_view text) {
  if (!text.ends_with(u'\n') || text.size() > 400) return false;
  text.remove_suffix(1);
  while (!text.empty()) {
    const std::u16string_view character = FirstCharacter(text);
    if (!IsShowable(character)) return false;
    text.remove_prefix(character.size());
  }
  return true;
}

struct Understood {
  const char* name;
  Arguments arguments;
  StartTask task;
  std::u16string folder;
};

class CommandLineUnderstood : public testing::TestWithParam<Understood> {};

TEST_P(CommandLineUnderstood, AsWhatTheUserWants) {
  const CommandLine read = ReadCommandLine(GetParam().arguments, false);
  EXPECT_EQ(read.status, std::nullopt);
  EXPECT_EQ(read.text, u"");
  EXPECT_EQ(read.task, GetParam().task);
  EXPECT_EQ(read.folder, GetParam().folder);
}

INSTANTIATE_TEST_SUITE_P(
    CommandLines, CommandLineUnderstood,
    testing::Values(
        Understood{"Nothing", {}, {}, u""},
        Understood{"Wait", {u"--wait"}, {Kind::Wait, u"", 0}, u""},
        Understood{"WaitOnAPort", {u"--wait", u"4000"}, {Kind::Wait, u"", 4000}, u""},
        Understood{"WaitWithEquals", {u"--wait=4000"}, {Kind::Wait, u"", 4000}, u""},
        Understood{"WaitOnAFreePort", {u"--wait", u"0"}, {Kind::Wait, u"", 0}, u""},
        Understood{"GreatestPort", {u"--wait", u"32767"}, {Kind::Wait, u"", 32767}, u""},
        Understood{"Call", {u"--call", u"bob", u"1"}, {Kind::Call, u"bob", 1}, u""},
        Understood{"CallOverIPv6",
                   {u"--call", u"2001:db8::1", u"4000"},
                   {Kind::Call, u"2001:db8::1", 4000},
                   u""},
        Understood{"CallAGreekName",
                   {u"--call", u"υπολογιστής", u"4000"},
                   {Kind::Call, u"υπολογιστής", 4000},
                   u""},
        Understood{"Invitation", {kInvitation}, {Kind::OpenInvitation, kInvitation, 0}, u""},
        Understood{
            "WrongInvitation", {u"verlume://"}, {Kind::OpenInvitation, u"verlume://", 0}, u""},
        Understood{"Folder", {u"--folder", u"my folder"}, {}, u"my folder"},
        Understood{"FolderWithEquals", {u"--folder=-a=b"}, {}, u"-a=b"},
        Understood{"WaitBeforeAnotherOption",
                   {u"--wait", u"--folder", u"/f"},
                   {Kind::Wait, u"", 0},
                   u"/f"},
        Understood{"FolderAndInvitation",
                   {u"--folder", u"/f", kInvitation},
                   {Kind::OpenInvitation, kInvitation, 0},
                   u"/f"}),
    [](const auto& test) { return test.param.name; });

struct Misunderstood {
  const char* name;
  Arguments arguments;
  std::u16string english;
  std::u16string greek;
};

class CommandLineRefused : public testing::TestWithParam<Misunderstood> {};

TEST_P(CommandLineRefused, WithOneLineInEitherLanguage) {
  const CommandLine english = ReadCommandLine(GetParam().arguments, false);
  EXPECT_EQ(english.status, 2);
  EXPECT_EQ(english.task, StartTask{});
  EXPECT_EQ(english.text, u"verlume: " + GetParam().english + u" Try 'verlume --help'.\n");
  const CommandLine greek = ReadCommandLine(GetParam().arguments, true);
  EXPECT_EQ(greek.status, 2);
  EXPECT_EQ(greek.text, u"verlume: " + GetParam().greek + u" Δείτε 'verlume --help'.\n");
}

INSTANTIATE_TEST_SUITE_P(
    CommandLines, CommandLineRefused,
    testing::Values(
        Misunderstood{"UnknownOption",
                      {u"--frobnicate"},
                      u"There is no option '--frobnicate'.",
                      u"Δεν υπάρχει επιλογή '--frobnicate'."},
        Misunderstood{
            "OneDash", {u"-wait"}, u"There is no option '-wait'.", u"Δεν υπάρχει επιλογή '-wait'."},
        Misunderstood{"SomeWord",
                      {u"bob"},
                      u"'bob' is neither an option nor an invitation.",
                      u"Το 'bob' δεν είναι ούτε επιλογή ούτε πρόσκληση."},
        Misunderstood{"NothingQuoted",
                      {u""},
                      u"'' is neither an option nor an invitation.",
                      u"Το '' δεν είναι ούτε επιλογή ούτε πρόσκληση."},
        Misunderstood{"NoPort",
                      {u"--wait", u"forty"},
                      u"'forty' is not a port, a number from 0 to 32767.",
                      u"Το 'forty' δεν είναι θύρα, αριθμός από 0 έως 32767."},
        Misunderstood{"PortTooGreat",
                      {u"--wait=32768"},
                      u"'32768' is not a port, a number from 0 to 32767.",
                      u"Το '32768' δεν είναι θύρα, αριθμός από 0 έως 32767."},
        Misunderstood{"PortOfManyDigits",
                      {u"--call", u"bob", u"99999999999999999999"},
                      u"'99999999999999999999' is not a port, a number from 1 to 32767.",
                      u"Το '99999999999999999999' δεν είναι θύρα, αριθμός από 1 έως 32767."},
        Misunderstood{"CallOnNoPort",
                      {u"--call", u"bob", u"0"},
                      u"'0' is not a port, a number from 1 to 32767.",
                      u"Το '0' δεν είναι θύρα, αριθμός από 1 έως 32767."},
        Misunderstood{"CallWithoutPort",
                      {u"--call", u"bob"},
                      u"'--call' needs a host and a port.",
                      u"Η '--call' χρειάζεται διεύθυνση και θύρα."},
        Misunderstood{"CallWithoutAnything",
                      {u"--call", u"--wait", u"4000"},
                      u"'--call' needs a host and a port.",
                      u"Η '--call' χρειάζεται διεύθυνση και θύρα."},
        Misunderstood{"HostOfTwoWords",
                      {u"--call", u"bob 1", u"4000"},
                      u"'bob 1' is not a host.",
                      u"Το 'bob 1' δεν είναι διεύθυνση."},
        Misunderstood{"InvitationAsHost",
                      {u"--call", u"verlume://x", u"4000"},
                      u"'verlume://x' is not a host.",
                      u"Το 'verlume://x' δεν είναι διεύθυνση."},
        Misunderstood{"FolderWithoutName",
                      {u"--folder"},
                      u"'--folder' needs a folder.",
                      u"Η '--folder' χρειάζεται φάκελλο."},
        Misunderstood{"EmptyFolder",
                      {u"--folder="},
                      u"'--folder' needs a folder.",
                      u"Η '--folder' χρειάζεται φάκελλο."},
        Misunderstood{"TwoFolders",
                      {u"--folder", u"/a", u"--folder", u"/b"},
                      u"The option '--folder' is there twice.",
                      u"Η επιλογή '--folder' υπάρχει δύο φορές."},
        Misunderstood{"HelpWithAValue",
                      {u"--help=me"},
                      u"The option '--help' takes no value.",
                      u"Η επιλογή '--help' δεν δέχεται τιμή."},
        Misunderstood{"TwoTasks",
                      {u"--wait", kInvitation},
                      u"Only one of '--wait', '--call' and an invitation can be done at a time.",
                      u"Μόνο ένα από '--wait', '--call' και πρόσκληση μπορεί να γίνει κάθε φορά."},
        Misunderstood{"ControlCharacters",
                      {u"--\x1b[31mred\x07\n\u202Eder"},
                      u"There is no option '--\\x1B[31mred\\x07\\x0A\\u202Eder'.",
                      u"Δεν υπάρχει επιλογή '--\\x1B[31mred\\x07\\x0A\\u202Eder'."},
        Misunderstood{"HalfACharacter",
                      {u"verlume://" + std::u16string(1, 0xD800)},
                      u"'verlume://\\uD800' is neither an option nor an invitation.",
                      u"Το 'verlume://\\uD800' δεν είναι ούτε επιλογή ούτε πρόσκληση."}),
    [](const auto& test) { return test.param.name; });

TEST(CommandLine, HelpNamesEveryOptionInBothLanguages) {
  for (const bool isGreek : {false, true}) {
    const CommandLine read = ReadCommandLine({u"--help"}, isGreek);
    EXPECT_EQ(read.status, 0);
    for (const auto* word : {u"--wait", u"--call", u"--folder", u"--help", u"--version"}) {
      EXPECT_NE(read.text.find(word), read.text.npos);
    }
    EXPECT_TRUE(read.text.ends_with(u".\n"));
  }
  EXPECT_NE(ReadCommandLine({u"--help"}, false).text, ReadCommandLine({u"--help"}, true).text);
}

TEST(CommandLine, HelpFitsATerminal) {
  for (const bool isGreek : {false, true}) {
    const std::u16string text = ReadCommandLine({u"--help"}, isGreek).text;
    std::size_t start = 0;
    for (std::size_t end; (end = text.find(u'\n', start)) != text.npos; start = end + 1) {
      EXPECT_LE(end - start, 79u);
    }
  }
}

TEST(CommandLine, VersionIsTheProjects) {
  const CommandLine read = ReadCommandLine({u"--folder", u"/f", u"--version"}, false);
  EXPECT_EQ(read.status, 0);
  EXPECT_EQ(read.text, u"verlume " VERLUME_VERSION_TEXT u"\n");
}

TEST(CommandLine, WhatIsWrongBeforeHelpIsToldFirst) {
  EXPECT_EQ(ReadCommandLine({u"--nonsense", u"--help"}, false).status, 2);
  EXPECT_EQ(ReadCommandLine({u"--help", u"--nonsense"}, false).status, 0);
}

TEST(CommandLine, LongArgumentsAreCutInTheMessage) {
  const CommandLine read = ReadCommandLine({std::u16string(2000000, u'x')}, false);
  EXPECT_EQ(read.status, 2);
  EXPECT_TRUE(IsOneHarmlessLine(read.text));
  EXPECT_NE(read.text.find(u"xxx...'"), read.text.npos);
}

TEST(CommandLine, AnEndlessInvitationIsNone) {
  const std::u16string most = u"verlume://" + std::u16string(kLongestInvitation - 10, u'x');
  EXPECT_EQ(ReadCommandLine({most}, false).status, std::nullopt);
  EXPECT_EQ(ReadCommandLine({most + u"x"}, false).status, 2);
}

TEST(CommandLine, AnEndlessHostIsNone) {
  EXPECT_EQ(ReadCommandLine({u"--call", std::u16string(253, u'x'), u"1"}, false).status,
            std::nullopt);
  EXPECT_EQ(ReadCommandLine({u"--call", std::u16string(254, u'x'), u"1"}, false).status, 2);
}

TEST(CommandLine, TenThousandArgumentsAreRead) {
  EXPECT_EQ(ReadCommandLine(Arguments(10000, u"--wait"), false).status, 2);
  EXPECT_EQ(ReadCommandLine(Arguments(10000, u"--call"), true).status, 2);
  EXPECT_EQ(ReadCommandLine(Arguments(10000, u""), true).status, 2);
}

TEST(CommandLine, WhatIsNoUtf8IsRefusedAndNotPrinted) {
  for (const std::string_view bytes : {"\xff\xfe", "--call=\xe1", "verlume://\xce", "--\xc0\xaf"}) {
    const Arguments arguments = TextsOf({bytes, "4000"});
    ASSERT_EQ(arguments.size(), 2u);
    const CommandLine read = ReadCommandLine(arguments, false);
    EXPECT_EQ(read.status, 2) << bytes;
    EXPECT_TRUE(IsOneHarmlessLine(read.text)) << bytes;
  }
}

TEST(CommandLine, NonsenseGivesATaskOrOneHarmlessLine) {
  const Arguments pieces = {u"--wait",
                            u"--call",
                            u"--folder",
                            u"--wait=",
                            u"--",
                            u"-",
                            u"4000",
                            u"-1",
                            u"bob",
                            u"",
                            u" ",
                            kInvitation,
                            u"\x1b]0;title\x07",
                            u"\u2028",
                            u"=",
                            u"--=",
                            u"\uFFFD",
                            std::u16string(1, 0xDC00),
                            std::u16string(5000, u'\x9b')};
  std::mt19937 random(1);
  for (int round = 0; round < 20000; ++round) {
    Arguments arguments(random() % 6);
    for (std::u16string& argument : arguments) {
      argument = pieces[random() % pieces.size()];
      if (random() % 4 == 0) argument += pieces[random() % pieces.size()];
    }
    const CommandLine read = ReadCommandLine(arguments, random() % 2 == 0);
    ASSERT_EQ(read.status.has_value(), !read.text.empty());
    if (read.status) {
      ASSERT_EQ(*read.status, 2);
      ASSERT_TRUE(IsOneHarmlessLine(read.text));
    }
  }
}

TEST(CommandLine, ARefusedFolderIsOneHarmlessLine) {
  EXPECT_EQ(FolderRefusal(u"/proc/x", false),
            u"verlume: The folder '/proc/x' cannot be made or written to.\n");
  EXPECT_EQ(FolderRefusal(u"/proc/x", true),
            u"verlume: Ο φάκελλος '/proc/x' δεν μπορεί να δημιουργηθεί ή να γραφτεί.\n");
  EXPECT_TRUE(IsOneHarmlessLine(FolderRefusal(std::u16string(9999, u'\n'), false)));
}

bool SpeaksGreekIn(std::map<std::string, std::string> variables) {
  return SpeaksGreek([&variables](const char* name) {
    const auto found = variables.find(name);
    return found == variables.end() ? nullptr : found->second.c_str();
  });
}

TEST(CommandLine, TheLocaleChoosesTheLanguage) {
  EXPECT_FALSE(SpeaksGreekIn({}));
  EXPECT_TRUE(SpeaksGreekIn({{"LANG", "el_GR.UTF-8"}}));
  EXPECT_TRUE(SpeaksGreekIn({{"LANG", "el"}}));
  EXPECT_TRUE(SpeaksGreekIn({{"LANG", "el@euro"}}));
  EXPECT_FALSE(SpeaksGreekIn({{"LANG", "elx_XX"}}));
  EXPECT_FALSE(SpeaksGreekIn({{"LANG", "C.UTF-8"}}));
  EXPECT_TRUE(SpeaksGreekIn({{"LC_MESSAGES", "el_CY"}, {"LANG", "de_DE.UTF-8"}}));
  EXPECT_FALSE(SpeaksGreekIn({{"LC_ALL", "C"}, {"LC_MESSAGES", "el_CY"}, {"LANG", "el_GR"}}));
  EXPECT_TRUE(SpeaksGreekIn({{"LC_ALL", ""}, {"LC_MESSAGES", ""}, {"LANG", "el_GR"}}));
}

}  // namespace
}  // namespace verlume
