// What the main window says has the room it needs at its smallest size, in both languages.
#include <gtest/gtest.h>

#include <QLayout>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/controls/controls_label.h"
#include "platform_qt/windows/main_window.h"
#include "shell/language_texts.h"

namespace verlume::qt {
namespace {

class MainWindowRoomTest : public testing::TestWithParam<bool> {
 protected:
  // Values as long as they are in everyday use.
  void FillIn() {
    for (const auto& [set, text] : PanelTexts(view_)) set(text.In(GetParam()));
    for (Label* address : {&view_.lblLocalIP, &view_.lblRemoteIP}) {
      address->SetCaption(u"192.168.178.200");
    }
    for (Label* port : {&view_.lblLocalPort, &view_.lblRemotePort}) port->SetCaption(u"32767");
    for (Label* time : {&view_.lblCurrentDateTime, &view_.lblChatStartDateTime}) {
      time->SetCaption(u"Wednesday, 30 September 2026 - 23:23:23");
    }
    for (Label* count : {&view_.lblBytesSent, &view_.lblBytesReceived}) {
      count->SetCaption(u"100,000,000");
    }
    view_.lblChatDuration.SetCaption(u"23:59:59");
    view_.lblWaiting.SetCaption(GetParam() ? u"200 σε αναμονή" : u"200 waiting");
  }

  fake::FakeFileSystem files_;
  QtMainWindow frmMain_{files_};
  MainForm& form_ = frmMain_.form();
  MainWindow& view_ = frmMain_.View();
};

TEST_P(MainWindowRoomTest, NoLabelIsCut) {
  view_.window.Show();
  FillIn();
  form_.resize(640, 480);
  ASSERT_TRUE(QTest::qWaitFor([this] { return form_.size() == QSize(640, 480); }, 10000));
  form_.centralWidget()->layout()->activate();
  for (const auto* label : form_.findChildren<ElidedLabel*>()) {
    if (!label->isVisible() || label->wordWrap()) continue;
    EXPECT_LE(label->sizeHint().width(), label->contentsRect().width())
        << label->objectName().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowRoomTest, testing::Bool());

}  // namespace
}  // namespace verlume::qt
