// Questions to one gateway by NAT-PMP, and its answers.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "platform_qt/os/open_socket.h"
#include "platform_qt/router/nat_pmp_message.h"
#include "platform_qt/router/wait_limit.h"

namespace verlume::qt {

class NatPmpTalk {
 public:
  explicit NatPmpTalk(Ipv4 gateway);

  NatPmpAnswer AskAddress(const WaitLimit& limit) const;
  // A lifetime of 0 gives the port back; then `outerPort` is 0, too.
  NatPmpAnswer AskForPort(std::uint16_t port, std::uint16_t outerPort,
                          std::chrono::seconds lifetime, const WaitLimit& limit) const;

 private:
  NatPmpAnswer Ask(const std::string& question, NatPmpOperation operation,
                   const WaitLimit& limit) const;

  OpenSocket socket_;  // hears the gateway alone
};

}  // namespace verlume::qt
