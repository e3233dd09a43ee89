// Two networks that are joined only by the relay's cable.
#include "network/relay.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>

#include <string>

#include "network/interface_setup.h"

namespace verlume::network {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kLimit = 10'000;  // ms

class RelayTest : public testing::Test {
 protected:
  RelayTest() {
    left_.Run([this] {
      AddAddress("cable", "10.77.0.1", 24);
      sender_ = OpenSocket();
      const sockaddr_in to = Address("10.77.0.2");
      Checked(::connect(sender_.Number(), reinterpret_cast<const sockaddr*>(&to), sizeof to),
              "connect");
    });
    right_.Run([this] {
      AddAddress("cable", "10.77.0.2", 24);
      receiver_ = OpenSocket();
      const sockaddr_in here = Address("10.77.0.2");
      Checked(::bind(receiver_.Number(), reinterpret_cast<const sockaddr*>(&here), sizeof here),
              "bind");
    });
  }

  void Send(const std::string& text) {
    Checked(static_cast<int>(::send(sender_.Number(), text.data(), text.size(), 0)), "send");
  }
  // The next datagram; "" when none comes within the limit.
  std::string Receive(int limitMilliseconds = kLimit) {
    pollfd waiting = {receiver_.Number(), POLLIN, 0};
    if (::poll(&waiting, 1, limitMilliseconds) <= 0) return "";
    std::string text(100, '\0');
    text.resize(static_cast<std::size_t>(Checked(
        static_cast<int>(::recv(receiver_.Number(), text.data(), text.size(), 0)), "receive")));
    return text;
  }

  NetNamespace left_;
  NetNamespace right_;
  TapDevice leftEnd_{left_, "cable"};
  TapDevice rightEnd_{right_, "cable"};

 private:
  static Descriptor OpenSocket() {
    return Descriptor(Checked(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0), "socket"));
  }
  static sockaddr_in Address(const char* text) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(4000);
    ::inet_pton(AF_INET, text, &address.sin_addr);
    return address;
  }

  Descriptor sender_;
  Descriptor receiver_;
};

TEST_F(RelayTest, ADatagramReachesTheOtherNetworkAfterTheDelay) {
  Relay cable(leftEnd_, rightEnd_, {.delay = 100ms}, 1);
  const auto begin = Clock::now();
  Send("hello");
  EXPECT_EQ(Receive(), "hello");
  // First a hardware address is asked for: three delays, for question, answer and datagram.
  EXPECT_GE(Clock::now() - begin, 300ms);
  const auto again = Clock::now();
  Send("and again");
  EXPECT_EQ(Receive(), "and again");
  EXPECT_GE(Clock::now() - again, 100ms);
}

TEST_F(RelayTest, AStallDelaysDatagrams) {
  Relay cable(leftEnd_, rightEnd_, {}, 1);
  Send("hello");
  ASSERT_EQ(Receive(), "hello");
  const auto begin = Clock::now();
  cable.Stall(1s);
  Send("late");
  EXPECT_EQ(Receive(), "late");
  EXPECT_GE(Clock::now() - begin, 1s);
}

TEST_F(RelayTest, NothingPassesACutCable) {
  Relay cable(leftEnd_, rightEnd_, {}, 1);
  Send("hello");
  ASSERT_EQ(Receive(), "hello");
  cable.Cut();
  Send("lost");
  EXPECT_EQ(Receive(500), "");
}

TEST_F(RelayTest, TheNetworksHaveNoOtherWayToEachOther) {
  Send("nowhere");
  EXPECT_EQ(Receive(500), "");
}

}  // namespace
}  // namespace verlume::network
