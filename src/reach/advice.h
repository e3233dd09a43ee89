// The one thing to do next for who wants to be called.
#pragma once

#include <string>

#include "reach/reach_facts.h"

namespace verlume {

enum class Advice {
  FindNetwork,
  EndConversation,
  WaitFirst,
  AllowRouter,
  WaitForRouter,
  OpenFirewall,
  GivePlace,
  GiveIPv6,
  WaitOnAnotherPort,
  OtherSideWaits,
  ForwardTwice,
  ForwardByHand,
};

Advice AdviceOn(const ReachFacts& facts);
std::u16string AdviceText(const ReachFacts& facts, bool isGreek);

}  // namespace verlume
