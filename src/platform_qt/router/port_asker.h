// One language in which routers are asked. For a thread of its own: every operation waits for the
// network, as long as its limit lets it.
#pragma once

#include <chrono>
#include <cstdint>

#include "platform/router.h"
#include "platform_qt/router/wait_limit.h"

namespace verlume::qt {

struct PortAnswer {
  RouterReport report;
  std::chrono::seconds validFor{0};  // how long it is promised; only when Mapped
};

class PortAsker {
 public:
  virtual ~PortAsker() = default;

  // Asks for the port, for `lease` at most; a router that knows no limit may be asked for no limit.
  // A port that another machine or program has is never taken over. A port that was asked for
  // before is given back first.
  virtual PortAnswer Map(std::uint16_t port, std::chrono::seconds lease,
                         const WaitLimit& limit) = 0;
  // NotAsked with the outer address when the router has told it.
  virtual RouterReport AskAddress(const WaitLimit& limit) = 0;
  // Gives back what Map has got or may have got, and forgets it even if that fails.
  virtual void GiveBack(const WaitLimit& limit) = 0;
};

}  // namespace verlume::qt
