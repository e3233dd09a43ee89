// Remembers which callers the user refused. Who keeps calling is turned away without a question.
#pragma once

#include <chrono>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace verlume {

class RefusedCallers {
 public:
  // Since any fixed moment; never runs backwards.
  using Seconds = std::chrono::seconds;

  // An address refused so often within that time is turned away for so long.
  static constexpr std::size_t kRefusals = 3;
  static constexpr Seconds kWithin{60};
  static constexpr Seconds kTurnedAwayFor{600};

  // The user refused a call from this address. Calls from this computer itself never count.
  void Refuse(const std::u16string& address, Seconds now);
  bool IsTurnedAway(const std::u16string& address, Seconds now) const;
  // The addresses that are turned away, in no order of meaning.
  std::vector<std::u16string> TurnedAway(Seconds now) const;
  void Clear() { refusals_.clear(); }

 private:
  static bool IsTurnedAway(const std::vector<Seconds>& refusals, Seconds now);

  // When each address was refused, newest last, at most kRefusals of them. Each costs the user an
  // answer, so there are few; those that no longer matter are dropped.
  std::map<std::u16string, std::vector<Seconds>, std::less<>> refusals_;
};

}  // namespace verlume
