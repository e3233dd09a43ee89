#include "reach/advice.h"

#include <algorithm>

#include "reach/address_scope.h"
#include "reach/shown_words.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

// %1 the port, %2 the address to which a router has to forward, %3 the outer address of the router,
// %4 a firewall, %5 how to open the port in it
constexpr TextPair kFindNetwork = {u"Connect this computer to a network.",
                                   u"Συνδέστε αυτόν τον υπολογιστή σε ένα δίκτυο."};
constexpr TextPair kEndConversation = {
    u"You are in a conversation. To be called by others, end it and wait for a call.",
    u"Βρίσκεστε σε συνομιλία. Για να σας καλέσουν άλλοι, τερματίστε την και περιμένετε κλήση."};
constexpr TextPair kWaitFirst = {u"Wait for a call first: Communication > Wait.",
                                 u"Περιμένετε πρώτα κλήση: Επικοινωνία > Αναμονή."};
constexpr TextPair kAllowRouter = {
    u"Let Verlume ask the router: Communication > Ask the router for the port. Or forward TCP port "
    u"%1 to %2 in the router's settings.",
    u"Επιτρέψτε στο Verlume να ρωτήσει τον δρομολογητή: Επικοινωνία > Άνοιγμα θύρας στον "
    u"δρομολογητή. Ή προωθήστε τη θύρα TCP %1 στη διεύθυνση %2 από τις ρυθμίσεις του δρομολογητή."};
constexpr TextPair kWaitForRouter = {u"Wait a moment, until the router has answered.",
                                     u"Περιμένετε λίγο, μέχρι να απαντήσει ο δρομολογητής."};
constexpr TextPair kOpenFirewall = {u"Open TCP port %1 in the firewall %4.%5",
                                    u"Ανοίξτε τη θύρα TCP %1 στο τείχος προστασίας %4.%5"};
// %1 a command
constexpr TextPair kInTerminal = {u" In a terminal: %1", u" Σε τερματικό: %1"};
constexpr TextPair kGivePlace = {u"Give the other side the address below, or an invitation.",
                                 u"Δώστε στην άλλη πλευρά την παρακάτω διεύθυνση ή μια πρόσκληση."};
constexpr TextPair kGiveIPv6 = {
    u"Give the other side the address below, or an invitation. The other side needs IPv6, too. If "
    u"the call does not come in, let IPv6 calls to TCP port %1 through in the router's settings.",
    u"Δώστε στην άλλη πλευρά την παρακάτω διεύθυνση ή μια πρόσκληση. Χρειάζεται και εκείνη IPv6. "
    u"Αν η κλήση δεν φτάνει, επιτρέψτε στις ρυθμίσεις του δρομολογητή τις κλήσεις IPv6 προς τη "
    u"θύρα TCP %1."};
// %1 and %2 the place at which the router passes calls on
constexpr TextPair kOrByIPv4 = {
    u" Who has no IPv6 can call %1, port %2.",
    u" Όποιος δεν έχει IPv6 μπορεί να καλέσει τη διεύθυνση %1, θύρα %2."};
constexpr TextPair kWaitOnAnotherPort = {
    u"Cancel, and wait on another port: callers cannot name the one that the router has given.",
    u"Ακυρώστε και περιμένετε σε άλλη θύρα: όσοι καλούν δεν μπορούν να ορίσουν αυτήν που έδωσε ο "
    u"δρομολογητής."};
constexpr TextPair kOtherSideWaits = {
    u"Let the other side wait for a call, and call it yourself. Or ask your provider for IPv6 or "
    u"for an address of your own.",
    u"Αφήστε την άλλη πλευρά να περιμένει κλήση και καλέστε την εσείς. Ή ζητήστε από τον πάροχό "
    u"σας IPv6 ή μια δική σας διεύθυνση."};
constexpr TextPair kForwardTwice = {
    u"In the settings of the other router, which is nearer to the Internet, forward TCP port %1 to "
    u"%3. Or let the other side wait for a call, and call it yourself.",
    u"Στις ρυθμίσεις του άλλου δρομολογητή, που είναι πιο κοντά στο διαδίκτυο, προωθήστε τη θύρα "
    u"TCP %1 στη διεύθυνση %3. Ή αφήστε την άλλη πλευρά να περιμένει κλήση και καλέστε την εσείς."};
constexpr TextPair kForwardByHand = {
    u"In the router's settings, forward TCP port %1 to %2. Or let the other side wait for a call, "
    u"and call it yourself.",
    u"Στις ρυθμίσεις του δρομολογητή, προωθήστε τη θύρα TCP %1 στη διεύθυνση %2. Ή αφήστε την άλλη "
    u"πλευρά να περιμένει κλήση και καλέστε την εσείς."};

const TextPair& TextOf(Advice advice) {
  switch (advice) {
    case Advice::FindNetwork:
      return kFindNetwork;
    case Advice::EndConversation:
      return kEndConversation;
    case Advice::WaitFirst:
      return kWaitFirst;
    case Advice::AllowRouter:
      return kAllowRouter;
    case Advice::WaitForRouter:
      return kWaitForRouter;
    case Advice::OpenFirewall:
      return kOpenFirewall;
    case Advice::GivePlace:
      return kGivePlace;
    case Advice::GiveIPv6:
      return kGiveIPv6;
    case Advice::WaitOnAnotherPort:
      return kWaitOnAnotherPort;
    case Advice::OtherSideWaits:
      return kOtherSideWaits;
    case Advice::ForwardTwice:
      return kForwardTwice;
    case Advice::ForwardByHand:
      break;
  }
  return kForwardByHand;
}

// What to type to open the port; "" for a firewall that is not known.
std::u16string HowToOpen(std::u16string_view firewall, std::int32_t port, bool isGreek) {
  std::u16string_view command;
  if (firewall == u"ufw") command = u"sudo ufw allow ";
  if (firewall == u"firewalld") command = u"sudo firewall-cmd --add-port=";
  if (command.empty()) return {};
  return kInTerminal.Fill(isGreek, {std::u16string(command) + DecimalText(port) + u"/tcp"});
}

// Every network that the machine is on belongs to a provider.
bool IsOnlyOnProvidersNetwork(const std::vector<NetworkAddress>& addresses) {
  const auto has = [&addresses](AddressScope scope) {
    return std::ranges::any_of(
        addresses, [scope](const NetworkAddress& each) { return ScopeOf(each.text) == scope; });
  };
  return has(AddressScope::Provider) && !has(AddressScope::ThisNetwork);
}

// Somebody can come as far as to this computer.
Advice AdviceWhenReached(const ReachFacts& facts) {
  if (FirewallOn(facts.firewalls)) return Advice::OpenFirewall;
  const auto address = IpAddressIn(facts.place.host);
  return address && !IsIPv4(*address) ? Advice::GiveIPv6 : Advice::GivePlace;
}

Advice AdviceOnRouter(const ReachFacts& facts) {
  switch (facts.router.finding) {
    case RouterFinding::NotAsked:
    case RouterFinding::Asking:
      return Advice::WaitForRouter;
    case RouterFinding::Passes:
      return AdviceWhenReached(facts);
    case RouterFinding::PassesHighPort:
      return Advice::WaitOnAnotherPort;
    case RouterFinding::BehindProvider:
      return Advice::OtherSideWaits;
    case RouterFinding::BehindRouter:
      return Advice::ForwardTwice;
    default:
      return ScopeOf(facts.outerAddress) == AddressScope::Provider ? Advice::OtherSideWaits
                                                                   : Advice::ForwardByHand;
  }
}

}  // namespace

Advice AdviceOn(const ReachFacts& facts) {
  if (!IsOnNetwork(facts.addresses)) return Advice::FindNetwork;
  if (facts.isTalking) return Advice::EndConversation;
  if (!facts.isListening) return Advice::WaitFirst;
  const auto isGiven = [&facts](const NetworkAddress& each) {
    return each.text == facts.place.host && ScopeOf(each.text) == AddressScope::Anyone;
  };
  if (std::ranges::any_of(facts.addresses, isGiven)) return AdviceWhenReached(facts);
  if (IsOnlyOnProvidersNetwork(facts.addresses)) return Advice::OtherSideWaits;
  return facts.choice == RouterChoice::Yes ? AdviceOnRouter(facts) : Advice::AllowRouter;
}

std::u16string AdviceText(const ReachFacts& facts, bool isGreek) {
  const Firewall* firewall = FirewallOn(facts.firewalls);
  const std::u16string name = firewall ? ShownWords(firewall->name) : std::u16string();
  const Advice advice = AdviceOn(facts);
  std::u16string text = TextOf(advice).Fill(
      isGreek, {DecimalText(facts.port), AddressBehindRouter(facts), facts.router.place.host, name,
                firewall ? HowToOpen(firewall->name, facts.port, isGreek) : std::u16string()});
  const PlaceToCall& passed = facts.router.place;
  if (advice == Advice::GiveIPv6 && facts.router.finding == RouterFinding::Passes) {
    text += kOrByIPv4.Fill(isGreek, {passed.host, DecimalText(passed.port)});
  }
  return text;
}

}  // namespace verlume
