// The card on the empty dialogue pane, as widgets.
#include "platform_qt/windows/welcome_card.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"
#include "shell/welcome_card.h"

namespace verlume::qt {
namespace {

class QtWelcomeCardTest : public testing::Test {
 protected:
  QtWelcomeCardTest() {
    for (const auto& [set, text] : WelcomeCardTexts(card)) set(text.greek);
    card.lblCard.SetCaption(kLongText);
    card.lblCardAddress.SetCaption(u"Η διεύθυνσή σας: 192.168.100.200, θύρα 32767");
    card.fraCard.SetVisible(true);
    view.window.Show();
    form.activateWindow();
    EXPECT_TRUE(WaitForFocus(form));
    view.rtbCommands.SetFocus();
  }
  // The longest text that the card shows.
  static constexpr std::u16string_view kLongText =
      u"Ο υπολογιστής ena.makry.onoma.example δεν απάντησε. Ίσως είναι κλειστός ή ένα τείχος "
      u"προστασίας σταματά τις κλήσεις στη θύρα 32767. Ελέγξτε τη διεύθυνση και ζητήστε από την "
      u"άλλη πλευρά να επιτρέψει την κλήση.";

  void Resize(QSize size) {
    form.resize(size);
    QApplication::processEvents();
  }
  QRect PaneOnForm() { return form.findChild<QWidget*>("rtbData")->geometry(); }
  QPushButton* Named(const char* name) { return frame->findChild<QPushButton*>(name); }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  WelcomeCard& card = view.welcomeCard;
  QWidget* frame = form.findChild<QWidget*>("fraCard");
};

TEST_F(QtWelcomeCardTest, FitsIntoTheSmallestWindowWithRoomAroundIt) {
  Resize(QSize(640, 480));
  ASSERT_TRUE(frame->isVisible());
  const QRect room = PaneOnForm().adjusted(14, 14, -14, -14);
  EXPECT_TRUE(room.contains(frame->geometry()));
  for (const QWidget* child : frame->findChildren<QWidget*>()) {
    EXPECT_TRUE(frame->rect().contains(child->geometry())) << child->objectName().toStdString();
  }
  for (const auto* button : frame->findChildren<QPushButton*>()) {
    EXPECT_GE(button->width(), button->sizeHint().width());
  }
  const auto* text = frame->findChild<QLabel*>("lblCard");
  EXPECT_GE(text->height(), text->heightForWidth(text->width())) << "no line of it is cut";
}

TEST_F(QtWelcomeCardTest, StaysInTheMiddleOfThePane) {
  for (const QSize size : {QSize(700, 500), QSize(1100, 800)}) {
    Resize(size);
    const QPoint off = frame->geometry().center() - PaneOnForm().center();
    EXPECT_LE(off.manhattanLength(), 2);
  }
}

TEST_F(QtWelcomeCardTest, HidesWhereThePaneIsTooSmallAndComesBack) {
  QWidget* pane = form.findChild<QWidget*>("rtbData");
  const QRect place = pane->geometry();
  pane->setGeometry(place.left(), place.top(), place.width(), 90);
  EXPECT_FALSE(frame->isVisible());
  EXPECT_TRUE(card.fraCard.Visible()) << "it is still wanted";
  pane->setGeometry(place);
  EXPECT_TRUE(frame->isVisible());
}

TEST_F(QtWelcomeCardTest, TakesNoFocusButTabComesToItsButtonsAfterTheCommandPane) {
  QTest::mouseClick(Named("cmdCardHelp"), Qt::LeftButton);
  QWidget* pane = form.findChild<QWidget*>("rtbCommands");
  EXPECT_EQ(form.focusWidget(), pane);
  QStringList order;
  for (QWidget* next = pane->nextInFocusChain(); next != pane; next = next->nextInFocusChain()) {
    if (next->objectName().startsWith("cmdCard")) order << next->objectName();
    EXPECT_TRUE(next->objectName() != "rtbData" || order.isEmpty());
  }
  EXPECT_EQ(order, (QStringList{"cmdCardWait", "cmdCardCall", "cmdCardHelp", "cmdCardCopy"}));
}

TEST_F(QtWelcomeCardTest, CopyPutsTheAddressOnTheClipboard) {
  card.cmdCardCopy.SetTextToCopy(u"192.0.2.1:4000");
  QTest::mouseClick(Named("cmdCardCopy"), Qt::LeftButton);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "192.0.2.1:4000");
}

TEST_F(QtWelcomeCardTest, IsAGroupWithANameAndThePaneKeepsItsRole) {
  const QAccessibleInterface* group = QAccessible::queryAccessibleInterface(frame);
  EXPECT_EQ(group->role(), QAccessible::Grouping);
  EXPECT_EQ(group->text(QAccessible::Name), "Πρώτα βήματα");
  const auto* pane = QAccessible::queryAccessibleInterface(form.findChild<QWidget*>("rtbData"));
  EXPECT_EQ(pane->role(), QAccessible::EditableText);
}

TEST_F(QtWelcomeCardTest, ItsTextsAreNoMarkup) {
  card.lblCard.SetCaption(u"<b>bold</b>");
  EXPECT_EQ(frame->findChild<QLabel*>("lblCard")->textFormat(), Qt::PlainText);
  EXPECT_EQ(card.lblCard.Caption(), u"<b>bold</b>");
}

}  // namespace
}  // namespace verlume::qt
