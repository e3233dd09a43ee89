// Questions to one gateway by NAT-PMP, and its answers.
#pragma once

#include <natpmp.h>

#include <chrono>
#include <cstdint>

#include "platform_qt/router/wait_limit.h"

namespace verlume::qt {

enum class NatPmpOutcome { Done, Refused, Silent, Nonsense };

struct NatPmpAnswer {
  NatPmpOutcome outcome = NatPmpOutcome::Silent;
  natpmpresp_t response{};  // Done: all of it; Refused: its result code
};

class NatPmpTalk {
 public:
  explicit NatPmpTalk(in_addr_t gateway);
  ~NatPmpTalk();
  NatPmpTalk(const NatPmpTalk&) = delete;
  NatPmpTalk& operator=(const NatPmpTalk&) = delete;

  NatPmpAnswer AskAddress(const WaitLimit& limit);
  // A lifetime of 0 gives the port back; then `outerPort` is 0, too.
  NatPmpAnswer AskForPort(std::uint16_t port, std::uint16_t outerPort,
                          std::chrono::seconds lifetime, const WaitLimit& limit);

 private:
  NatPmpAnswer ReadAnswer(std::uint16_t type, std::size_t size, const WaitLimit& limit);
  bool HasWantedAnswer(std::uint16_t type, std::size_t size, bool& isNonsense) const;

  natpmp_t state_{};
  bool isOpen_;
};

}  // namespace verlume::qt
