#include "platform_qt/router/upnp_asker.h"

#include <algorithm>
#include <utility>

#include "platform_qt/router/http_exchange.h"
#include "platform_qt/router/router_text.h"
#include "platform_qt/router/ssdp_search.h"

namespace verlume::qt {
namespace {

constexpr const char* kConflict = "718";
constexpr const char* kOnlyWithoutEnd = "725";

std::vector<IgdService> ServicesAt(const HttpUrl& location, const WaitLimit& limit) {
  constexpr std::chrono::seconds kLongest{4};
  constexpr int kOk = 200;
  const HttpQuestion question = {.method = "GET", .url = location, .fields = "", .body = ""};
  const HttpExchange exchange = AskHttp(question, limit.Within(kLongest));
  if (!exchange.answer || exchange.answer->status != kOk) return {};
  return ReadIgdDescription(exchange.answer->body, location);
}

RouterReport Refusal(const std::string& reason) {
  return {.state = RouterState::Refused,
          .outerAddress = u"",
          .outerPort = 0,
          .reason = RouterText(reason)};
}

RouterReport Only(RouterState state) {
  return {.state = state, .outerAddress = u"", .outerPort = 0, .reason = u""};
}

bool HasOuterAddress(const IgdAnswer& answer) {
  return answer.outcome == IgdOutcome::Done &&
         !ReadOuterAddress(answer.Value("NewExternalIPAddress")).text.empty();
}

}  // namespace

// Of several services the one with an outer address is connected to the world.
UpnpAsker::Look UpnpAsker::LookAt(const Gateway& gateway, const WaitLimit& limit) {
  Look look;
  const SsdpFindings findings = SearchGateway(gateway.address, gateway.local, limit);
  look.hasAnswered = findings.hasAnswered;
  for (const HttpUrl& location : findings.locations) {
    for (IgdService& service : ServicesAt(location, limit)) {
      Candidate candidate = {service, AskOuterAddress(service, limit)};
      const bool isConnected = HasOuterAddress(candidate.address);
      if (isConnected || !look.candidate) look.candidate = std::move(candidate);
      if (isConnected) return look;
    }
  }
  return look;
}

RouterReport UpnpAsker::AddressReport(const Candidate& candidate) {
  const IgdAnswer& answer = candidate.address;
  if (answer.outcome == IgdOutcome::Refused) return Refusal(answer.reason);
  const OuterAddress outer = ReadOuterAddress(answer.Value("NewExternalIPAddress"));
  if (answer.outcome == IgdOutcome::Nonsense || !outer.makesSense) {
    return Only(RouterState::Nonsense);
  }
  RouterReport report;
  report.outerAddress = outer.text;
  return report;
}

RouterReport UpnpAsker::AskAddress(const WaitLimit& limit) {
  RouterReport best = Only(RouterState::Silent);
  for (const Gateway& gateway : NearGateways()) {
    const Look look = LookAt(gateway, limit);
    if (!look.hasAnswered) continue;
    best =
        Better(best, look.candidate ? AddressReport(*look.candidate) : Only(RouterState::Nonsense));
    if (best.state == RouterState::NotAsked) break;
  }
  return best;
}

PortAnswer UpnpAsker::Map(std::uint16_t port, std::chrono::seconds lease, const WaitLimit& limit) {
  if (claim_ && claim_->port != port) GiveBack(limit);
  PortAnswer best = {Only(RouterState::Silent), {}};
  for (const Gateway& gateway : NearGateways()) {
    const Look look = LookAt(gateway, limit);
    if (!look.hasAnswered) continue;
    PortAnswer answer = {Only(RouterState::Nonsense), {}};
    if (look.candidate) {
      answer = MapAt(*look.candidate, {look.candidate->service, gateway.local, port}, lease, limit);
    }
    best.report = Better(best.report, answer.report);
    if (answer.report.state == RouterState::Mapped) return answer;
  }
  return best;
}

PortAnswer UpnpAsker::MapAt(const Candidate& candidate, const IgdMapping& mapping,
                            std::chrono::seconds lease, const WaitLimit& limit) {
  // This machine had another address before: then its own mapping would be in the way.
  const bool hasMoved = claim_ && claim_->service.control == mapping.service.control &&
                        claim_->local != mapping.local;
  if (hasMoved) GiveBack(limit);
  // Some routers would take the port away from whoever has it.
  if (AskPortEntry(mapping, limit).owner == PortOwner::Another) return {Refusal(kConflict), {}};
  if (limit.IsOver()) return {Only(RouterState::Nonsense), {}};
  claim_ = mapping;
  IgdAnswer answer = AddMapping(mapping, lease.count(), limit);
  if (answer.errorCode == kOnlyWithoutEnd) answer = AddMapping(mapping, 0, limit);
  if (answer.outcome == IgdOutcome::Refused) return {Refusal(answer.reason), {}};
  RouterReport report = AddressReport(candidate);
  const PortEntry entry = AskPortEntry(mapping, limit);
  const bool isNonsense = answer.outcome == IgdOutcome::Nonsense ||
                          report.state == RouterState::Nonsense ||
                          entry.owner == PortOwner::Another;
  if (isNonsense) return {Only(RouterState::Nonsense), {}};
  report.state = RouterState::Mapped;
  report.outerPort = mapping.port;
  report.reason.clear();
  const std::chrono::seconds left(entry.lease);
  return {report, left.count() > 0 ? std::min(left, lease) : lease};
}

// Only what is still ours: the port may be another's by now.
void UpnpAsker::GiveBack(const WaitLimit& limit) {
  const auto claim = std::exchange(claim_, std::nullopt);
  if (!claim) return;
  const PortOwner owner = AskPortEntry(*claim, limit).owner;
  if (owner == PortOwner::We || owner == PortOwner::Unknown) DeleteMapping(*claim, limit);
}

}  // namespace verlume::qt
