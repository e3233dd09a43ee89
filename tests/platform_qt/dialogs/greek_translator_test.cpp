#include "platform_qt/dialogs/greek_translator.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QColorDialog>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include "platform/run_time_failure.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/dialogs/common_dialog.h"
#include "platform_qt/dialogs/dialogs.h"
#include "platform_qt/dialogs/modal_driver.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

// All texts that a widget shows or has read out, except what the user types or chooses from the
// disk.
QStringList TextsOf(const QWidget& box) {
  QStringList texts{box.windowTitle()};
  for (const auto* label : box.findChildren<QLabel*>()) texts.append(label->text());
  for (const auto* button : box.findChildren<QAbstractButton*>()) {
    texts << button->text() << button->toolTip() << button->accessibleName()
          << button->accessibleDescription();
  }
  for (const auto* group : box.findChildren<QGroupBox*>()) texts.append(group->title());
  for (const auto* action : box.findChildren<QAction*>()) texts.append(action->text());
  for (const auto* widget : box.findChildren<QWidget*>()) {
    texts << widget->accessibleName() << widget->accessibleDescription() << widget->toolTip();
  }
  for (const auto* header : box.findChildren<QHeaderView*>()) {
    if (header->orientation() != Qt::Horizontal || !header->model()) continue;
    for (int section = 0; section < header->count(); ++section) {
      texts.append(header->model()->headerData(section, Qt::Horizontal).toString());
    }
  }
  return texts;
}

// The texts that contain Latin letters, except those that are the same in every language.
QStringList EnglishAmong(const QStringList& texts) {
  static const QStringList kSame{"OK", "HTML:", "Alt", "Ctrl", "Unicode"};
  static const QRegularExpression kLatin(QStringLiteral("[A-Za-z]"));
  QStringList english;
  for (QString text : texts) {
    text = text.section(u'\t', 0, 0).remove(u'&');
    if (text.contains(kLatin) && !kSame.contains(text)) english.append(text);
  }
  return english;
}

class GreekTranslatorTest : public testing::Test {
 protected:
  GreekTranslatorTest() {
    EXPECT_TRUE(ShowAndWait(mainWindow));
    dialogs.SetLanguage(true);
    QFile file(folder.filePath("γράμμα.txt"));
    EXPECT_TRUE(file.open(QFile::WriteOnly));
  }
  // Opens a dialog, passes it to `look` and cancels it.
  void Look(const std::function<void()>& open, std::function<void(QDialog&)> look) {
    const ModalDriver driver([look = std::move(look)](QDialog& dialog) {
      look(dialog);
      dialog.reject();
    });
    try {
      open();
    } catch (const RunTimeFailure&) {
    }
  }
  void ExpectGreek(const std::function<void()>& open) {
    Look(open, [](QDialog& dialog) {
      const QStringList texts = TextsOf(dialog);
      EXPECT_GT(texts.join(QString()).size(), 3);
      EXPECT_EQ(EnglishAmong(texts), QStringList());
    });
  }

  QTemporaryDir folder{"/tmp/φXXXXXX"};
  QWidget mainWindow;
  QtDialogs dialogs{&mainWindow};
  QtCommonDialog common{&mainWindow};
};

TEST_F(GreekTranslatorTest, BoxesAreGreek) {
  ExpectGreek([&] { dialogs.ShowMessage(QuestionWithCancel(u"Θα;", u"Τ")); });
  ExpectGreek([&] { dialogs.AskText(u"Τι;", u"Τ", u""); });
}

TEST_F(GreekTranslatorTest, FileDialogsAreGreek) {
  FileChoice start;
  start.title = u"Φόρτωμα";
  start.filter = u"Έγγραφο|*";
  start.initialFolder = FromQt(folder.path());
  ExpectGreek([&] { common.ShowOpen(start); });
  ExpectGreek([&] { common.ShowSave(start); });
  ExpectGreek([&] { common.ChooseFolder(u"Φάκελλος", start.initialFolder, u""); });
}

TEST_F(GreekTranslatorTest, RefusalsOfFilesAreGreek) {
  EXPECT_EQ(QCoreApplication::translate("QSaveFile", "Existing file %1 is not writable"),
            "Στο αρχείο %1, που υπάρχει ήδη, δεν επιτρέπεται η εγγραφή");
}

TEST_F(GreekTranslatorTest, DescriptionsOfFilesAreGreek) {
  FileChoice start;
  start.title = u"Φόρτωμα";
  start.filter = u"Έγγραφο|*";
  start.initialFolder = FromQt(folder.path());
  Look([&] { common.ShowOpen(start); },
       [&](QDialog& dialog) {
         auto* view = dialog.findChild<QAbstractItemView*>(QStringLiteral("treeView"));
         ASSERT_NE(view, nullptr);
         const auto kind = [&] {
           return view->model()->index(0, 2, view->rootIndex()).data().toString();
         };
         EXPECT_TRUE(QTest::qWaitFor([&] { return kind() == "Αρχείο TXT"; }, 10000))
             << kind().toStdString();
       });
}

TEST_F(GreekTranslatorTest, ColorDialogIsGreek) {
  ExpectGreek([&] { common.ShowColor(0); });
}

TEST_F(GreekTranslatorTest, FontDialogIsGreek) {
  const FontChoice start{.name = u"DejaVu Sans", .size = 10};
  ExpectGreek([&] { common.ShowFont(start, 8, 11); });
  Look([&] { common.ShowFont(start, 8, 11); },
       [](QDialog& dialog) {
         const auto* systems = dialog.findChild<QComboBox*>();
         QStringList names;
         for (int row = 0; row < systems->count(); ++row) names.append(systems->itemText(row));
         EXPECT_GT(names.size(), 10);
         EXPECT_EQ(EnglishAmong(names), QStringList());
       });
}

TEST_F(GreekTranslatorTest, QuestionsOfTheFileDialogAreGreek) {
  const auto greek = [](const char* text) { return QFileDialog::tr(text); };
  for (const char* text :
       {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
        "%1\nFile not found.\nPlease verify the correct file name was given.",
        "%1\nNo file can have this name.\nPlease choose another one.",
        "%1 already exists.\nDo you want to replace it?", "Could not delete directory.",
        "'%1' is write protected.\nDo you want to delete it anyway?",
        "Are you sure you want to delete '%1'?"}) {
    EXPECT_EQ(EnglishAmong({greek(text)}), QStringList());
    EXPECT_EQ(greek(text).contains("%1"), QString(text).contains("%1")) << text;
  }
}

TEST_F(GreekTranslatorTest, QuestionBeforeReplacingIsGreek) {
  FileChoice start;
  start.title = u"Αποθήκευση";
  start.initialFolder = FromQt(folder.path());
  start.flags = dialog_flag::kOverwritePrompt;
  Look([&] { common.ShowSave(start); },
       [](QDialog& dialog) {
         const ModalDriver question([](QDialog& box) {
           const QString text = dynamic_cast<QMessageBox&>(box).text();
           EXPECT_EQ(text, "Το αρχείο γράμμα.txt υπάρχει ήδη.\nΘέλετε να αντικατασταθεί;");
           EXPECT_EQ(EnglishAmong(TextsOf(box)).filter(QRegularExpression("^(?!.*γράμμα)")),
                     QStringList());
           box.reject();
         });
         dialog.findChild<QLineEdit*>("fileNameEdit")->setText("γράμμα.txt");
         QMetaObject::invokeMethod(&dialog, "accept");
       });
}

TEST_F(GreekTranslatorTest, EditMenusAreGreek) {
  QPlainTextEdit pane;
  QLineEdit line;
  const std::unique_ptr<QMenu> ofPane(pane.createStandardContextMenu());
  const std::unique_ptr<QMenu> ofLine(line.createStandardContextMenu());
  for (const QMenu* menu : {ofPane.get(), ofLine.get()}) {
    QStringList texts;
    for (const QAction* action : menu->actions()) texts.append(action->text());
    EXPECT_GT(texts.size(), 5);
    EXPECT_EQ(EnglishAmong(texts), QStringList());
  }
}

TEST_F(GreekTranslatorTest, EnglishComesBackWithoutARestart) {
  EXPECT_EQ(QFileDialog::tr("Look in:"), "Διερεύνηση σε:");
  dialogs.SetLanguage(false);
  EXPECT_EQ(QFileDialog::tr("Look in:"), "Look in:");
}

TEST_F(GreekTranslatorTest, LeavesOtherTextsAndKeyNamesAlone) {
  EXPECT_EQ(QCoreApplication::translate("Any", "no text of Qt's"), "no text of Qt's");
  EXPECT_EQ(QCoreApplication::translate("QShortcut", "Delete"), "Delete");
}

}  // namespace
}  // namespace verlume::qt
