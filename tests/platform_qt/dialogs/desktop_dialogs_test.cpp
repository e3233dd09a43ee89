#include "platform_qt/dialogs/desktop_dialogs.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace verlume::qt {
namespace {

TEST(DesktopDialogs, AreUsedInTheLanguageOfTheDesktop) {
  EXPECT_TRUE(DesktopSpeaks(true, {"el-GR", "el"}));
  EXPECT_TRUE(DesktopSpeaks(true, {"el"}));
  EXPECT_TRUE(DesktopSpeaks(false, {"en-US", "en"}));
  EXPECT_TRUE(DesktopSpeaks(false, {"C"}));
  EXPECT_TRUE(DesktopSpeaks(false, {}));
  EXPECT_FALSE(DesktopSpeaks(true, {"en-US", "el"}));
  EXPECT_FALSE(DesktopSpeaks(false, {"el-GR", "en"}));
  EXPECT_FALSE(DesktopSpeaks(false, {"de-DE", "en"}));
  EXPECT_FALSE(DesktopSpeaks(true, {"C"}));
  EXPECT_FALSE(DesktopSpeaks(true, {}));
}

class MeantFileTest : public testing::Test {
 protected:
  MeantFileTest() {
    QFile(folder.filePath("bare")).open(QFile::WriteOnly);
    QDir(folder.path()).mkdir("inner");
  }
  QString Meant(const QString& name, bool isOpened) const {
    return MeantFile(folder.filePath(name), "rtf", isOpened);
  }
  QString Path(const QString& name) const { return folder.filePath(name); }

  QTemporaryDir folder;
};

TEST_F(MeantFileTest, ANameWithoutAnExtensionGetsIt) {
  EXPECT_EQ(Meant("dialogue", false), Path("dialogue.rtf"));
  EXPECT_EQ(Meant("dialogue", true), Path("dialogue.rtf"));
  EXPECT_EQ(Meant("dialogue.txt", false), Path("dialogue.txt"));
  EXPECT_EQ(Meant("inner.d/dialogue", false), Path("inner.d/dialogue.rtf"));
}

TEST_F(MeantFileTest, AFileWithoutAnExtensionCanBeOpenedButIsNotWrittenTo) {
  EXPECT_EQ(Meant("bare", true), Path("bare"));
  EXPECT_EQ(Meant("bare", false), Path("bare.rtf"));
}

TEST_F(MeantFileTest, NothingIsAddedToAFolderOrToNothing) {
  EXPECT_EQ(Meant("inner", false), Path("inner"));
  EXPECT_EQ(MeantFile("", "rtf", false), "");
  EXPECT_EQ(MeantFile("/a/b", "", false), "/a/b");
}

TEST(DesktopDialogs, AreAllowedForOneDialogOnly) {
  const bool before = QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs);
  for (const bool areForbidden : {true, false}) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, areForbidden);
    {
      DesktopDialogsAllowed allowed(true);
      EXPECT_FALSE(QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs));
      allowed.End();
      EXPECT_EQ(QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs), areForbidden);
    }
    const DesktopDialogsAllowed notAllowed(false);
    EXPECT_EQ(QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs), areForbidden);
  }
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, before);
}

}  // namespace
}  // namespace verlume::qt
