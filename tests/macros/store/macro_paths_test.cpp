#include "macros/store/macro_paths.h"

#include <gtest/gtest.h>

#include "platform_fake/fake_file_system.h"

namespace verlume {
namespace {

class MacroFileTest : public testing::Test {
 protected:
  MacroFileTest() {
    files.MakeFolder(u"/macros");
    state.MacrosFolder = u"/macros/";
  }

  fake::FakeFileSystem files;
  AppState state;
};

TEST_F(MacroFileTest, PathIsFolderNameAndExtension) {
  EXPECT_EQ(MacroPath(state, files, u"γεια"), u"/macros/γεια.rtf");
}

TEST_F(MacroFileTest, FolderWithoutTrailingSeparatorGivesTheSamePath) {
  state.MacrosFolder = u"/macros";
  EXPECT_EQ(MacroPath(state, files, u"hello"), u"/macros/hello.rtf");
}

TEST_F(MacroFileTest, MacroExistsWhereItsFileIs) {
  files.files[u"/macros/hello.rtf"] = "{\\rtf1 hello}";
  files.MakeFolder(u"/macros/folder.rtf");
  EXPECT_TRUE(MacroExists(state, files, u"hello"));
  EXPECT_FALSE(MacroExists(state, files, u"Hello"));
  EXPECT_FALSE(MacroExists(state, files, u"other"));
  EXPECT_FALSE(MacroExists(state, files, u"folder"));
}

TEST_F(MacroFileTest, ExtensionInCapitalsIsFoundWhereThereIsNoOther) {
  files.files[u"/macros/loud.RTF"] = "{\\rtf1 loud}";
  files.files[u"/macros/mixed.rTf"] = "{\\rtf1 mixed}";
  files.files[u"/macros/both.RTF"] = "{\\rtf1 capitals}";
  files.files[u"/macros/both.rtf"] = "{\\rtf1 small}";
  EXPECT_TRUE(MacroExists(state, files, u"loud"));
  EXPECT_EQ(MacroPath(state, files, u"loud"), u"/macros/loud.RTF");
  EXPECT_EQ(MacroPath(state, files, u"mixed"), u"/macros/mixed.rTf");
  EXPECT_EQ(MacroPath(state, files, u"both"), u"/macros/both.rtf");
  EXPECT_EQ(MacroPath(state, files, u"new"), u"/macros/new.rtf");
}

TEST_F(MacroFileTest, NameThatWouldLeaveTheFolderHasNoFile) {
  for (const std::u16string name :
       {u"../secret", u"/secret", u"sub/secret", u"..\\secret", u"", u".", u".."}) {
    files.files[MacroPath(state, files, name)] = "";
    EXPECT_FALSE(MacroExists(state, files, name)) << testing::PrintToString(name);
  }
}

TEST_F(MacroFileTest, DeviceIsNoMacro) {
  files.files[u"/macros/con.rtf"] = "";
  EXPECT_TRUE(MacroExists(state, files, u"con"));
  files.hasDevices = true;
  EXPECT_FALSE(MacroExists(state, files, u"con"));
}

TEST_F(MacroFileTest, HiddenFileIsNoMacro) {
  files.files[u"/macros/.hidden.rtf"] = "";
  EXPECT_FALSE(MacroExists(state, files, u".hidden"));
}

TEST_F(MacroFileTest, NoMacroExistsWhileNoFolderIsChosen) {
  state.MacrosFolder = u"";
  files.files[u"/hello.rtf"] = "";
  EXPECT_FALSE(MacroExists(state, files, u"hello"));
}

}  // namespace
}  // namespace verlume
