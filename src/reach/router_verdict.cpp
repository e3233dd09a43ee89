#include "reach/router_verdict.h"

#include <algorithm>
#include <iterator>

#include "platform/socket.h"
#include "reach/address_scope.h"

namespace verlume {
namespace {

constexpr std::int32_t kGreatestPort = 65535;

RouterFinding FindingAt(const RouterReport& report) {
  if (report.outerPort < 1 || report.outerPort > kGreatestPort) return RouterFinding::Nonsense;
  if (report.outerAddress.empty()) return RouterFinding::PassesNoAddress;
  const auto address = IpAddressIn(report.outerAddress);
  // What is asked for is IPv4.
  if (!address || !IsIPv4(*address)) return RouterFinding::Nonsense;
  switch (ScopeOf(*address)) {
    case AddressScope::Anyone:
      return report.outerPort > kGreatestNameablePort ? RouterFinding::PassesHighPort
                                                      : RouterFinding::Passes;
    case AddressScope::Provider:
      return RouterFinding::BehindProvider;
    case AddressScope::ThisNetwork:
    case AddressScope::ThisLink:
      return RouterFinding::BehindRouter;
    default:
      return RouterFinding::Nonsense;
  }
}

// It was asked for nothing else.
bool HasToldAddress(const RouterReport& report) {
  return report.state == RouterState::NotAsked && !report.outerAddress.empty();
}

bool HasPlace(const RouterVerdict& verdict) {
  return !verdict.place.host.empty();
}

// What matters most to the user comes first.
int RankOf(RouterFinding finding) {
  constexpr RouterFinding kRanks[] = {
      RouterFinding::Passes,       RouterFinding::PassesHighPort,  RouterFinding::BehindProvider,
      RouterFinding::BehindRouter, RouterFinding::PassesNoAddress, RouterFinding::Asking,
      RouterFinding::Refused,      RouterFinding::Nonsense,        RouterFinding::Silent,
  };
  return static_cast<int>(std::distance(std::begin(kRanks), std::ranges::find(kRanks, finding)));
}

}  // namespace

RouterVerdict VerdictOn(const RouterReport& report) {
  switch (report.state) {
    case RouterState::NotAsked:
      return {};
    case RouterState::Asking:
      return {.finding = RouterFinding::Asking};
    case RouterState::Silent:
      return {.finding = RouterFinding::Silent};
    case RouterState::Nonsense:
      return {.finding = RouterFinding::Nonsense};
    case RouterState::Refused:
      return {.finding = RouterFinding::Refused, .words = report.reason};
    case RouterState::Mapped:
      break;
  }
  const RouterFinding finding = FindingAt(report);
  if (finding == RouterFinding::Nonsense) return {.finding = finding, .words = report.outerAddress};
  if (finding == RouterFinding::PassesNoAddress) return {.finding = finding};
  return {.finding = finding, .place = {report.outerAddress, report.outerPort}};
}

RouterVerdict VerdictOn(const RouterReport& upnp, const RouterReport& natPmp, std::int32_t asked) {
  if (asked == 0 && (HasToldAddress(upnp) || HasToldAddress(natPmp))) return {};
  const RouterVerdict one = VerdictOn(upnp);
  const RouterVerdict other = VerdictOn(natPmp);
  if (HasPlace(one) && HasPlace(other)) {
    if (IpAddressIn(one.place.host) != IpAddressIn(other.place.host)) {
      return {.finding = RouterFinding::Disagreement,
              .place = one.place,
              .otherHost = other.place.host};
    }
    if (one.finding == other.finding) return other.place.port == asked ? other : one;
  }
  return RankOf(other.finding) < RankOf(one.finding) ? other : one;
}

RouterVerdict VerdictOn(const Router& router) {
  return VerdictOn(router.Report(RouterLanguage::Upnp), router.Report(RouterLanguage::NatPmp),
                   router.Port());
}

}  // namespace verlume
