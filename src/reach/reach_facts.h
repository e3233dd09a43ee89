// What is known about whether this computer can be called.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "reach/router_verdict.h"
#include "shell/app_state.h"
#include "shell/place_to_call.h"

namespace verlume {

struct ReachFacts {
  std::vector<NetworkAddress> addresses = {};
  std::vector<Firewall> firewalls = {};
  RouterVerdict router = {};
  std::u16string outerAddress = {};  // as a router that passes nothing on says it; may be nonsense
  RouterChoice choice = RouterChoice::NotYet;
  bool isListening = false;
  bool isTalking = false;  // a conversation, or the beginning of one
  std::int32_t port = 0;   // while listening
  PlaceToCall place = {};  // to give to others, while listening
};

ReachFacts FactsOf(const AppState& state, const Platform& platform,
                   const std::vector<Firewall>& firewalls);

// Whether the machine is on any network, besides its own loopback.
bool IsOnNetwork(const std::vector<NetworkAddress>& addresses);

// Of the firewalls the first that is on, null for none.
const Firewall* FirewallOn(const std::vector<Firewall>& firewalls);

// The address to which a router has to forward calls.
std::u16string AddressBehindRouter(const ReachFacts& facts);

}  // namespace verlume
