#include "platform_qt/dialogs/folder_suggestion.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QListView>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "platform_qt/dialogs/modal_driver.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class FolderSuggestionTest : public testing::Test {
 protected:
  FolderSuggestionTest() {
    dialog_.setOption(QFileDialog::DontUseNativeDialog);
    dialog_.setFileMode(QFileDialog::Directory);
    dialog_.setDirectory(folder_.path());
    SuggestFolder(dialog_, path_);
    EXPECT_TRUE(ShowAndWait(dialog_));
  }

  QListView& Places() { return *dialog_.findChild<QListView*>(QStringLiteral("sidebar")); }
  QModelIndex Suggestion() {
    const QAbstractItemModel& model = *Places().model();
    return model.index(model.rowCount() - 1, 0);
  }
  void Click() {
    Places().scrollTo(Suggestion());
    QTest::mouseClick(Places().viewport(), Qt::LeftButton, {},
                      Places().visualRect(Suggestion()).center());
  }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath(QStringLiteral("Documents/Verlume macros"));
  QFileDialog dialog_;
};

TEST_F(FolderSuggestionTest, StandsLastAmongThePlacesUnderItsName) {
  EXPECT_EQ(Suggestion().data().toString(), "Verlume macros");
  EXPECT_EQ(Suggestion().data(Qt::ToolTipRole).toString(), QDir::toNativeSeparators(path_));
  EXPECT_TRUE(Suggestion().flags() & Qt::ItemIsEnabled);
}

TEST_F(FolderSuggestionTest, IsNotMadeBeforeItIsChosen) {
  dialog_.reject();
  EXPECT_FALSE(QDir(path_).exists());
}

TEST_F(FolderSuggestionTest, AClickMakesItAndOpensIt) {
  Click();
  EXPECT_TRUE(QDir(path_).exists());
  EXPECT_EQ(dialog_.directory().path(), path_);
}

TEST_F(FolderSuggestionTest, EnterMakesItAndOpensIt) {
  Places().setFocus();
  Places().setCurrentIndex(Suggestion());
  EXPECT_FALSE(QDir(path_).exists());
  QTest::keyClick(&Places(), Qt::Key_Return);
  EXPECT_EQ(dialog_.directory().path(), path_);
  EXPECT_TRUE(QDir(path_).exists());
}

TEST_F(FolderSuggestionTest, ABoxSaysThatItCannotBeMade) {
  QFile inTheWay(folder_.filePath(QStringLiteral("Documents")));
  ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
  QString said;
  const ModalDriver driver([&](QDialog& box) {
    said = dynamic_cast<QMessageBox&>(box).text();
    box.accept();
  });
  Click();
  EXPECT_EQ(
      said,
      QStringLiteral("The folder %1 could not be made.").arg(QDir::toNativeSeparators(path_)));
  EXPECT_EQ(dialog_.directory().path(), folder_.path());
}

TEST_F(FolderSuggestionTest, IsNotRememberedForOtherDialogs) {
  dialog_.reject();
  EXPECT_FALSE(dialog_.sidebarUrls().contains(QUrl::fromLocalFile(path_)));
}

TEST_F(FolderSuggestionTest, ADialogMayBeLeftTwice) {
  dialog_.reject();
  dialog_.reject();
  EXPECT_FALSE(dialog_.sidebarUrls().contains(QUrl::fromLocalFile(path_)));
}

TEST(FolderInDocuments, IsThatOfTheUserByName) {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  EXPECT_EQ(FolderInDocuments(QStringLiteral("Verlume macros")), documents + "/Verlume macros");
  EXPECT_EQ(FolderInDocuments(QString()), QString());
}

}  // namespace
}  // namespace verlume::qt
