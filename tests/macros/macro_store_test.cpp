#include "macros/macro_store.h"

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

}  // namespace
}  // namespace verlume
