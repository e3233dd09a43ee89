#include "platform_qt/system/system.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QDateTime>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "platform_qt/convert/text.h"
#include "platform_qt/system/unprivileged.h"

namespace verlume::qt {
namespace {

constexpr LocalTime kMorning = {2026, 3, 7, 9, 5, 30};

TEST(QtClock, TellsTheLocalTime) {
  const QDateTime before = QDateTime::currentDateTime();
  const LocalTime now = QtClock().Now();
  const QDateTime told(QDate(now.year, now.month, now.day),
                       QTime(now.hour, now.minute, now.second, 999));
  EXPECT_GE(told, before);
  EXPECT_LE(told.addMSecs(-999), QDateTime::currentDateTime());
}

TEST(QtLocale, DatesAreInTheLongForm) {
  const QtLocale english(QLocale(QLocale::English, QLocale::UnitedStates));
  EXPECT_EQ(english.LongDate(kMorning), u"Saturday, March 7, 2026");
  const QtLocale greek(QLocale(QLocale::Greek, QLocale::Greece));
  EXPECT_EQ(greek.LongDate(kMorning), u"Σάββατο 7 Μαρτίου 2026");
}

TEST(QtLocale, TimesHaveSecondsAndNoTimeZone) {
  EXPECT_EQ(QtLocale(QLocale(QLocale::English, QLocale::UnitedStates)).LongTime(kMorning),
            u"9:05:30 AM");
  EXPECT_EQ(QtLocale(QLocale(QLocale::Greek, QLocale::Greece)).LongTime(kMorning), u"9:05:30 Π.Μ.");
  EXPECT_EQ(QtLocale(QLocale(QLocale::German, QLocale::Germany)).LongTime(kMorning), u"09:05:30");
  EXPECT_EQ(QtLocale(QLocale::c()).LongTime(kMorning), u"09:05:30");
}

TEST(QtLocale, TimesOfEveryLocaleHaveSecondsAndNoTimeZone) {
  const LocalTime time = {2026, 3, 7, 9, 5, 47};
  const auto all =
      QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
  for (const QLocale& locale : all) {
    const QString text = ToQt(QtLocale(locale).LongTime(time));
    const QString seconds = locale.toString(47);
    EXPECT_TRUE(text.contains(seconds)) << locale.name().toStdString() << text.toStdString();
    const QString zone = QDateTime::currentDateTime().timeZoneAbbreviation();
    EXPECT_FALSE(text.contains(zone)) << locale.name().toStdString() << text.toStdString();
    EXPECT_FALSE(text.contains("()") || text.contains("[]")) << locale.name().toStdString();
    EXPECT_EQ(text, text.trimmed()) << locale.name().toStdString();
  }
}

TEST(QtLocale, GroupsAreSeparatedAsTheLocaleDoes) {
  EXPECT_EQ(QtLocale(QLocale(QLocale::English, QLocale::UnitedStates)).GroupSeparator(), u",");
  EXPECT_EQ(QtLocale(QLocale(QLocale::Greek, QLocale::Greece)).GroupSeparator(), u".");
}

TEST(QtLocale, UpperCaseKeepsGreekAccentsWhateverTheLocale) {
  for (const auto language : {QLocale::English, QLocale::Greek, QLocale::Turkish}) {
    const QtLocale locale{QLocale(language)};
    EXPECT_EQ(locale.UpperCase(u"/wait"), u"/WAIT");
    EXPECT_EQ(locale.UpperCase(u"/ακύρωση κλείσιμο άέήίόύώϊϋς"), u"/ΑΚΎΡΩΣΗ ΚΛΕΊΣΙΜΟ ΆΈΉΊΌΎΏΪΫΣ");
  }
}

TEST(QtLocale, BaseLetterHasNeitherCaseNorAccents) {
  const QtLocale locale;
  const auto base = [&](std::u16string_view text) {
    std::u16string letters;
    for (const char16_t c : text) {
      if (const char16_t letter = locale.BaseLetter(c)) letters += letter;
    }
    return letters;
  };
  EXPECT_EQ(base(u"ΚΑΛΗΜΈΡΑ"), base(u"καλημέρα"));
  EXPECT_EQ(base(u"Καλημέρα"), u"καλημερα");
  EXPECT_EQ(base(u"ΠΡΟΪΌΝΤΟΣ"), base(u"προϊόντος"));
  EXPECT_EQ(base(u"ΐΰ"), u"ιυ");
  EXPECT_EQ(base(u"ᾄᾳ"), u"αα");
  EXPECT_EQ(base(u"Éçñÿ"), u"ecny");
  EXPECT_EQ(base(u"e\u0301α\u0301\u0345"), u"eα");
  EXPECT_EQ(base(u"µ"), u"μ");
  EXPECT_EQ(base(u"a\u00A0b"), u"a b");
}

TEST(QtLocale, BaseLetterLeavesWhatIsNoAccentedLetter) {
  const QtLocale locale;
  for (const char16_t c : std::u16string_view(u"1<>\n\\ ;·€あがक")) {
    EXPECT_EQ(locale.BaseLetter(c), c) << static_cast<int>(c);
  }
  EXPECT_EQ(locale.BaseLetter(0xD83D), 0xD83D) << "half a pair";
  EXPECT_EQ(locale.BaseLetter(0xFFFF), 0xFFFF);
}

TEST(QtLocale, LoneSurrogatesDoNotHurtUpperCase) {
  const std::u16string odd = {u'a', 0xD800, u'b', 0xDC00};
  EXPECT_EQ(QtLocale().UpperCase(odd), u"A\uFFFDB\uFFFD");
}

class QtApplicationFolders : public testing::Test {
 protected:
  QtApplicationFolders() {
    const QString program = Program();
    QDir().mkpath(program);
    // Everybody may read the folder.
    EXPECT_EQ(::chmod(folder_.path().toUtf8().constData(), 0755), 0);
  }
  QString Program() const { return folder_.path() + "/bin"; }
  void MakeHelp(const QString& folder) {
    QDir().mkpath(folder);
    QFile file(folder + "/VerlumeUK.hlp");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }

 private:
  QTemporaryDir folder_;
};

TEST(QtApplicationErrors, AnErrorIsOneLineOfStandardError) {
  testing::internal::CaptureStderr();
  QtApplication().LogError("procedure 203 failed: error 13, Type mismatch");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "verlume: procedure 203 failed: error 13, Type mismatch\n");
}

TEST_F(QtApplicationFolders, TheProgramLiesWhereItsExecutableLies) {
  EXPECT_EQ(QtApplication().ProgramFolder(), FromQt(QCoreApplication::applicationDirPath()));
}

TEST_F(QtApplicationFolders, SettingsLieInTheProgramsFolder) {
  EXPECT_EQ(QtApplication(Program()).SettingsFolder(), FromQt(Program()));
}

TEST_F(QtApplicationFolders, SettingsLieInTheUsersFolderWhereTheProgramsIsNotWritable) {
  const QTemporaryDir config;
  ASSERT_EQ(::chmod(config.path().toUtf8().constData(), 0777), 0);
  const QByteArray before = qgetenv("XDG_CONFIG_HOME");
  qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
  ASSERT_EQ(::chmod(Program().toUtf8().constData(), 0555), 0);
  QString settings;
  {
    const Unprivileged user;
    settings = ToQt(QtApplication(Program()).SettingsFolder());
  }
  qputenv("XDG_CONFIG_HOME", before);
  EXPECT_TRUE(settings.startsWith(config.path())) << settings.toStdString();
  EXPECT_TRUE(QDir(settings).exists());
}

// As root finds it, who may write everywhere.
TEST_F(QtApplicationFolders, SettingsOfAnInstalledProgramLieInTheUsersFolder) {
  const QTemporaryDir config;
  const QByteArray before = qgetenv("XDG_CONFIG_HOME");
  qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
  MakeHelp(Program() + "/../share/verlume");
  const QString settings = ToQt(QtApplication(Program()).SettingsFolder());
  MakeHelp(Program());
  const QString beside = ToQt(QtApplication(Program()).SettingsFolder());
  qputenv("XDG_CONFIG_HOME", before);
  EXPECT_TRUE(settings.startsWith(config.path())) << settings.toStdString();
  EXPECT_TRUE(QDir(settings).exists());
  EXPECT_EQ(beside, Program()) << "a copied folder has its help beside it";
}

TEST_F(QtApplicationFolders, SettingsLieInTheFolderThatTheUserNames) {
  const QTemporaryDir own;
  EXPECT_EQ(QtApplication(Program(), own.path()).SettingsFolder(), FromQt(own.path()));
  EXPECT_EQ(SettingsFolderFor(own.path()), own.path());
  EXPECT_EQ(SettingsFolderFor({}), ToQt(QtApplication().SettingsFolder()));
}

TEST_F(QtApplicationFolders, HelpLiesInTheProgramsFolder) {
  MakeHelp(Program());
  MakeHelp(Program() + "/../share/verlume");
  EXPECT_EQ(QtApplication(Program()).HelpFolder(), FromQt(Program()));
}

TEST_F(QtApplicationFolders, HelpLiesInTheInstalledDataFolderWhereTheProgramHasNone) {
  MakeHelp(Program() + "/../share/verlume");
  EXPECT_EQ(QtApplication(Program()).HelpFolder(),
            FromQt(QDir::cleanPath(Program() + "/../share/verlume")));
}

TEST(QtApplicationEvents, YieldingLetsWaitingEventsThrough) {
  QtApplication application;
  bool isHandled = false;
  QTimer::singleShot(0, &application, [&] {
    isHandled = true;
    EXPECT_TRUE(application.IsYielding());
  });
  EXPECT_FALSE(application.IsYielding());
  application.YieldToEvents();
  EXPECT_TRUE(isHandled);
  EXPECT_FALSE(application.IsYielding());
}

TEST(QtApplicationEvents, TheEndClosesEveryWindowAndLeavesEveryLoop) {
  QtApplication application;
  QMainWindow window;
  QDialog box(&window);
  window.show();
  bool isBackFromBox = false;
  QTimer::singleShot(0, &application, [&] {
    QTimer::singleShot(0, &application, [&] { application.End(); });
    box.exec();
    isBackFromBox = true;
  });
  EXPECT_EQ(application.Run(), 0);
  EXPECT_TRUE(isBackFromBox);
  EXPECT_FALSE(window.isVisible());
  EXPECT_FALSE(box.isVisible());
}

TEST(QtApplicationEvents, NoHandlerRunsAfterTheEnd) {
  QtApplication application;
  bool isHandled = false;
  application.End();
  QTimer::singleShot(0, &application, [&] { isHandled = true; });
  QTimer timer;
  timer.callOnTimeout([&] { isHandled = true; });
  timer.start(0);
  application.YieldToEvents();
  QCoreApplication::processEvents();
  EXPECT_FALSE(isHandled);
}

TEST(QtApplicationEvents, ABoxOpenedAfterTheEndReturnsAtOnce) {
  QtApplication application;
  int boxes = 0;
  QTimer::singleShot(0, &application, [&] {
    application.End();
    QDialog box;
    box.exec();
    ++boxes;
  });
  application.Run();
  EXPECT_EQ(boxes, 1);
}

TEST(QtApplicationEvents, AProgramThatEndedBeforeItRanReturnsAtOnce) {
  QtApplication application;
  application.End();
  EXPECT_EQ(application.Run(), 0);
}

TEST(QtSystemTools, ThereIsNoRegistry) {
  EXPECT_EQ(QtSystemTools().LocalMachineText(u"SOFTWARE\\Microsoft\\Shared Tools", u"PATH"),
            std::nullopt);
}

TEST(QtSystemTools, ProgramIsStartedAsAProcessOfItsOwn) {
  const QTemporaryDir folder;
  const QString program = folder.filePath("a program");
  QFile script(program);
  ASSERT_TRUE(script.open(QIODevice::WriteOnly));
  script.write("#!/bin/sh\n: >\"$0.ran\"\n");
  script.close();
  script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
  EXPECT_TRUE(QtSystemTools().StartProgram(FromQt(program)));
  EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(program + ".ran"); }, 10000));
}

TEST(QtSystemTools, ProgramThatIsNotThereIsNotStarted) {
  EXPECT_FALSE(QtSystemTools().StartProgram(u"/no/such/program"));
}

}  // namespace
}  // namespace verlume::qt
