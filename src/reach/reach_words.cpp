#include "reach/reach_words.h"

#include <algorithm>

#include "reach/address_scope.h"
#include "reach/shown_words.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr std::size_t kMostFirewalls = 8;

// %1 the outer address, %2 the outer port, %3 the port that was asked for, %4 another outer
// address, %5 the router's own words
constexpr TextPair kNotAllowed = {u"Verlume does not ask the router.",
                                  u"Το Verlume δεν ρωτά τον δρομολογητή."};
constexpr TextPair kNotYetAsked = {u"It is asked to pass calls on when you wait for a call.",
                                   u"Θα του ζητηθεί να προωθεί τις κλήσεις όταν περιμένετε κλήση."};
constexpr TextPair kIsAsked = {u"It is being asked…", u"Ερωτάται…"};
constexpr TextPair kIsSilent = {u"No router has answered (UPnP, NAT-PMP).",
                                u"Κανένας δρομολογητής δεν απάντησε (UPnP, NAT-PMP)."};
constexpr TextPair kRefuses = {u"It refuses to pass calls on.",
                               u"Αρνείται να προωθήσει τις κλήσεις."};
constexpr TextPair kRefusesWithWords = {
    u"It refuses to pass calls on. Its own words: “%5”",
    u"Αρνείται να προωθήσει τις κλήσεις. Με δικά του λόγια: «%5»"};
constexpr TextPair kMakesNoSense = {u"Its answer makes no sense.",
                                    u"Η απάντησή του δεν έχει νόημα."};
constexpr TextPair kNoSuchAddress = {
    u"It says that its outer address is “%5”. No router has such an address.",
    u"Λέει ότι η εξωτερική του διεύθυνση είναι «%5». Κανένας δρομολογητής δεν έχει τέτοια "
    u"διεύθυνση."};
constexpr TextPair kPasses = {
    u"It says that it passes calls to %1, port %2, on to this computer.",
    u"Λέει ότι προωθεί σε αυτόν τον υπολογιστή τις κλήσεις προς τη διεύθυνση %1, θύρα %2."};
constexpr TextPair kAnotherPort = {u" Callers have to use port %2, not %3.",
                                   u" Όσοι καλούν πρέπει να χρησιμοποιούν τη θύρα %2, όχι την %3."};
constexpr TextPair kNoAddress = {u"It says that it passes calls on, but not at which address.",
                                 u"Λέει ότι προωθεί τις κλήσεις, αλλά όχι σε ποια διεύθυνση."};
constexpr TextPair kHighPort = {
    u"It passes calls on at port %2. Callers can only name ports up to 32767.",
    u"Προωθεί τις κλήσεις από τη θύρα %2. Όσοι καλούν μπορούν να ορίσουν θύρες μόνο ως την 32767."};
constexpr TextPair kOuterAddress = {u"It says that its outer address is %1.",
                                    u"Λέει ότι η εξωτερική του διεύθυνση είναι %1."};
constexpr TextPair kIsBehindRouter = {
    u"It says that its outer address is %1. That is a private address: your router is behind "
    u"another router.",
    u"Λέει ότι η εξωτερική του διεύθυνση είναι %1. Αυτή είναι ιδιωτική: ο δρομολογητής σας "
    u"βρίσκεται πίσω από άλλον δρομολογητή."};
constexpr TextPair kIsBehindProvider = {
    u"It says that its outer address is %1. That is on a network of your provider's, behind the "
    u"provider's own router.",
    u"Λέει ότι η εξωτερική του διεύθυνση είναι %1. Αυτή ανήκει σε δίκτυο του παρόχου σας, πίσω από "
    u"τον δικό του δρομολογητή."};
constexpr TextPair kDisagrees = {
    u"Asked in two ways, it names two outer addresses: %1 and %4. One of them is wrong.",
    u"Σε δύο ερωτήσεις δίνει δύο εξωτερικές διευθύνσεις: %1 και %4. Η μία είναι λάθος."};

// %1 its name
constexpr TextPair kFirewallOn = {u"%1 is on. It keeps calls out, unless the port is open in it.",
                                  u"Το %1 είναι ενεργό. Εμποδίζει τις κλήσεις, εκτός αν η θύρα "
                                  u"είναι ανοιχτή σε αυτό."};
constexpr TextPair kFirewallOff = {u"%1 is off.", u"Το %1 είναι ανενεργό."};
constexpr TextPair kNoFirewall = {
    u"No firewall that Verlume can ask was found on this computer.",
    u"Δεν βρέθηκε σε αυτόν τον υπολογιστή τείχος προστασίας που να μπορεί να ρωτήσει το Verlume."};

const TextPair& TextOf(const ReachFacts& facts) {
  const RouterVerdict& router = facts.router;
  switch (router.finding) {
    case RouterFinding::NotAsked:
      return facts.choice == RouterChoice::Yes ? kNotYetAsked : kNotAllowed;
    case RouterFinding::Asking:
      return kIsAsked;
    case RouterFinding::Silent:
      return kIsSilent;
    case RouterFinding::Refused:
      return router.words.empty() ? kRefuses : kRefusesWithWords;
    case RouterFinding::Nonsense:
      return router.words.empty() ? kMakesNoSense : kNoSuchAddress;
    case RouterFinding::Passes:
      return kPasses;
    case RouterFinding::PassesNoAddress:
      return kNoAddress;
    case RouterFinding::PassesHighPort:
      return kHighPort;
    case RouterFinding::BehindRouter:
      return kIsBehindRouter;
    case RouterFinding::BehindProvider:
      return kIsBehindProvider;
    case RouterFinding::Disagreement:
      break;
  }
  return kDisagrees;
}

// Of a router that passes nothing on.
std::u16string OuterAddressText(std::u16string_view address, bool isGreek) {
  const auto fill = [&](const TextPair& text) {
    return text.Fill(isGreek, {address, u"", u"", u"", ShownWords(address)});
  };
  switch (ScopeOf(address)) {
    case AddressScope::Anyone:
      return fill(kOuterAddress);
    case AddressScope::Provider:
      return fill(kIsBehindProvider);
    case AddressScope::ThisNetwork:
    case AddressScope::ThisLink:
      return fill(kIsBehindRouter);
    default:
      return fill(kNoSuchAddress);
  }
}

}  // namespace

std::u16string RouterText(const ReachFacts& facts, bool isGreek) {
  const RouterVerdict& router = facts.router;
  const auto fill = [&](const TextPair& text) {
    return text.Fill(isGreek,
                     {router.place.host, DecimalText(router.place.port), DecimalText(facts.port),
                      router.otherHost, ShownWords(router.words)});
  };
  std::u16string text = fill(TextOf(facts));
  const bool isOther = facts.port != 0 && router.place.port != facts.port;
  if (router.finding == RouterFinding::Passes && isOther) text += fill(kAnotherPort);
  const bool passesNothing =
      router.finding == RouterFinding::NotAsked || router.finding == RouterFinding::Refused;
  if (passesNothing && !facts.outerAddress.empty()) {
    text += u" " + OuterAddressText(facts.outerAddress, isGreek);
  }
  return text;
}

std::u16string FirewallText(const std::vector<Firewall>& firewalls, bool isGreek) {
  std::u16string text;
  for (std::size_t i = 0; i < std::min(firewalls.size(), kMostFirewalls); ++i) {
    if (!text.empty()) text += u"\r\n";
    const TextPair& words = firewalls[i].isOn ? kFirewallOn : kFirewallOff;
    text += words.Fill(isGreek, {ShownWords(firewalls[i].name)});
  }
  return text.empty() ? std::u16string(kNoFirewall.In(isGreek)) : text;
}

}  // namespace verlume
