#include "connection/refused_callers.h"

namespace verlume {
namespace {

bool IsLoopback(std::u16string_view address) {
  return address.starts_with(u"127.") || address == u"::1";
}

}  // namespace

void RefusedCallers::Refuse(const std::u16string& address, Seconds now) {
  std::erase_if(refusals_,
                [now](const auto& entry) { return now - entry.second.back() >= kTurnedAwayFor; });
  if (IsLoopback(address)) return;
  std::vector<Seconds>& refusals = refusals_[address];
  if (refusals.size() == kRefusals) refusals.erase(refusals.begin());
  refusals.push_back(now);
}

bool RefusedCallers::IsTurnedAway(const std::u16string& address, Seconds now) const {
  const auto found = refusals_.find(address);
  return found != refusals_.end() && IsTurnedAway(found->second, now);
}

bool RefusedCallers::IsTurnedAway(const std::vector<Seconds>& refusals, Seconds now) {
  return refusals.size() == kRefusals && refusals.back() - refusals.front() <= kWithin &&
         now - refusals.back() < kTurnedAwayFor;
}

std::vector<std::u16string> RefusedCallers::TurnedAway(Seconds now) const {
  std::vector<std::u16string> addresses;
  for (const auto& [address, refusals] : refusals_) {
    if (IsTurnedAway(refusals, now)) addresses.push_back(address);
  }
  return addresses;
}

}  // namespace verlume
