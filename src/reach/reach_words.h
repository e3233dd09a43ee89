// What the router said and what firewalls do, in plain words.
#pragma once

#include <string>
#include <vector>

#include "reach/reach_facts.h"

namespace verlume {

std::u16string RouterText(const ReachFacts& facts, bool isGreek);
// A line for each firewall.
std::u16string FirewallText(const std::vector<Firewall>& firewalls, bool isGreek);

}  // namespace verlume
