// Who is typing when a box appears that nobody asked for neither answers it nor loses a key.
#include <gtest/gtest.h>

#include <QProcess>
#include <QTcpSocket>

#include "copy.h"

namespace verlume::e2e {
namespace {

constexpr int kMarkerLength = 69;

struct Typist {
  const char* name;
  bool isGreek;
  const char* layout;  // of the keyboard
  QStringList keys;    // as xdotool names them
  QString line;        // what they type
  QString callTitle;
  int keysInASecond;
};

std::ostream& operator<<(std::ostream& out, const Typist& typist) {
  return out << typist.name;
}

const QStringList kEnglishKeys = {"y",     "e",      "s",     "space", "n", "o",
                                  "space", "Return", "y",     "space", "n", "space",
                                  "o",     "k",      "space", "a",     "l", "l"};
const QString kEnglishLine = "yes no y n ok all";
const QStringList kGreekKeys = {
    "Greek_nu",      "Greek_alpha", "Greek_iota", "space",       "dead_acute", "Greek_omicron",
    "Greek_chi",     "Greek_iota",  "space",      "Return",      "Greek_nu",   "space",
    "Greek_omicron", "space",       "dead_acute", "Greek_alpha", "Greek_nu"};
const QString kGreekLine = "ναι όχι ν ο άν";

const Typist kTypists[] = {
    {"EnglishSlow", false, "us", kEnglishKeys, kEnglishLine, "Incoming call", 5},
    {"EnglishFast", false, "us", kEnglishKeys, kEnglishLine, "Incoming call", 15},
    {"GreekSlow", true, "gr", kGreekKeys, kGreekLine, "Εισερχόμενη κλήση", 5},
    {"GreekFast", true, "gr", kGreekKeys, kGreekLine, "Εισερχόμενη κλήση", 15},
};

class Typing : public testing::TestWithParam<Typist> {
 protected:
  ~Typing() override { UseLayout("us"); }

  static void UseLayout(const QString& layout) { QProcess::execute("setxkbmap", {layout}); }
  // Types the keys of the typist three times over, and calls `during` after the first of them.
  void Type(const std::function<void()>& during) {
    UseLayout(GetParam().layout);
    QStringList keys;
    for (int i = 0; i < kRounds; ++i) keys += GetParam().keys;
    // xdotool waits for half of the delay after the press and after the release of a key.
    const int delay = 2 * 1000 / GetParam().keysInASecond;
    constexpr qsizetype kBefore = 5;  // before the first Enter
    Press(keys.first(kBefore), delay);
    QProcess typing;
    typing.start("xdotool", Arguments(keys.sliced(kBefore), delay));
    during();
    EXPECT_TRUE(typing.waitForFinished(60000));
    UseLayout("us");
  }
  QString Typed() const { return GetParam().line.repeated(kRounds); }

  void Call(QTcpSocket& peer) {
    ASSERT_TRUE(WaitUntil([&] {
      peer.connectToHost("127.0.0.1", static_cast<quint16>(port.toInt()));
      return peer.waitForConnected(500);
    }));
  }
  // What the program sends when the call is taken; empty if nothing came.
  static QByteArray Greeting(QTcpSocket& peer) {
    WaitUntil([&] { return peer.bytesAvailable() > kMarkerLength; });
    return peer.readAll();
  }
  // Whether the pane holds the line; sends it to find out.
  bool PaneHolds(const QString& line) {
    copy.PressKeys("Return");
    return WaitUntil([&] { return copy.Dialogue() == "<Ann>" + line; });
  }

  Copy copy{"Ann", GetParam().isGreek};
  const QString port = NextPort();

 private:
  static constexpr int kRounds = 3;
  static QStringList Arguments(const QStringList& keys, int delay) {
    return QStringList{"key", "--delay", QString::number(delay)} + keys;
  }
  static void Press(const QStringList& keys, int delay) {
    QProcess::execute("xdotool", Arguments(keys, delay));
  }
};

TEST_P(Typing, ACallIsNotAnsweredByWhatIsTyped) {
  copy.TypeLine("/WAIT " + port);
  QTcpSocket peer;
  Type([&] { Call(peer); });
  EXPECT_TRUE(copy.HasWindow(GetParam().callTitle));
  EXPECT_FALSE(peer.waitForReadyRead(0)) << "accepted";
  EXPECT_EQ(peer.state(), QAbstractSocket::ConnectedState) << "rejected";
  ASSERT_TRUE(copy.AnswerBox(GetParam().callTitle, "Escape"));
  EXPECT_TRUE(PaneHolds(Typed())) << copy.Dialogue().toStdString();
}

TEST_P(Typing, AnErrorThatAPeerCausesEndsNothing) {
  copy.TypeLine("/WAIT " + port);
  QTcpSocket peer;
  Call(peer);
  ASSERT_TRUE(copy.AnswerBox(GetParam().callTitle, "Return"));
  const QByteArray marker = Greeting(peer).left(kMarkerLength);
  peer.write(marker + QByteArray("CBob\0", 5));
  ASSERT_TRUE(WaitUntil([&] { return !copy.Log("Bob").isEmpty(); }));
  Type([&] {
    peer.write(marker + "NX");
    peer.waitForBytesWritten(5000);
  });
  ASSERT_FALSE(copy.HasEnded());
  const QString title = "Verlume, 209.";
  EXPECT_TRUE(copy.HasWindow(title));
  ASSERT_TRUE(copy.AnswerBox(title, "Escape"));
  EXPECT_TRUE(PaneHolds(Typed())) << copy.Dialogue().toStdString();
}

INSTANTIATE_TEST_SUITE_P(, Typing, testing::ValuesIn(kTypists),
                         [](const auto& typist) { return std::string(typist.param.name); });

}  // namespace
}  // namespace verlume::e2e
