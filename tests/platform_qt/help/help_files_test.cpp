// The program's own help files, compared with each other and with the program's windows.
#include "platform_qt/help/help_files.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QRegularExpression>
#include <QSet>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/help/help_window.h"
#include "platform_qt/windows/macro_window.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/people_window.h"
#include "platform_qt/windows/reach_window.h"
#include "platform_qt/windows/verify_window.h"

namespace verlume::qt {
namespace {

// Chapters, topics and controls, in the file's order.
QStringList Structure(const HelpBook& book) {
  QStringList ids;
  for (const HelpChapter& chapter : book.Chapters()) {
    ids.append("chapter " + chapter.id);
    for (const HelpTopic& topic : chapter.topics) {
      ids.append("topic " + topic.id);
      for (const HelpControl& control : book.Controls()) {
        if (control.topicId == topic.id) ids.append("control " + control.names.join(' '));
      }
    }
  }
  return ids;
}

QStringList Ids(const HelpBook& book) {
  QStringList ids;
  for (const HelpChapter& chapter : book.Chapters()) {
    ids.append(chapter.id);
    for (const HelpTopic& topic : chapter.topics) ids.append(topic.id);
  }
  for (const HelpControl& control : book.Controls()) ids.append(control.names);
  return ids;
}

// The names that the program has given to the controls and menu entries of a window. Frames and
// invisible widgets need no paragraph.
QSet<QString> NamesToExplain(const QWidget& form) {
  QSet<QString> names;
  for (const QObject* object : form.findChildren<QObject*>()) {
    const QString name = object->objectName();
    static const QRegularExpression kNeedsNone("^(qt_|_|fra|$)");
    if (!name.contains(kNeedsNone)) names.insert(name);
  }
  return names.subtract({"rtbRemote", "tmrTimer", "freeSizer1"});
}

std::string NotExplained(const HelpBook& book, const QWidget& form) {
  QStringList names;
  for (const QString& name : NamesToExplain(form)) {
    if (!book.Control(name)) names.append(name);
  }
  names.sort();
  return names.join(' ').toStdString();
}

class HelpFilesTest : public testing::Test {
 protected:
  const HelpBook english = OwnBook(false);
  const HelpBook greek = OwnBook(true);
};

TEST_F(HelpFilesTest, AreSound) {
  EXPECT_EQ(english.ProblemText(), "");
  EXPECT_EQ(greek.ProblemText(), "");
}

TEST_F(HelpFilesTest, HaveTheSameStructureInBothLanguages) {
  EXPECT_FALSE(Structure(english).isEmpty());
  EXPECT_EQ(Structure(english), Structure(greek));
}

TEST_F(HelpFilesTest, NameEveryPlaceOnce) {
  for (const HelpBook* book : {&english, &greek}) {
    const QStringList ids = Ids(*book);
    for (const QString& id : ids) EXPECT_EQ(ids.count(id), 1) << id.toStdString();
  }
}

TEST_F(HelpFilesTest, EveryLinkLeadsToAPlaceOfTheBook) {
  static const QRegularExpression kLink("href=\"#([^\"]*)\"");
  for (const HelpBook* book : {&english, &greek}) {
    int links = 0;
    for (const HelpChapter& chapter : book->Chapters()) {
      for (const HelpTopic& topic : chapter.topics) {
        for (auto found = kLink.globalMatch(topic.html); found.hasNext(); ++links) {
          const QString id = found.next().captured(1);
          EXPECT_NE(book->Find(id).topicId, "") << topic.id.toStdString() << id.toStdString();
        }
      }
    }
    EXPECT_GT(links, 0);
  }
}

TEST_F(HelpFilesTest, EverythingHasATitleAndAText) {
  for (const HelpBook* book : {&english, &greek}) {
    for (const HelpChapter& chapter : book->Chapters()) {
      EXPECT_NE(chapter.title, "") << chapter.id.toStdString();
      for (const HelpTopic& topic : chapter.topics) {
        EXPECT_NE(topic.title, "") << topic.id.toStdString();
        EXPECT_NE(topic.text, "") << topic.id.toStdString();
      }
    }
    for (const HelpControl& control : book->Controls()) {
      EXPECT_TRUE(control.html.startsWith("<p><b>")) << control.names.first().toStdString();
      EXPECT_GT(control.html.size(), 40) << control.names.first().toStdString();
    }
  }
}

TEST_F(HelpFilesTest, ExplainEveryControlAndMenuEntryOfTheMainWindow) {
  fake::FakeFileSystem files;
  QtMainWindow frmMain(files);
  EXPECT_GT(NamesToExplain(frmMain.form()).size(), 60);
  EXPECT_EQ(NotExplained(english, frmMain.form()), "");
  EXPECT_EQ(NotExplained(greek, frmMain.form()), "");
}

TEST_F(HelpFilesTest, ExplainEveryControlOfTheMacroEditor) {
  fake::FakeFileSystem files;
  QtMacroWindow frmMacros(nullptr, files);
  EXPECT_EQ(NamesToExplain(frmMacros.form()).size(), 14);
  EXPECT_EQ(NotExplained(english, frmMacros.form()), "");
  EXPECT_EQ(NotExplained(greek, frmMacros.form()), "");
}

TEST_F(HelpFilesTest, ExplainEveryControlOfTheWindowsOfPrivateConversations) {
  const QtPeopleWindow frmPeople(nullptr);
  const QtVerifyWindow frmVerify(nullptr);
  EXPECT_EQ(NamesToExplain(frmPeople.form()).size(), 9);
  EXPECT_EQ(NamesToExplain(frmVerify.form()).size(), 7);
  for (const HelpBook* book : {&english, &greek}) {
    EXPECT_EQ(NotExplained(*book, frmPeople.form()), "");
    EXPECT_EQ(NotExplained(*book, frmVerify.form()), "");
  }
}

TEST_F(HelpFilesTest, ExplainEveryControlOfTheWindowThatSaysWhoCanCall) {
  const QtReachWindow frmReach(nullptr);
  EXPECT_EQ(NamesToExplain(frmReach.form()).size(), 13);
  EXPECT_EQ(NotExplained(english, frmReach.form()), "");
  EXPECT_EQ(NotExplained(greek, frmReach.form()), "");
}

TEST_F(HelpFilesTest, ExplainEveryControlOfTheHelpWindow) {
  const HelpForm form(english);
  EXPECT_EQ(NamesToExplain(form).size(), 6);
  EXPECT_EQ(NotExplained(english, form), "");
  EXPECT_EQ(NotExplained(greek, form), "");
}

}  // namespace
}  // namespace verlume::qt
