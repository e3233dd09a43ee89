// Addresses that come and go.
#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>

#include "network/interface_setup.h"
#include "platform_qt/network/network.h"
#include "platform_qt/os/machine_addresses.h"
#include "router/home.h"

namespace verlume::router {
namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::Field;

class NetworkTest : public testing::Test {
 protected:
  // The system first tries out the address that the interface has given itself.
  static bool HasLinkLocalAddress() {
    const std::vector<NetworkAddress> addresses = qt::MachineAddresses();
    return std::any_of(addresses.begin(), addresses.end(), [](const NetworkAddress& address) {
      return address.text.starts_with(u"fe80:");
    });
  }

  // Something happens while the network is watched; returns how often it has told.
  int ChangesBy(const std::function<void(qt::QtNetwork& network)>& event, int wanted) {
    int changes = 0;
    home_.OnMachine([&] {
      ASSERT_TRUE(WaitFor(HasLinkLocalAddress));
      qt::QtNetwork network;
      network.onChange = [&changes] { ++changes; };
      event(network);
      WaitFor([&] { return changes >= wanted; }, 4s);
      WaitFor([] { return false; }, 1500ms);  // for one too many
    });
    return changes;
  }

  Home home_;
};

auto HasText(const char16_t* text) {
  return Field(&NetworkAddress::text, std::u16string(text));
}

TEST_F(NetworkTest, TellsTheAddresses) {
  home_.OnMachine([] {
    network::AddAddress(Home::kDevice, "fd77::2", 64);
    const qt::QtNetwork network;
    const std::vector<NetworkAddress> addresses = network.Addresses();
    EXPECT_THAT(addresses, Contains(NetworkAddress{u"192.168.77.2", u"cable", false}));
    EXPECT_THAT(addresses, Contains(NetworkAddress{u"fd77::2", u"cable", false}));
    EXPECT_THAT(addresses, Contains(NetworkAddress{u"127.0.0.1", u"lo", false}));
  });
}

TEST_F(NetworkTest, TellsWhichAddressesAreTemporary) {
  home_.OnMachine([this] {
    std::ofstream("/proc/sys/net/ipv6/conf/cable/use_tempaddr") << "2";
    home_.Ip("-6 addr add fd77::2/64 dev cable nodad mngtmpaddr valid_lft 9000 preferred_lft 8000");
    const qt::QtNetwork network;
    const auto isTemporary = Field(&NetworkAddress::isTemporary, true);
    EXPECT_TRUE(
        WaitFor([&] { return testing::Matches(Contains(isTemporary))(network.Addresses()); }));
    EXPECT_THAT(network.Addresses(), Contains(NetworkAddress{u"fd77::2", u"cable", false}));
  });
}

TEST_F(NetworkTest, LeavesOutAnInterfaceThatIsDown) {
  home_.Ip("link set cable down");
  home_.OnMachine([] {
    const qt::QtNetwork network;
    EXPECT_THAT(network.Addresses(), Not(Contains(HasText(u"192.168.77.2"))));
  });
}

TEST_F(NetworkTest, TellsOnceThatAddressesHaveCome) {
  EXPECT_EQ(ChangesBy(
                [](qt::QtNetwork&) {
                  network::AddAddress(Home::kDevice, "192.168.78.2", 24);
                  network::AddAddress(Home::kDevice, "fd77::2", 64);
                },
                1),
            1);
}

TEST_F(NetworkTest, TellsThatAnAddressWasGoneForAMoment) {
  const auto event = [this](qt::QtNetwork&) {
    home_.Ip("addr del 192.168.77.2/24 dev cable");
    home_.Ip("addr add 192.168.77.2/24 dev cable");
  };
  EXPECT_EQ(ChangesBy(event, 1), 1);
}

TEST_F(NetworkTest, SaysNothingWhenAnAddressIsOnlyProlonged) {
  home_.Ip("addr add 192.168.78.2/24 dev cable valid_lft 9000 preferred_lft 8000");
  const auto event = [this](qt::QtNetwork&) {
    home_.Ip("addr change 192.168.78.2/24 dev cable valid_lft 9900 preferred_lft 8800");
  };
  EXPECT_EQ(ChangesBy(event, 1), 0);
}

}  // namespace
}  // namespace verlume::router
