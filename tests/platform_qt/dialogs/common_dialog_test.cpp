#include "platform_qt/dialogs/common_dialog.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QColorDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

#include "platform/run_time_failure.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/dialogs/common_dialog_files.h"
#include "platform_qt/dialogs/dialogs.h"
#include "platform_qt/dialogs/modal_driver.h"
#include "platform_qt/system/unprivileged.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class QtCommonDialogTest : public testing::Test {
 protected:
  QtCommonDialogTest() {
    EXPECT_TRUE(ShowAndWait(mainWindow));
    Write("dialogue.rtf");
    Write("notes.txt");
    QDir(folder.path()).mkdir("inner");
  }

  void Write(const char* name) {
    QFile file(folder.filePath(QLatin1String(name)));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
  }
  // Read-only for everybody but administrators; everybody may read the folder.
  void ForbidWriting(const char* name) {
    ASSERT_TRUE(QFile::setPermissions(folder.filePath(QLatin1String(name)), kReadable));
    ASSERT_TRUE(QFile::setPermissions(folder.path(), kReadable | kSearchable));
  }
  static constexpr QFile::Permissions kReadable =
      QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
  static constexpr QFile::Permissions kSearchable =
      QFile::WriteOwner | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
  std::u16string PathOf(const char* name) {
    return PathFromQt(folder.filePath(QLatin1String(name)));
  }
  FileChoice Start(std::uint32_t flags) {
    FileChoice start;
    start.title = u"Load dialogue as RTF";
    start.initialFolder = FromQt(folder.path());
    start.defaultExtension = u"rtf";
    start.filter = u"Rich text format (*.rtf)|*.rtf";
    start.flags = flags;
    return start;
  }
  // Types a name into a file dialog and presses its button.
  static void Type(QDialog& dialog, const QString& name) {
    auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(edit, nullptr);
    edit->setText(name);
    QMetaObject::invokeMethod(&dialog, "accept");
  }
  template <class Act>
  static FailureNumber FailureOf(Act act) {
    try {
      act();
    } catch (const RunTimeFailure& failure) {
      return failure.number;
    }
    ADD_FAILURE() << "nothing was thrown";
    return FailureNumber::InternalError;
  }

  QTemporaryDir folder;
  QWidget mainWindow;
  QtCommonDialog dialogs{&mainWindow};
};

TEST_F(QtCommonDialogTest, FiltersBecomeQts) {
  EXPECT_EQ(NameFilters(u"Rich text format (*.rtf)|*.rtf"),
            QStringList{"Rich text format (*.rtf)"});
  EXPECT_EQ(NameFilters(u"Text document (*.txt)|*.txt|"), QStringList{"Text document (*.txt)"});
  EXPECT_EQ(NameFilters(u"Texts|*.txt;*.rtf|All|*"),
            (QStringList{"Texts (*.txt *.rtf)", "All (*)"}));
  EXPECT_EQ(NameFilters(u"*.*"), QStringList{"*.*"});
  EXPECT_EQ(NameFilters(u""), QStringList());
}

TEST_F(QtCommonDialogTest, ExtensionsAreComparedInAnyLetterCase) {
  EXPECT_FALSE(HasOtherExtension("/a/b.RTF", "rtf"));
  EXPECT_TRUE(HasOtherExtension("/a/b.txt", "rtf"));
  EXPECT_TRUE(HasOtherExtension("/a/b", "rtf"));
  EXPECT_FALSE(HasOtherExtension("/a/b.txt", ""));
}

TEST_F(QtCommonDialogTest, OpenStartsAsTold) {
  const ModalDriver driver([this](QDialog& dialog) {
    auto& files = dynamic_cast<QFileDialog&>(dialog);
    EXPECT_EQ(files.windowTitle(), "Load dialogue as RTF");
    EXPECT_EQ(files.directory().path(), folder.path());
    EXPECT_EQ(files.nameFilters(), QStringList{"Rich text format (*.rtf)"});
    EXPECT_EQ(files.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_TRUE(files.testOption(QFileDialog::DontUseNativeDialog));
    files.reject();
  });
  EXPECT_EQ(FailureOf([this] { dialogs.ShowOpen(Start(0)); }), FailureNumber::Cancelled);
}

TEST_F(QtCommonDialogTest, OpenReturnsTheFullPath) {
  const ModalDriver driver([](QDialog& dialog) { Type(dialog, "dialogue.rtf"); });
  const FileChoice choice =
      dialogs.ShowOpen(Start(dialog_flag::kFileMustExist | dialog_flag::kExtensionDifferent));
  EXPECT_EQ(choice.fileName, PathOf("dialogue.rtf"));
  EXPECT_EQ(choice.flags & dialog_flag::kExtensionDifferent, 0u);
}

TEST_F(QtCommonDialogTest, OpenAddsTheDefaultExtension) {
  const ModalDriver driver([](QDialog& dialog) { Type(dialog, "dialogue"); });
  EXPECT_EQ(dialogs.ShowOpen(Start(dialog_flag::kFileMustExist)).fileName, PathOf("dialogue.rtf"));
}

TEST_F(QtCommonDialogTest, AnotherExtensionIsToldByAFlag) {
  const ModalDriver driver([](QDialog& dialog) { Type(dialog, "notes.txt"); });
  const FileChoice choice = dialogs.ShowOpen(Start(dialog_flag::kFileMustExist));
  EXPECT_EQ(choice.fileName, PathOf("notes.txt"));
  EXPECT_NE(choice.flags & dialog_flag::kExtensionDifferent, 0u);
}

TEST_F(QtCommonDialogTest, OpenRefusesAFileThatMustExist) {
  const ModalDriver driver([](QDialog& dialog) {
    const ModalDriver refusal([](QDialog& box) { box.reject(); });
    Type(dialog, "missing.rtf");
    EXPECT_TRUE(dialog.isVisible());
    dialog.reject();
  });
  EXPECT_EQ(FailureOf([this] { dialogs.ShowOpen(Start(dialog_flag::kFileMustExist)); }),
            FailureNumber::Cancelled);
}

TEST_F(QtCommonDialogTest, SaveProposesTheNameWithItsExtension) {
  FileChoice start = Start(dialog_flag::kOverwritePrompt);
  start.fileName = u"ann.lee";
  const ModalDriver driver([](QDialog& dialog) {
    auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    EXPECT_EQ(edit->text(), "ann.lee.rtf");
    EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).acceptMode(), QFileDialog::AcceptSave);
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  const FileChoice choice = dialogs.ShowSave(start);
  EXPECT_EQ(choice.fileName, PathOf("ann.lee.rtf"));
  EXPECT_EQ(choice.flags & dialog_flag::kExtensionDifferent, 0u);
}

TEST_F(QtCommonDialogTest, SaveAsksBeforeItReplaces) {
  const ModalDriver driver([](QDialog& dialog) {
    {
      const ModalDriver no(
          [](QDialog& box) { dynamic_cast<QMessageBox&>(box).button(QMessageBox::No)->click(); });
      Type(dialog, "dialogue.rtf");
    }
    EXPECT_TRUE(dialog.isVisible());
    const ModalDriver yes(
        [](QDialog& box) { dynamic_cast<QMessageBox&>(box).button(QMessageBox::Yes)->click(); });
    Type(dialog, "dialogue.rtf");
  });
  EXPECT_EQ(dialogs.ShowSave(Start(dialog_flag::kOverwritePrompt)).fileName,
            PathOf("dialogue.rtf"));
}

TEST_F(QtCommonDialogTest, SaveWithoutThePromptAsksNothing) {
  const ModalDriver driver([](QDialog& dialog) { Type(dialog, "dialogue.rtf"); });
  EXPECT_EQ(dialogs.ShowSave(Start(0)).fileName, PathOf("dialogue.rtf"));
}

TEST_F(QtCommonDialogTest, SaveRefusesAFolderThatMustExist) {
  const ModalDriver driver([this](QDialog& dialog) {
    {
      const ModalDriver refusal([](QDialog& box) {
        EXPECT_NE(dynamic_cast<QMessageBox&>(box).text().indexOf("nowhere"), -1);
        box.reject();
      });
      Type(dialog, folder.path() + "/nowhere/x.rtf");
    }
    EXPECT_TRUE(dialog.isVisible());
    Type(dialog, folder.path() + "/inner/x.rtf");
  });
  EXPECT_EQ(dialogs.ShowSave(Start(dialog_flag::kPathMustExist)).fileName, PathOf("inner/x.rtf"));
}

TEST_F(QtCommonDialogTest, SaveRefusesANameThatNoFileCanHave) {
  const QString name = QStringLiteral("a\0b.rtf");
  const ModalDriver driver([&](QDialog& dialog) {
    {
      const ModalDriver refusal([](QDialog& box) {
        EXPECT_TRUE(dynamic_cast<QMessageBox&>(box).text().endsWith(
            "\nNo file can have this name.\nPlease choose another one."));
        box.reject();
      });
      Type(dialog, name);
    }
    EXPECT_TRUE(dialog.isVisible());
    Type(dialog, "possible.rtf");
  });
  EXPECT_EQ(dialogs.ShowSave(Start(dialog_flag::kPathMustExist)).fileName, PathOf("possible.rtf"));
}

TEST_F(QtCommonDialogTest, SaveRefusesAFileThatMayNotBeWritten) {
  ForbidWriting("dialogue.rtf");
  const Unprivileged user;
  const ModalDriver driver([this](QDialog& dialog) {
    {
      const ModalDriver refusal([this](QDialog& box) {
        EXPECT_EQ(dynamic_cast<QMessageBox&>(box).text(),
                  "Existing file " + ToQt(PathOf("dialogue.rtf")) + " is not writable");
        box.reject();
      });
      Type(dialog, "dialogue.rtf");
    }
    EXPECT_TRUE(dialog.isVisible());
    dialog.reject();
  });
  const std::uint32_t flags = dialog_flag::kOverwritePrompt | dialog_flag::kNoReadOnlyReturn;
  EXPECT_EQ(FailureOf([&] { dialogs.ShowSave(Start(flags)); }), FailureNumber::Cancelled);
}

TEST_F(QtCommonDialogTest, SaveWithoutTheFlagReturnsAFileThatMayNotBeWritten) {
  ForbidWriting("dialogue.rtf");
  const Unprivileged user;
  const ModalDriver driver([](QDialog& dialog) { Type(dialog, "dialogue.rtf"); });
  EXPECT_EQ(dialogs.ShowSave(Start(0)).fileName, PathOf("dialogue.rtf"));
}

TEST_F(QtCommonDialogTest, FolderEndsInASeparator) {
  const ModalDriver driver([this](QDialog& dialog) { Type(dialog, folder.path() + "/inner"); });
  EXPECT_EQ(dialogs.ChooseFolder(u"t", FromQt(folder.path()), u""), PathOf("inner/"));
}

TEST_F(QtCommonDialogTest, RootFolderHasOneSeparator) {
  const ModalDriver driver([](QDialog& dialog) { Type(dialog, QDir::rootPath()); });
  EXPECT_EQ(dialogs.ChooseFolder(u"t", FromQt(folder.path()), u""), PathFromQt(QDir::rootPath()));
}

TEST_F(QtCommonDialogTest, FolderMustExist) {
  const ModalDriver driver([this](QDialog& dialog) {
    const ModalDriver refusal([](QDialog& box) { box.reject(); });
    Type(dialog, folder.path() + "/nowhere");
    EXPECT_TRUE(dialog.isVisible());
    dialog.reject();
  });
  EXPECT_EQ(FailureOf([this] { dialogs.ChooseFolder(u"t", FromQt(folder.path()), u""); }),
            FailureNumber::Cancelled);
}

TEST_F(QtCommonDialogTest, FolderDialogOffersToMakeAFolder) {
  const ModalDriver driver([this](QDialog& dialog) {
    auto& files = dynamic_cast<QFileDialog&>(dialog);
    EXPECT_EQ(files.windowTitle(), "Select the folder");
    EXPECT_EQ(files.directory().path(), folder.path());
    auto* button = dialog.findChild<QAbstractButton*>(QStringLiteral("newFolderButton"));
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(button->isEnabled());
    files.reject();
  });
  EXPECT_EQ(
      FailureOf([this] { dialogs.ChooseFolder(u"Select the folder", FromQt(folder.path()), u""); }),
      FailureNumber::Cancelled);
}

TEST_F(QtCommonDialogTest, ColorGoesInAndComesOut) {
  const ModalDriver driver([](QDialog& dialog) {
    auto& colors = dynamic_cast<QColorDialog&>(dialog);
    EXPECT_EQ(colors.currentColor(), QColor(0x12, 0x34, 0x56));
    colors.setCurrentColor(QColor(1, 2, 3));
    colors.accept();
  });
  EXPECT_EQ(dialogs.ShowColor(0x563412), 0x030201);
}

TEST_F(QtCommonDialogTest, CancelledColorIsACancel) {
  const ModalDriver driver([](QDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(FailureOf([this] { dialogs.ShowColor(0); }), FailureNumber::Cancelled);
}

}  // namespace
}  // namespace verlume::qt
