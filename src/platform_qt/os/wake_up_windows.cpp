#include <array>

#include "platform_qt/os/wake_up.h"

namespace verlume::qt {
namespace {

bool Join(const OpenSocket& one, const OpenSocket& other) {
  const auto place = other.LocalPlace();
  return place && one.Connect(*place) == SocketStep::Done;
}

}  // namespace

// Windows waits together for nothing but sockets: two on this machine, which hear only each other.
WakeUp::WakeUp() : waits_(OpenSocket::Datagrams()), rings_(OpenSocket::Datagrams()) {
  const Ipv4Place thisMachine = {*ParseIpv4("127.0.0.1"), 0};
  const bool isJoined = waits_.IsOpen() && rings_.IsOpen() && waits_.Bind(thisMachine) &&
                        rings_.Bind(thisMachine) && Join(waits_, rings_) && Join(rings_, waits_);
  if (!isJoined) {
    waits_ = OpenSocket();
    return;
  }
  Clear();  // until they were joined anybody here could send to them
}

// When there is no more room, it has been rung often enough.
void WakeUp::Ring() const {
  rings_.Send("!");
}

void WakeUp::Clear() const {
  std::array<char, 1> byte{};
  while (waits_.Receive(byte).step == SocketStep::Done) {
  }
}

}  // namespace verlume::qt
