#include "macros/store/macro_store.h"

#include "macros/room_test.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MacroStoreTest : public RoomTest {
 protected:
  MacroStoreTest() {
    fake.files.MakeFolder(u"/macros");
    fake.files.MakeFolder(u"/old");
    fake.commonDialog.folders = {u"/macros/"};
  }

  MacroStore store{state, fake.platform, errors, settings};
};

TEST_F(MacroStoreTest, ChosenFolderIsKeptAndWrittenAtOnce) {
  store.ChooseMacrosFolder();
  EXPECT_EQ(state.MacrosFolder, u"/macros/");
  EXPECT_EQ(Setting(u"General", u"Macrosfolder"), u"/macros/");
}

TEST_F(MacroStoreTest, DialogSpeaksTheLanguageInForce) {
  fake.commonDialog.folders = {u"/macros/", u"/macros/"};
  store.ChooseMacrosFolder();
  state.IsGreek = true;
  store.ChooseMacrosFolder();
  EXPECT_EQ(fake.commonDialog.foldersShown[0].title,
            u"Select the folder that will hold your macros");
  EXPECT_EQ(fake.commonDialog.foldersShown[1].title,
            u"Επιλέξτε τον φάκελλο που θα περιέχει τις μακροεντολές σας");
}

TEST_F(MacroStoreTest, DialogSuggestsAFolderInTheLanguageInForce) {
  fake.commonDialog.folders = {std::nullopt, std::nullopt};
  store.ChooseMacrosFolder();
  state.IsGreek = true;
  store.ChooseMacrosFolder();
  EXPECT_EQ(fake.commonDialog.foldersShown[0].suggestion, u"Verlume macros");
  EXPECT_EQ(fake.commonDialog.foldersShown[1].suggestion, u"Μακροεντολές Verlume");
}

TEST_F(MacroStoreTest, DialogStartsInTheFolderInForce) {
  state.MacrosFolder = u"/old/";
  store.ChooseMacrosFolder();
  EXPECT_EQ(fake.commonDialog.foldersShown[0].initialFolder, u"/old/");
}

TEST_F(MacroStoreTest, DialogStartsInTheProgramsFolderWhereThereIsNone) {
  fake.commonDialog.folders = {std::nullopt, std::nullopt};
  store.ChooseMacrosFolder();
  state.MacrosFolder = u"/vanished/";
  store.ChooseMacrosFolder();
  EXPECT_EQ(fake.commonDialog.foldersShown[0].initialFolder, u"/verlume");
  EXPECT_EQ(fake.commonDialog.foldersShown[1].initialFolder, u"/verlume");
}

TEST_F(MacroStoreTest, CancelIsSilentAndChangesNothing) {
  state.MacrosFolder = u"/old/";
  fake.commonDialog.folders = {std::nullopt};
  store.ChooseMacrosFolder();
  EXPECT_EQ(state.MacrosFolder, u"/old/");
  EXPECT_EQ(Setting(u"General", u"Macrosfolder"), u"missing");
  EXPECT_THAT(Titles(), IsEmpty());
}

TEST_F(MacroStoreTest, UnwritableSettingsFileIsReported) {
  fake.files.writesFail = FailureNumber::DiskFull;
  AnswerNoToErrors();
  store.ChooseMacrosFolder();
  ExpectReported(u"61", u"Verlume, 244.");
  EXPECT_EQ(state.MacrosFolder, u"/macros/");
}

TEST_F(MacroStoreTest, CommandPaneGetsTheFocus) {
  store.ChooseMacrosFolder();
  EXPECT_EQ(fake.window.rtbCommands.timesFocused, 1);
}

TEST(MacroNameTest, HoldsNoneOfElevenCharacters) {
  for (const char16_t c : std::u16string_view(u"\\/:*?\"<>|. ")) {
    EXPECT_FALSE(IsValidMacroName(std::u16string(u"a") + c + u"b")) << static_cast<int>(c);
    EXPECT_FALSE(IsValidMacroName(std::u16string(1, c))) << static_cast<int>(c);
  }
  for (const char16_t* name : {u"hello", u"_", u"a_b", u"καλημέρα", u"ΆΈ", u"a-b,c;(d)'e'", u"😀"}) {
    EXPECT_TRUE(IsValidMacroName(name)) << testing::PrintToString(name);
  }
  EXPECT_TRUE(IsValidMacroName(std::u16string(1000, u'a'))) << "no limit of its own";
}

TEST_F(MacroStoreTest, NamesAreTheFilesWithoutTheirExtension) {
  state.MacrosFolder = u"/macros";
  for (const char16_t* file : {u"b.rtf", u"A.RTF", u"γεια.rtf", u"note.txt"}) {
    fake.files.files[std::u16string(u"/macros/") + file] = "";
  }
  fake.files.files[u"/elsewhere.rtf"] = "";
  EXPECT_THAT(store.ListMacroNames(), testing::UnorderedElementsAre(u"b", u"A", u"γεια"));
}

TEST_F(MacroStoreTest, FilesThatNoNameLeadsToAreNotListed) {
  state.MacrosFolder = u"/macros/";
  for (const char16_t* file :
       {u".rtf", u"..rtf", u"...rtf", u"a\\b.rtf", u".hidden.rtf", u"a.b.rtf"}) {
    fake.files.files[std::u16string(u"/macros/") + file] = "";
  }
  EXPECT_THAT(store.ListMacroNames(), ElementsAre(u"a.b"));
}

TEST_F(MacroStoreTest, NamesOfAVanishedFolderAreAFailure) {
  state.MacrosFolder = u"/vanished/";
  EXPECT_THROW(store.ListMacroNames(), RunTimeFailure);
}

TEST_F(MacroStoreTest, StoredNameHasTheLetterCaseOfTheFile) {
  state.MacrosFolder = u"/macros/";
  fake.files.ignoresCase = true;
  fake.files.files[u"/macros/Hello.rtf"] = "";
  EXPECT_EQ(store.StoredName(u"hELLO"), u"Hello");
  EXPECT_EQ(store.StoredName(u"Hello"), u"Hello");
}

TEST_F(MacroStoreTest, StoredNameIsTheNameWhereThatIsAFileBesideOthers) {
  state.MacrosFolder = u"/macros/";
  fake.files.files[u"/macros/HELLO.rtf"] = "";
  fake.files.files[u"/macros/hello.rtf"] = "";
  EXPECT_EQ(store.StoredName(u"hello"), u"hello");
}

class EnsureMacrosFolderTest : public MacroStoreTest {
 protected:
  bool Ensure() { return store.EnsureMacrosFolder(text, title); }

  static constexpr TextPair text = {u"refusal", u"άρνηση"};
  static constexpr TextPair title = {u"caller", u"καλών"};
};

TEST_F(EnsureMacrosFolderTest, UsableFolderIsNotAskedFor) {
  state.MacrosFolder = u"/old/";
  EXPECT_TRUE(Ensure());
  EXPECT_THAT(Titles(), IsEmpty());
}

TEST_F(EnsureMacrosFolderTest, MissingOneIsAskedForUntilItIsThere) {
  for (const char16_t* folder : {u"", u"/vanished/"}) {
    state.MacrosFolder = folder;
    fake.dialogs.messages.clear();
    fake.dialogs.answers = {Answer::Yes, Answer::Yes};
    fake.commonDialog.folders = {std::nullopt, u"/macros/"};
    EXPECT_TRUE(Ensure());
    EXPECT_EQ(state.MacrosFolder, u"/macros/");
    EXPECT_THAT(Titles(), ElementsAre(u"Macros folder definition", u"Macros folder definition"));
  }
}

TEST_F(EnsureMacrosFolderTest, QuestionSpeaksBothLanguages) {
  fake.dialogs.answers = {Answer::No, Answer::No};
  Ensure();
  state.IsGreek = true;
  Ensure();
  const Message& english = fake.dialogs.messages[0];
  EXPECT_EQ(english.text,
            u"The application needs to know the folder that will hold the macros you save and/or "
            u"recall.\r\n\r\nThis message is being displayed because you either have not defined "
            u"such a folder, or the folder you have already defined could not be located by this "
            u"application.\r\n\r\nIf you don't define such a folder now, you will not be able to "
            u"save and/or recall your macros.\r\n\r\nWould you like to define such a folder now?");
  EXPECT_EQ(english.icon, MessageIcon::Question);
  EXPECT_EQ(english.buttons, MessageButtons::YesNo);
  const Message& greek = fake.dialogs.messages[2];
  EXPECT_EQ(greek.title, u"Ορισμός φακέλλου μακροεντολών");
  EXPECT_EQ(greek.text,
            u"Η εφαρμογή πρέπει να γνωρίζει τον φάκελλο ο οποίος θα χρησιμοποιείται για την "
            u"ανάκληση ή/και την αποθήκευση των μακροεντολών σας.\r\n\r\nΤο μήνυμα αυτό "
            u"εμφανίζεται είτε διότι δεν έχετε ορίσει κάποιο φάκελλο, ή διότι ο φάκελλος που έχετε "
            u"ήδη ορίσει δεν έγινε δυνατόν να εντοπισθεί από την εφαρμογή.\r\n\r\nΑν δεν ορίσετε "
            u"τώρα έναν φάκελλο, δεν θα μπορέσετε να ανακαλέσετε ή/και να αποθηκεύσετε τις "
            u"μακροεντολές σας.\r\n\r\nΘέλετε να ορίσετε τώρα έναν φάκελλο;");
}

TEST_F(EnsureMacrosFolderTest, NoGivesTheFolderUpInMemoryAlone) {
  state.MacrosFolder = u"/vanished/";
  settings.WriteSetting(u"General", u"Macrosfolder", u"/vanished/");
  fake.dialogs.answers = {Answer::No};
  EXPECT_FALSE(Ensure());
  EXPECT_EQ(state.MacrosFolder, u"");
  EXPECT_EQ(Setting(u"General", u"Macrosfolder"), u"/vanished/");
  EXPECT_EQ(fake.dialogs.messages.back().text, u"refusal");
  EXPECT_EQ(fake.dialogs.messages.back().title, u"caller");
  EXPECT_EQ(fake.dialogs.messages.back().icon, MessageIcon::Information);
  EXPECT_EQ(fake.dialogs.messages.back().buttons, MessageButtons::Ok);
}

}  // namespace
}  // namespace verlume
