// What the router's answers are worth. They come from the network: whoever answers may be wrong, or
// lie.
#pragma once

#include <cstdint>
#include <string>

#include "platform/router.h"
#include "shell/place_to_call.h"

namespace verlume {

enum class RouterFinding {
  NotAsked,
  Asking,
  Silent,
  Refused,
  Nonsense,         // what it said makes no sense, or its outer address is one that nobody has
  Passes,           // it says that it passes calls on, at an address that anyone can reach
  PassesNoAddress,  // the same, but not at which address
  PassesHighPort,   // the same, at a port that callers cannot name
  BehindRouter,     // it passes calls on, but its outer address is on another private network
  BehindProvider,   // the same, on a network of the provider's
  Disagreement,     // its two languages name different outer addresses
};

struct RouterVerdict {
  RouterFinding finding = RouterFinding::NotAsked;
  // With Passes, PassesHighPort, BehindRouter, BehindProvider and Disagreement: what the router
  // says. The host is an address, fit to be shown.
  PlaceToCall place = {};
  std::u16string otherHost = {};  // only with Disagreement
  // With Refused its own words, with Nonsense the outer address that makes none. "" if it has said
  // nothing. As it came from the network: not fit to be shown.
  std::u16string words = {};

  bool operator==(const RouterVerdict&) const = default;
};

RouterVerdict VerdictOn(const RouterReport& report);

// What both languages say together. Of two ports at one address, the one that was asked for. If no
// port was asked for (0), an answer in one language is enough: NotAsked.
RouterVerdict VerdictOn(const RouterReport& upnp, const RouterReport& natPmp, std::int32_t asked);
RouterVerdict VerdictOn(const Router& router);

}  // namespace verlume
