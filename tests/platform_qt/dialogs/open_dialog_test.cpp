// Names typed into the dialog that opens a file, and its button pressed by the mouse.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

#include "platform/run_time_failure.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/dialogs/common_dialog.h"
#include "platform_qt/dialogs/modal_driver.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class OpenDialogTest : public testing::Test {
 protected:
  OpenDialogTest() {
    EXPECT_TRUE(ShowAndWait(mainWindow));
    Write("dialogue.rtf");
    Write("notes.txt");
  }

  void Write(const char* name) const {
    QFile file(folder.filePath(QLatin1String(name)));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
  }
  std::u16string PathOf(const char* name) const {
    return PathFromQt(folder.filePath(QLatin1String(name)));
  }
  FileChoice Open() {
    FileChoice start;
    start.title = u"Load dialogue as RTF";
    start.initialFolder = FromQt(folder.path());
    start.defaultExtension = u"rtf";
    start.filter = u"Rich text format (*.rtf)|*.rtf";
    start.flags = dialog_flag::kFileMustExist | dialog_flag::kExtensionDifferent;
    return dialogs.ShowOpen(start);
  }

  QTemporaryDir folder;
  QWidget mainWindow;
  QtCommonDialog dialogs{&mainWindow};
};

// Types a name key by key, and clicks the button.
void TypeAndClick(QDialog& dialog, const QString& name) {
  auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  auto* buttons = dialog.findChild<QDialogButtonBox*>();
  ASSERT_TRUE(edit && buttons);
  QAbstractButton* open = buttons->button(QDialogButtonBox::Open);
  ASSERT_NE(open, nullptr);
  QTest::keyClicks(edit, name);
  EXPECT_TRUE(open->isEnabled()) << name.toStdString();
  QTest::mouseClick(open, Qt::LeftButton);
}

TEST_F(OpenDialogTest, TakesANameWithAnotherExtensionFromTheMouse) {
  const ModalDriver driver([](QDialog& dialog) {
    TypeAndClick(dialog, "notes.txt");
    if (dialog.isVisible()) dialog.reject();
  });
  const FileChoice choice = Open();
  EXPECT_EQ(choice.fileName, PathOf("notes.txt"));
  EXPECT_NE(choice.flags & dialog_flag::kExtensionDifferent, 0u);
}

TEST_F(OpenDialogTest, TellsTheMouseOfAMissingFile) {
  QString told;
  const ModalDriver driver([&told](QDialog& dialog) {
    const ModalDriver refusal([&told](QDialog& box) {
      told = dynamic_cast<QMessageBox&>(box).text();
      box.reject();
    });
    TypeAndClick(dialog, "missing");
    EXPECT_TRUE(dialog.isVisible());
    dialog.reject();
  });
  EXPECT_THROW(Open(), RunTimeFailure) << "cancelled";
  EXPECT_TRUE(told.contains("missing.rtf") && told.contains("File not found."))
      << told.toStdString();
}

TEST_F(OpenDialogTest, TakesAFileWithoutExtension) {
  Write("letter");
  const ModalDriver driver([](QDialog& dialog) {
    TypeAndClick(dialog, "letter");
    if (dialog.isVisible()) dialog.reject();
  });
  const FileChoice choice = Open();
  EXPECT_EQ(choice.fileName, PathOf("letter"));
  EXPECT_EQ(choice.flags & dialog_flag::kExtensionDifferent, 0u);
}

TEST_F(OpenDialogTest, PrefersTheFileWithTheDefaultExtension) {
  Write("dialogue");
  const ModalDriver driver([](QDialog& dialog) { TypeAndClick(dialog, "dialogue"); });
  EXPECT_EQ(Open().fileName, PathOf("dialogue.rtf"));
}

TEST_F(OpenDialogTest, DoesNotTakeAwayAnExtensionThatWasTyped) {
  Write("letter");
  const ModalDriver driver([](QDialog& dialog) {
    const ModalDriver refusal([](QDialog& box) { box.reject(); });
    TypeAndClick(dialog, "letter.rtf");
    EXPECT_TRUE(dialog.isVisible());
    dialog.reject();
  });
  EXPECT_THROW(Open(), RunTimeFailure) << "cancelled";
}

}  // namespace
}  // namespace verlume::qt
