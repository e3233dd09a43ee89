#include <winsock2.h>
#include <ws2tcpip.h>
// Behind those, which it builds on.
#include <mstcpip.h>

#include "platform_qt/os/tcp.h"

namespace verlume::qt {
namespace {

// The numbers of options that older headers do not name.
constexpr int kKeepIdle = 3;
constexpr int kMaximumRetransmission = 5;
constexpr int kKeepCount = 16;
constexpr int kKeepInterval = 17;

SOCKET SocketOf(SocketNumber socket) {
  return static_cast<SOCKET>(socket);
}

bool SetOption(SocketNumber socket, int level, int option, std::int64_t number) {
  const auto value = static_cast<DWORD>(number);
  return ::setsockopt(SocketOf(socket), level, option, reinterpret_cast<const char*>(&value),
                      sizeof value) == 0;
}

template <class Question, class Answer>
bool Control(SocketNumber socket, DWORD code, Question question, Answer& answer) {
  DWORD size = 0;
  return ::WSAIoctl(SocketOf(socket), code, &question, sizeof question, &answer, sizeof answer,
                    &size, nullptr, nullptr) == 0;
}

// Whether the system would take more. With the send buffer of nothing that SetSilenceLimits asks
// for, it would not while anything is on its way.
bool TakesMore(SocketNumber socket) {
  WSAPOLLFD waiting{SocketOf(socket), POLLWRNORM, 0};
  return ::WSAPoll(&waiting, 1, 0) == 1 && (waiting.revents & POLLWRNORM) != 0 &&
         (waiting.revents & (POLLHUP | POLLERR)) == 0;
}

}  // namespace

// Systems before 2017 do not know three of the options; they count ten probes.
void SetSilenceLimits(SocketNumber socket, const SilenceLimits& limits) {
  using std::chrono::ceil;
  using std::chrono::milliseconds;
  using std::chrono::seconds;
  const bool isNew = SetOption(socket, IPPROTO_TCP, kKeepIdle, limits.idle.count()) &&
                     SetOption(socket, IPPROTO_TCP, kKeepInterval, limits.interval.count()) &&
                     SetOption(socket, IPPROTO_TCP, kKeepCount, limits.probes);
  if (!isNew) {
    const tcp_keepalive alive{1, static_cast<ULONG>(milliseconds(limits.idle).count()),
                              static_cast<ULONG>(milliseconds(limits.interval).count())};
    DWORD nothing = 0;
    Control(socket, SIO_KEEPALIVE_VALS, alive, nothing);
  }
  SetOption(socket, IPPROTO_TCP, kMaximumRetransmission,
            ceil<seconds>(limits.unacknowledged).count());
  SetOption(socket, SOL_SOCKET, SO_SNDBUF, 0);
}

void AcknowledgeAtOnce(SocketNumber socket) {
  const TCP_ACK_FREQUENCY_PARAMETERS each{1};
  DWORD nothing = 0;
  Control(socket, SIO_TCP_SET_ACK_FREQUENCY, each, nothing);
}

std::int64_t BytesUnacknowledged(SocketNumber socket) {
  TCP_INFO_v0 info{};
  if (Control(socket, SIO_TCP_INFO, DWORD{0}, info)) {
    if (info.State != TCPSTATE_ESTABLISHED && info.State != TCPSTATE_CLOSE_WAIT) return 1;
    if (info.BytesInFlight > 0) return info.BytesInFlight;
  }
  return TakesMore(socket) ? 0 : 1;
}

bool CanRead(SocketNumber socket) {
  char next = 0;
  return ::recv(SocketOf(socket), &next, 1, MSG_PEEK) >= 0 || ::WSAGetLastError() != WSAEWOULDBLOCK;
}

void EndSending(SocketNumber socket) {
  ::shutdown(SocketOf(socket), SD_SEND);
}

SocketNumber DuplicateSocket(SocketNumber socket) {
  WSAPROTOCOL_INFOW description{};
  if (::WSADuplicateSocketW(SocketOf(socket), ::GetCurrentProcessId(), &description) != 0) {
    return kNoSocket;
  }
  const SOCKET other =
      ::WSASocketW(FROM_PROTOCOL_INFO, FROM_PROTOCOL_INFO, FROM_PROTOCOL_INFO, &description, 0,
                   WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT);
  return other == INVALID_SOCKET ? kNoSocket : static_cast<SocketNumber>(other);
}

void CloseSocket(SocketNumber socket) {
  ::closesocket(SocketOf(socket));
}

}  // namespace verlume::qt
