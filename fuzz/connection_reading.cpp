// The reading of a connection, over a socket of this machine. The first byte says how long an
// incomplete document waits and how the connection ends. The rest is what the peer sends, in
// pieces with a byte 0x1E between them. Before each piece the program takes what has arrived, if
// the piece's first byte is even; the next piece is sent when the one before has been read.
#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTcpSocket>
#include <QThread>
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

#include "fuzz/check.h"
#include "fuzz/costs.h"
#include "fuzz/stream_checks.h"
#include "platform_qt/net/connection.h"
#include "richtext/code_pages.h"

namespace verlume::fuzz {
namespace {

using namespace std::chrono_literals;
using qt::Connection;
using stream::ArrivalAssembler;
using stream::ArrivalQueue;

constexpr CostLimits kLimits = {.nanoseconds = 5'000, .heapBytes = 16};

// Behind so many pieces the rest is one piece: each waits for the one before to be read.
constexpr int kMostPieces = 500;

// A connection that hangs must end the run and not the patience of who started it. By the clock:
// long enough for a machine that does much else.
constexpr auto kLongestWait = 60s;

// The application, the thread on which connections live, and the port that the peer calls.
class Machine {
 public:
  Machine() {
    static int count = 1;
    static char name[] = "connection_reading";
    static char* arguments[] = {name, nullptr};
    static QCoreApplication application(count, arguments);
    network_.start();
    listener_ = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* const any = reinterpret_cast<sockaddr*>(&address);
    Check(::bind(listener_, any, length) == 0 && ::listen(listener_, 1) == 0, "a port is free");
    ::getsockname(listener_, any, &length);
    address_ = address;
  }
  ~Machine() {
    network_.quit();
    network_.wait();
  }

  QThread& Network() { return network_; }
  // The two ends of a new connection.
  std::pair<int, int> Connect() const {
    const int peer = ::socket(AF_INET, SOCK_STREAM, 0);
    const auto* const any = reinterpret_cast<const sockaddr*>(&address_);
    Check(::connect(peer, any, sizeof address_) == 0, "the peer connects");
    const int on = 1;
    ::setsockopt(peer, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    return {peer, ::accept(listener_, nullptr, nullptr)};
  }

 private:
  QThread network_;
  int listener_ = -1;
  sockaddr_in address_{};
};

class Conversation {
 public:
  Conversation(Machine& machine, std::chrono::milliseconds timeout) {
    const auto [peer, own] = machine.Connect();
    peer_ = peer;
    own_ = own;
    auto* const socket = new QTcpSocket;
    Check(socket->setSocketDescriptor(own), "a socket is a socket");
    connection_ = new Connection(socket, machine.Network(), timeout,
                                 {.onArrival = [] {}, .onAcknowledged = [] {}, .onClosed = [] {}});
  }
  ~Conversation() {
    // Closed like this neither end keeps its port for a minute.
    const linger atOnce = {.l_onoff = 1, .l_linger = 0};
    ::setsockopt(peer_, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    ::close(peer_);
    connection_->Close();
    WaitFor([this] { return connection_->IsClosed(); });
    connection_->deleteLater();
  }
  Conversation(const Conversation&) = delete;
  Conversation& operator=(const Conversation&) = delete;

  void Send(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t sent = ::send(peer_, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
      if (sent > 0) {
        sent_ += static_cast<std::size_t>(sent);
        bytes.remove_prefix(static_cast<std::size_t>(sent));
      }
      // The program reads no more before it has shown something.
      if (sent <= 0 && !WaitUntilSent(1ms)) Take();
    }
    WaitFor([this] { return MayBeFull() || IsRead(); });
  }

  // Takes one arrival.
  bool Take() {
    const auto arrival = connection_->NextArrival();
    if (!arrival) return false;
    CheckArrival(*arrival);
    delivered_ += richtext::EncodeGreek(*arrival);
    return true;
  }

  // The peer has said everything: the rest arrives, and the connection is over.
  const std::string& End() {
    ::shutdown(peer_, SHUT_WR);
    WaitFor([this] {
      while (Take()) {
      }
      return connection_->IsOver();
    });
    return delivered_;
  }

 private:
  template <class Condition>
  static void WaitFor(Condition condition) {
    const auto limit = std::chrono::steady_clock::now() + kLongestWait;
    while (!condition()) {
      Check(std::chrono::steady_clock::now() < limit, "a connection goes on");
      std::this_thread::sleep_for(20us);
    }
  }

  bool WaitUntilSent(std::chrono::milliseconds limit) const {
    pollfd writable = {.fd = peer_, .events = POLLOUT, .revents = 0};
    return ::poll(&writable, 1, static_cast<int>(limit.count())) > 0;
  }

  bool IsRead() const {
    int unread = 1;
    int underWay = 1;
    ::ioctl(own_, FIONREAD, &unread);
    ::ioctl(peer_, SIOCOUTQ, &underWay);
    return unread == 0 && underWay == 0;
  }
  // A full queue: nothing more is read before something is taken.
  bool MayBeFull() const { return sent_ - delivered_.size() >= ArrivalQueue::kLimit; }

  // What is held back, and one read more; and what opens the second document of a cut.
  static void CheckArrival(std::u16string_view arrival) {
    constexpr std::size_t kLongestOpening = 512 << 10;
    constexpr std::size_t kLongest =
        ArrivalAssembler::kLongestHeldBack + std::size_t{Connection::kReadSize} + kLongestOpening;
    Check(!arrival.empty(), "no arrival is empty");
    Check(arrival.size() <= kLongest, "no arrival is longer than what is held back");
  }

  int peer_ = -1;
  int own_ = -1;
  Connection* connection_ = nullptr;
  std::size_t sent_ = 0;
  std::string delivered_;
};

}  // namespace
}  // namespace verlume::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace verlume::fuzz;
  if (size == 0) return 0;
  static Machine machine;
  const bool waits = data[0] & 1;
  std::string_view rest(reinterpret_cast<const char*>(data + 1), size - 1);
  const Costs costs(size, kLimits);
  Conversation conversation(machine, waits ? 20s : 0s);
  std::string stream;
  for (int pieces = 0; !rest.empty(); ++pieces) {
    const std::size_t end = pieces < kMostPieces ? rest.find('\x1E') : rest.npos;
    const std::string_view piece = rest.substr(0, end);
    if (!piece.empty() && piece[0] % 2 == 0) conversation.Take();
    conversation.Send(piece);
    stream += piece;
    rest.remove_prefix(std::min(piece.size() + 1, rest.size()));
  }
  const std::string& delivered = conversation.End();
  if (stream.size() <= ArrivalAssembler::kLongestHeldBack) CheckNothingLost(stream, delivered);
  costs.CheckHeap();
  return 0;
}
