// Two sockets that send to each other as fast as they can.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>
#include <chrono>
#include <random>

#include "platform/protocol_marker.h"
#include "platform/socket_contract.h"
#include "platform_qt/net/socket.h"

namespace verlume::qt {
namespace {

constexpr std::chrono::milliseconds kLimit = std::chrono::seconds(30);

// What the program sends: chat lines, action lines, nicknames; and short texts that other programs
// may send. Each contains its number.
std::vector<std::u16string> MixedMessages(std::uint64_t seed, std::size_t count) {
  std::mt19937_64 random(seed);
  // In the form of the protocol marker.
  const std::u16string marker = u'\0' + std::u16string(kMarkerTextLength, u'm') + u'\0';
  std::vector<std::u16string> messages;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t size = i == count / 2 ? 64 << 10 : random() % (random() % 5 ? 200 : 5000);
    const std::string number = std::to_string(i);
    std::u16string text(number.begin(), number.end());
    text.append(size, u'x');
    const std::u16string rtf = u"{\\rtf1\\ansi {\\b " + text + u"}}";
    switch (random() % 4) {
      case 0:
        messages.push_back(rtf);
        break;
      case 1:
        messages.push_back(marker + u'M' + rtf);
        break;
      case 2:
        messages.push_back(marker + u'N' + text.substr(0, 32) + u'\0');
        break;
      default:
        messages.push_back(text.substr(0, 1 + random() % 3));
    }
  }
  return messages;
}

std::size_t FirstDifference(const std::vector<std::u16string>& a,
                            const std::vector<std::u16string>& b) {
  return static_cast<std::size_t>(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first -
                                  a.begin());
}

class QtSocketConversationTest : public testing::Test {
 protected:
  void Connect(std::u16string_view host) {
    callee.answer = [this](std::int64_t id) {
      callee.socket.Close();
      callee.socket.Accept(id);
    };
    callee.socket.SetLocalPort(0);
    callee.socket.Listen();
    caller.socket.SetRemoteHost(host);
    caller.socket.SetRemotePort(callee.socket.LocalPort());
    caller.socket.Connect();
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return callee.socket.State() == SocketState::Connected && caller.connects == 1; },
        static_cast<int>(kLimit.count())));
  }

  void ExpectEachMessageByItself() {
    const auto toCallee = MixedMessages(1, 150);
    const auto toCaller = MixedMessages(2, 150);
    for (std::size_t i = 0; i < toCallee.size(); ++i) {
      caller.socket.SendData(toCallee[i], TextKind::Line);
      callee.socket.SendData(toCaller[i], TextKind::Line);
    }
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          return callee.texts.size() >= toCallee.size() && caller.texts.size() >= toCaller.size();
        },
        static_cast<int>(kLimit.count())));
    EXPECT_EQ(callee.texts.size(), toCallee.size());
    EXPECT_EQ(caller.texts.size(), toCaller.size());
    EXPECT_EQ(FirstDifference(callee.texts, toCallee), toCallee.size());
    EXPECT_EQ(FirstDifference(caller.texts, toCaller), toCaller.size());
  }

 private:
  QtSocket calleesSocket_;
  QtSocket callersSocket_;

 protected:
  SocketUser callee{calleesSocket_};
  SocketUser caller{callersSocket_};
};

TEST_F(QtSocketConversationTest, EachMessageArrivesByItself) {
  ASSERT_NO_FATAL_FAILURE(Connect(u"127.0.0.1"));
  ExpectEachMessageByItself();
}

TEST_F(QtSocketConversationTest, EachMessageArrivesByItselfOverIPv6) {
  ASSERT_NO_FATAL_FAILURE(Connect(u"::1"));
  EXPECT_EQ(caller.socket.RemoteHostIP(), u"::1");
  EXPECT_EQ(callee.socket.RemoteHostIP(), u"::1");
  ExpectEachMessageByItself();
}

}  // namespace
}  // namespace verlume::qt
