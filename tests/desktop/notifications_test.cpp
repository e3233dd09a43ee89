#include <gmock/gmock.h>

#include <QDBusMessage>
#include <QElapsedTimer>
#include <QTest>

#include "desktop/notification_server.h"
#include "platform_qt/attention/attention.h"
#include "platform_qt/world.h"

namespace verlume::qt {
namespace {

// Hears how many unread lines the program tells docks.
class Dock : public QObject {
  Q_OBJECT

 public:
  Dock() {
    QDBusConnection::sessionBus().connect(
        QString(), QString(), QStringLiteral("com.canonical.Unity.LauncherEntry"),
        QStringLiteral("Update"), this, SLOT(OnUpdate(QString, QVariantMap)));
  }

  QString program;
  QVariantMap properties;

 private slots:
  void OnUpdate(const QString& of, const QVariantMap& now) {
    program = of;
    properties = now;
  }
};

class NotificationsTest : public testing::Test {
 protected:
  struct NamedWindow : QWidget {
    NamedWindow() {
      setWindowTitle("Verlume");
      QPixmap picture(32, 32);
      picture.fill(Qt::blue);
      setWindowIcon(picture);
    }
  };
  // The window has been shown, and the user has gone to another one.
  void GoAway() {
    window.show();
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&other));
    other.activateWindow();
    ASSERT_TRUE(WaitFor([&] { return other.isActiveWindow(); }));
  }

  NotificationServer server;
  NamedWindow window;
  QWidget other;
  QtAttention attention{&window};
};

TEST_F(NotificationsTest, IsShownAsTheDesktopWantsIt) {
  EXPECT_TRUE(attention.CanNotify());
  attention.Notify({u"Bob <b>", u"1 < 2 & <img src='http://192.0.2.7/'>", false});
  ASSERT_TRUE(WaitFor([&] { return server.shown.size() == 1; }));
  const NotificationServer::Shown& shown = server.shown.front();
  EXPECT_EQ(shown.program, "Verlume");
  EXPECT_EQ(shown.title, "Bob <b>") << "titles are never markup";
  EXPECT_EQ(shown.text, QString("1 < 2 & <img src='http://192.0.2.7/'>").toHtmlEscaped());
  EXPECT_EQ(shown.actions.value(0), "default");
  EXPECT_EQ(shown.hints.value("desktop-entry").toString(), "verlume");
  EXPECT_TRUE(shown.hints.value("suppress-sound").toBool());
  EXPECT_FALSE(shown.hints.contains("sound-name"));
}

TEST_F(NotificationsTest, WhereTextIsNoMarkupItStaysAsItIs) {
  server.capabilities = {"body", "sound"};
  attention.Notify({u"Bob", u"1 < 2 & 3", true});
  ASSERT_TRUE(WaitFor([&] { return server.shown.size() == 1; }));
  EXPECT_EQ(server.shown.front().text, "1 < 2 & 3");
  EXPECT_TRUE(server.shown.front().actions.isEmpty());
  EXPECT_EQ(server.shown.front().hints.value("sound-name").toString(), "message-new-instant");
}

TEST_F(NotificationsTest, OneTakesThePlaceOfTheOther) {
  attention.Notify({u"Bob", u"one", false});
  ASSERT_TRUE(WaitFor([&] { return server.shown.size() == 1; }));
  attention.Notify({u"Bob", u"two", false});
  attention.Notify({u"Bob", u"three", false});
  attention.Notify({u"Bob", u"four", false});
  ASSERT_TRUE(WaitFor([&] { return server.shown.back().text == "four"; }));
  const uint id = server.shown.front().id;
  for (const auto& shown : server.shown) EXPECT_EQ(shown.id, id);
  EXPECT_LE(server.shown.size(), 3u) << "of what comes meanwhile the last one is enough";
}

TEST_F(NotificationsTest, AClickBringsTheWindow) {
  GoAway();
  attention.Notify({u"Bob", u"one", false});
  ASSERT_TRUE(WaitFor([&] { return server.shown.size() == 1; }));
  server.Click(server.shown.front().id + 7);
  EXPECT_TRUE(WaitFor([&] {
    server.Click(server.shown.front().id);
    return window.isActiveWindow();
  }));
}

TEST_F(NotificationsTest, WithdrawnOnesDisappear) {
  attention.Withdraw();
  attention.Notify({u"Bob", u"one", false});
  attention.Withdraw();
  attention.Notify({u"Bob", u"two", false});
  ASSERT_TRUE(WaitFor([&] { return !server.shown.empty(); }));
  attention.Withdraw();
  EXPECT_TRUE(WaitFor([&] { return !server.closed.empty(); }));
  EXPECT_EQ(server.closed.back(), server.shown.back().id);
}

TEST_F(NotificationsTest, ADesktopThatHangsHoldsNothingUp) {
  server.Hang();
  QElapsedTimer clock;
  clock.start();
  attention.Notify({u"Bob", u"one", false});
  ASSERT_TRUE(WaitFor([&] { return server.shown.size() == 1; }));
  for (int line = 0; line < 1000; ++line) attention.Notify({u"Bob", u"more", false});
  attention.Notify({u"Bob", u"last", false});
  EXPECT_LT(clock.elapsed(), 5000) << "a call that waits takes 25 seconds";
  EXPECT_EQ(server.shown.size(), 1u);
  server.GoOn();
  ASSERT_TRUE(WaitFor([&] { return server.shown.size() == 2; }));
  EXPECT_EQ(server.shown.back().text, "last");
}

TEST_F(NotificationsTest, TheCountIsOnTheIconAndInTheDock) {
  Dock dock;
  const QImage plain = window.windowIcon().pixmap(32).toImage();
  attention.SetCount(12);
  EXPECT_NE(window.windowIcon().pixmap(32).toImage(), plain);
  EXPECT_EQ(window.windowTitle(), "Verlume");
  ASSERT_TRUE(WaitFor([&] { return dock.properties.value("count").toInt() == 12; }));
  EXPECT_EQ(dock.program, "application://verlume.desktop");
  EXPECT_TRUE(dock.properties.value("count-visible").toBool());
  attention.SetCount(0);
  EXPECT_EQ(window.windowIcon().pixmap(32).toImage(), plain);
  EXPECT_TRUE(WaitFor([&] { return !dock.properties.value("count-visible").toBool(); }));
}

TEST_F(NotificationsTest, TheProgramIsToldWhenTheUserComesBack) {
  int timesBack = 0;
  attention.onUserBack = [&] { ++timesBack; };
  window.show();
  window.activateWindow();
  EXPECT_TRUE(WaitFor([&] { return timesBack > 0; }));
}

TEST(NotificationsTestWithoutServer, NothingHappens) {
  QWidget window;
  QtAttention attention(&window);
  attention.Notify({u"Bob", u"one", true});
  attention.Notify({u"Bob", u"two", true});
  attention.Withdraw();
  // A server that comes later is asked then.
  NotificationServer server;
  ASSERT_TRUE(WaitFor([&] {
    attention.Notify({u"Bob", u"three", false});
    return !server.shown.empty();
  }));
  EXPECT_EQ(server.shown.back().text, "three");
}

}  // namespace
}  // namespace verlume::qt

#include "notifications_test.moc"
