#include "platform_qt/router/nat_pmp_asker.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform_qt/router/nat_pmp_talk.h"
#include "platform_qt/router/near_gateways.h"
#include "platform_qt/router/router_text.h"

namespace verlume::qt {
namespace {

// What the report is when the answer is not what was wanted.
RouterReport Failure(const NatPmpAnswer& answer) {
  RouterReport report;
  switch (answer.outcome) {
    case NatPmpOutcome::Refused:
      report.state = RouterState::Refused;
      report.reason = RouterText(std::to_string(answer.resultCode));
      break;
    case NatPmpOutcome::Silent:
      report.state = RouterState::Silent;
      break;
    case NatPmpOutcome::Nonsense:
    case NatPmpOutcome::Done:
      report.state = RouterState::Nonsense;
      break;
  }
  return report;
}

// NotAsked with the outer address, or why there is none.
RouterReport AddressOf(const NatPmpAnswer& answer) {
  if (answer.outcome != NatPmpOutcome::Done) return Failure(answer);
  const OuterAddress outer = ReadOuterAddress(Ipv4Text(answer.outerAddress));
  if (!outer.makesSense) return Failure(answer);
  RouterReport report;
  report.outerAddress = outer.text;
  return report;
}

}  // namespace

RouterReport NatPmpAsker::AskAddress(const WaitLimit& limit) {
  RouterReport best;
  best.state = RouterState::Silent;
  for (const Gateway& gateway : NearGateways()) {
    best = Better(best, AddressOf(NatPmpTalk(gateway.address).AskAddress(limit)));
    if (best.state == RouterState::NotAsked) break;
  }
  return best;
}

PortAnswer NatPmpAsker::Map(std::uint16_t port, std::chrono::seconds lease,
                            const WaitLimit& limit) {
  if (claim_ && claim_->port != port) GiveBack(limit);
  PortAnswer best;
  best.report.state = RouterState::Silent;
  for (const Gateway& gateway : NearGateways()) {
    PortAnswer answer = MapAt(gateway.address, port, lease, limit);
    if (answer.report.state == RouterState::Mapped) return answer;
    best.report = Better(best.report, answer.report);
  }
  return best;
}

PortAnswer NatPmpAsker::MapAt(Ipv4 gateway, std::uint16_t port, std::chrono::seconds lease,
                              const WaitLimit& limit) {
  NatPmpTalk talk(gateway);
  RouterReport report = AddressOf(talk.AskAddress(limit));
  // A router that knows the language and has no address for us may still pass calls on.
  const bool goesOn = report.state == RouterState::NotAsked || report.state == RouterState::Refused;
  if (!goesOn || limit.IsOver()) return {report, {}};
  if (!claim_ || claim_->gateway != gateway) claim_ = {gateway, port, port};
  const NatPmpAnswer answer = talk.AskForPort(port, claim_->outerPort, lease, limit);
  if (answer.outcome != NatPmpOutcome::Done) return {Failure(answer), {}};
  if (answer.port != port || answer.outerPort == 0 || answer.lifetime.count() == 0) {
    return {Failure(answer), {}};
  }
  claim_->outerPort = answer.outerPort;
  report.state = RouterState::Mapped;
  report.outerPort = answer.outerPort;
  report.reason.clear();
  return {report, std::min(answer.lifetime, lease)};
}

void NatPmpAsker::GiveBack(const WaitLimit& limit) {
  const auto claim = std::exchange(claim_, std::nullopt);
  if (!claim) return;
  NatPmpTalk(claim->gateway).AskForPort(claim->port, 0, std::chrono::seconds(0), limit);
}

}  // namespace verlume::qt
