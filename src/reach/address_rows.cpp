#include "reach/address_rows.h"

#include <algorithm>
#include <iterator>

#include "reach/address_scope.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr std::size_t kMostRows = 40;

// From what most computers can call to what none can.
struct ScopeWords {
  AddressScope scope;
  TextPair words;
};
constexpr ScopeWords kScopeWords[] = {
    {AddressScope::Anyone, {u"anyone", u"όλοι"}},
    {AddressScope::ThisNetwork,
     {u"computers on this network", u"οι υπολογιστές αυτού του δικτύου"}},
    {AddressScope::Provider,
     {u"computers on a network of your provider's, behind its own router",
      u"υπολογιστές σε δίκτυο του παρόχου σας, πίσω από τον δικό του δρομολογητή"}},
    {AddressScope::Tunnel,
     {u"hardly anyone: it is a tunnel of an old kind",
      u"σχεδόν κανείς: είναι σήραγγα παλιού είδους"}},
    {AddressScope::ThisLink,
     {u"hardly anyone: it is only for the same cable or Wi-Fi",
      u"σχεδόν κανείς: ισχύει μόνο για το ίδιο καλώδιο ή Wi-Fi"}},
    {AddressScope::Nobody,
     {u"nobody on the Internet: it is set aside for other uses",
      u"κανείς στο διαδίκτυο: προορίζεται για άλλες χρήσεις"}},
    {AddressScope::ThisComputer, {u"this computer only", u"μόνο αυτός ο υπολογιστής"}},
};
constexpr TextPair kAnyoneForNow = {u"anyone, but it is temporary: do not give it to others",
                                    u"όλοι, αλλά είναι προσωρινή: μην τη δίνετε σε άλλους"};
constexpr TextPair kAnyoneWithIPv6 = {u"anyone who has IPv6", u"όλοι όσοι έχουν IPv6"};
constexpr TextPair kAnyoneByRouter = {u"anyone, as the router says",
                                      u"όλοι, όπως λέει ο δρομολογητής"};
// %1 an address, %2 a port
constexpr TextPair kAddressAndPort = {u"%1, port %2", u"%1, θύρα %2"};

struct RankedRow {
  int rank;
  TableBox::Row row;
};

int RankOfScope(AddressScope scope) {
  const auto found = std::ranges::find(kScopeWords, scope, &ScopeWords::scope);
  return static_cast<int>(found - std::begin(kScopeWords));
}

const TextPair& WordsOf(AddressScope scope, bool isIPv6, bool isTemporary) {
  if (scope == AddressScope::Anyone && isTemporary) return kAnyoneForNow;
  if (scope == AddressScope::Anyone && isIPv6) return kAnyoneWithIPv6;
  return kScopeWords[RankOfScope(scope)].words;
}

// Before all others stand the addresses to give: IPv6, IPv4, the router's.
RankedRow RowOf(const NetworkAddress& each, const IpAddress& address, bool isGreek) {
  const AddressScope scope = ScopeOf(address);
  const bool isIPv6 = !IsIPv4(address);
  int rank = 10 * (RankOfScope(scope) + 1);
  if (scope == AddressScope::Anyone) rank = each.isTemporary ? 3 : isIPv6 ? 0 : 1;
  return {rank, {each.text, std::u16string(WordsOf(scope, isIPv6, each.isTemporary).In(isGreek))}};
}

}  // namespace

std::vector<TableBox::Row> AddressRows(const ReachFacts& facts, bool isGreek) {
  std::vector<RankedRow> ranked;
  for (const NetworkAddress& each : facts.addresses) {
    const auto address = IpAddressIn(each.text);
    if (address) ranked.push_back(RowOf(each, *address, isGreek));
  }
  if (facts.router.finding == RouterFinding::Passes) {
    const PlaceToCall& place = facts.router.place;
    ranked.push_back({2,
                      {kAddressAndPort.Fill(isGreek, {place.host, DecimalText(place.port)}),
                       std::u16string(kAnyoneByRouter.In(isGreek))}});
  }
  std::ranges::stable_sort(ranked, {}, &RankedRow::rank);
  if (ranked.size() > kMostRows) ranked.resize(kMostRows);
  std::vector<TableBox::Row> rows;
  rows.reserve(ranked.size());
  for (RankedRow& each : ranked) rows.push_back(std::move(each.row));
  return rows;
}

}  // namespace verlume
