// What a system can do with a TCP connection and Qt does not ask of it; each system in a file of
// its own.
#pragma once

#include <chrono>
#include <cstdint>

namespace verlume::qt {

// As Qt names a socket: a descriptor, or a handle.
using SocketNumber = std::intptr_t;
inline constexpr SocketNumber kNoSocket = -1;

// When a connection ends because the peer's machine is silent. Without effect on a system that
// cannot do it.
struct SilenceLimits {
  std::chrono::seconds idle;      // before the first probe
  std::chrono::seconds interval;  // between probes
  int probes;
  std::chrono::milliseconds unacknowledged;  // how long what was sent may wait
};
void SetSilenceLimits(SocketNumber socket, const SilenceLimits& limits);

// Makes this machine acknowledge at once what has arrived. Some systems reset the option, so it is
// set after every read.
void AcknowledgeAtOnce(SocketNumber socket);

// How many bytes that the system has taken the peer's machine has not acknowledged; at least 1 once
// the connection has ended, because the system no longer knows.
std::int64_t BytesUnacknowledged(SocketNumber socket);

// Whether something of the peer's waits to be read, be it the end of the connection. The socket
// does not block.
bool CanRead(SocketNumber socket);

// Tells the peer that nothing more comes; what it sends still arrives.
void EndSending(SocketNumber socket);

// Another number for the same connection, which outlives the first; kNoSocket if there is none to
// be had.
SocketNumber DuplicateSocket(SocketNumber socket);
void CloseSocket(SocketNumber socket);

}  // namespace verlume::qt
