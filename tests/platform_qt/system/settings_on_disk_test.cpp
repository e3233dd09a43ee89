// Settings files that cannot be used, on a real disk.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform_qt/convert/text.h"
#include "platform_qt/system/file_system.h"
#include "platform_qt/system/unprivileged.h"
#include "shell/settings_rescue.h"

namespace verlume::qt {
namespace {

class SettingsOnDiskTest : public testing::Test {
 protected:
  SettingsOnDiskTest() {
    state.IniFile = FromQt(folder.filePath("Verlume.ini"));
    state.Font.Name = u"Arial";
    state.Font.Size = 10;
  }

  QString IniFile() const { return folder.filePath("Verlume.ini"); }
  QString Kept() const { return folder.filePath("Verlume.ini.bad"); }
  static void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
  }
  static QByteArray Read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
  }
  // The content of the file after a start, which writes to it.
  SettingsTrouble Secure() {
    Settings settings(state, files);
    const SettingsTrouble trouble = SecureSettingsFile(state, files, settings, [] {});
    settings.WriteSetting(u"General", u"Language", u"1");
    return trouble;
  }

  QTemporaryDir folder;
  QtFileSystem files;
  AppState state;
};

TEST_F(SettingsOnDiskTest, NewFilesAreTheirOwnersAlone) {
  const auto permissions = [](const QString& path) {
    struct stat found;
    return ::stat(path.toUtf8().constData(), &found) == 0 ? found.st_mode & 07777 : 0;
  };
  Settings(state, files).WriteSetting(u"General", u"Language", u"1");
  EXPECT_EQ(permissions(IniFile()), mode_t{0600});
  ASSERT_TRUE(QFile::remove(IniFile()));
  Write(IniFile(), "[General]\nDateStamp=maybe\n");
  EXPECT_EQ(Secure(), SettingsTrouble::InvalidValue);
  EXPECT_EQ(permissions(Kept()), mode_t{0600});
}

TEST_F(SettingsOnDiskTest, AFileWithABadValueIsKept) {
  const QByteArray bad = "[General]\nDateStamp=maybe\n";
  Write(IniFile(), bad);
  EXPECT_EQ(Secure(), SettingsTrouble::InvalidValue);
  EXPECT_EQ(Read(Kept()), bad);
  EXPECT_EQ(Read(IniFile()), "[General]\nDateStamp=maybe\nLanguage=1\n");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
            (QStringList{"Verlume.ini", "Verlume.ini.bad"}));
}

TEST_F(SettingsOnDiskTest, ADamagedFileIsKeptAndBegunAnew) {
  const QByteArray damaged = QByteArray("[General]\nNickname=Ann\n").append(64, '\0');
  Write(IniFile(), damaged);
  EXPECT_EQ(Secure(), SettingsTrouble::Damaged);
  EXPECT_EQ(Read(Kept()), damaged);
  EXPECT_EQ(Read(IniFile()), "[General]\r\nLanguage=1\r\n");
}

TEST_F(SettingsOnDiskTest, AFileThatMayNotBeReadStays) {
  const QByteArray text = "[General]\nNickname=Ann\n";
  Write(IniFile(), text);
  ASSERT_EQ(::chmod(folder.path().toUtf8().constData(), 0777), 0);
  ASSERT_EQ(::chmod(IniFile().toUtf8().constData(), 0), 0);
  {
    const Unprivileged user;
    EXPECT_EQ(Secure(), SettingsTrouble::Unreadable);
  }
  ASSERT_EQ(::chmod(IniFile().toUtf8().constData(), 0600), 0);
  EXPECT_EQ(Read(IniFile()), text);
  EXPECT_EQ(Read(Kept()), "none");
}

TEST_F(SettingsOnDiskTest, AFolderOrAPipeOfItsNameStays) {
  ASSERT_TRUE(QDir(folder.path()).mkdir("Verlume.ini"));
  EXPECT_EQ(Secure(), SettingsTrouble::Unreadable);
  EXPECT_TRUE(QDir(IniFile()).exists());
  ASSERT_TRUE(QDir(folder.path()).rmdir("Verlume.ini"));
  ASSERT_EQ(::mkfifo(IniFile().toUtf8().constData(), 0666), 0);
  EXPECT_EQ(Secure(), SettingsTrouble::Unreadable);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
            QStringList{"Verlume.ini"});
}

TEST_F(SettingsOnDiskTest, AHugeFileIsNotRead) {
  QFile file(IniFile());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_TRUE(file.resize(qint64{1} << 40));  // a sparse file: no disk is that large
  EXPECT_EQ(Secure(), SettingsTrouble::Unreadable);
  EXPECT_EQ(QFile(IniFile()).size(), qint64{1} << 40);
}

TEST_F(SettingsOnDiskTest, InAFolderThatMayNotBeWrittenNothingChanges) {
  const QByteArray bad = "[General]\nDateStamp=maybe\n";
  Write(IniFile(), bad);
  ASSERT_EQ(::chmod(IniFile().toUtf8().constData(), 0666), 0);
  ASSERT_EQ(::chmod(folder.path().toUtf8().constData(), 0555), 0);
  {
    const Unprivileged user;
    EXPECT_EQ(Secure(), SettingsTrouble::CopyFailed);
  }
  ASSERT_EQ(::chmod(folder.path().toUtf8().constData(), 0700), 0);
  EXPECT_EQ(Read(IniFile()), bad);
  EXPECT_EQ(Read(Kept()), "none");
}

}  // namespace
}  // namespace verlume::qt
