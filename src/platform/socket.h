// The TCP socket sckControl: it listens for one call or makes one, and holds one connection.
//
// Text is Windows-1253 on the wire; a character outside it is sent as '?'. Events are raised on the
// user-interface thread, never from inside an operation of the socket.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace verlume {

// The classic numbers; text is sent only in Connected.
enum class SocketState { Closed = 0, Listening = 2, Connecting = 6, Connected = 7 };

// What a text is for: a line is shown to people, a signal is read by the peer's program.
enum class TextKind { Line, Signal };

// Why a call could not be made: nobody listens on the port, the other machine does not answer in
// time, no way leads to it.
enum class CallFailure { None, UnknownHost, Refused, Silent, Unreachable, Other };

// Tells one connection from another.
using ConnectionNumber = std::uint64_t;

// The greatest port that callers can name: they keep it in 16 bits with a sign.
inline constexpr std::int32_t kGreatestNameablePort = 32767;

class Socket {
 public:
  virtual ~Socket() = default;

  virtual SocketState State() const = 0;

  // The port to listen on, 0 for a free one that every caller can name, up to
  // kGreatestNameablePort; once listening or connected, the port in use.
  virtual void SetLocalPort(std::int32_t port) = 0;
  virtual std::int32_t LocalPort() const = 0;
  // The name or address to call, and its port.
  virtual void SetRemoteHost(std::u16string_view host) = 0;
  virtual void SetRemotePort(std::int32_t port) = 0;
  // The address and port of the peer, or of the caller that is asked about; without one, "" and the
  // last port set. An IPv4 peer is shown as plain IPv4 even if it came over IPv6.
  virtual std::u16string RemoteHostIP() const = 0;
  virtual std::int32_t RemotePort() const = 0;
  // The machine's own address (not a loopback one where there is another) and host name.
  virtual std::u16string LocalIP() const = 0;
  virtual std::u16string LocalHostName() const = 0;

  // Listens on the local port, IPv4 and IPv6. Throws RunTimeFailure 10048 when the port is in use,
  // 70 when it is not allowed. Raises onConnectionRequest for one caller; further callers wait in
  // the backlog until it is rejected, or the socket closed.
  virtual void Listen() = 0;
  // Calls the remote host. Raises onConnect, or onClose within 15 s when no connection can be made.
  virtual void Connect() = 0;
  // Why the last call could not be made; None while it is being made, and when it was.
  virtual CallFailure LastCallFailure() const = 0;
  // Accepts the call `requestId`, right after Close has ended the listening. Raises onClose if the
  // caller has left meanwhile, or the id is unknown.
  virtual void Accept(std::int64_t requestId) = 0;
  // Sends the caller `requestId` away and goes on listening. Nothing happens if it is not the one
  // that is asked about.
  virtual void Reject(std::int64_t requestId) = 0;
  // Ends the connection, the call or the listening; of its events only onUndelivered can follow.
  // Queued texts are still sent, for 2 s at most.
  virtual void Close() = 0;

  // Queues a text and returns at once. Texts are sent in the order of the calls, each when the
  // peer's machine has acknowledged those before it, so that none arrives joined with another.
  // False, and ignored, unless Connected.
  virtual bool SendData(std::u16string_view text, TextKind kind) = 0;
  // How many lines of this connection the peer's machine has not acknowledged; 0 unless Connected.
  virtual std::size_t LinesWaiting() const = 0;
  // Of the current connection, or else of the last one; 0 before the first.
  virtual ConnectionNumber CurrentConnection() const = 0;
  // Waits until connections that were closed have sent what is queued: until it is acknowledged, or
  // for 2 s. Raises onUndelivered itself.
  virtual void FinishSending() = 0;
  // The text of the arrival that onDataArrival has told of; "" once it has been read.
  virtual std::u16string GetData() = 0;

  // Back-pressure, for a program that is busy with earlier arrivals. While paused neither
  // onDataArrival is raised nor the onClose that comes after the arrivals: they wait in order, and
  // when several mebibytes wait, TCP's flow control slows the peer down. It holds for every
  // connection until ResumeArrivals. Pausing or resuming twice does no harm.
  virtual void PauseArrivals() = 0;
  virtual void ResumeArrivals() = 0;
  virtual bool ArrivalsPaused() const = 0;

  std::function<void(std::int64_t requestId)> onConnectionRequest;
  std::function<void()> onConnect;
  // One arrival. A rich text that is still incomplete is held back until it is complete, but at
  // most 20 s after its last byte, or 4 MiB of it; everything else is raised at once.
  std::function<void(std::int32_t bytesTotal)> onDataArrival;
  // The peer's machine has acknowledged lines: LinesWaiting is less than it was.
  std::function<void()> onAcknowledged;
  // This connection has ended, and the peer's machine has not acknowledged the last `lines` lines
  // sent over it. Raised right before onClose, or up to 3 s after Close.
  std::function<void(std::size_t lines, ConnectionNumber connection)> onUndelivered;
  // The peer closed the connection, it broke, or the call could not be made. Everything that had
  // arrived has been raised before.
  std::function<void()> onClose;
};

}  // namespace verlume
