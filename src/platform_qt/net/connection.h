// An established TCP connection. It lives on the network thread: however busy the windows are, what
// the peer sends is read at once, so that two texts do not become one, and what is queued is sent
// as soon as it may be.
#pragma once

#include <QTcpSocket>
#include <QThread>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

#include "platform_qt/net/privacy_terms.h"
#include "platform_qt/net/read_size.h"
#include "platform_qt/net/road.h"
#include "platform_qt/net/sender.h"
#include "platform_qt/net/settling_road.h"
#include "stream/arrival_assembler.h"
#include "stream/arrival_queue.h"

namespace verlume::qt {

// The public operations are for the thread that created it. They return at once, except for
// FinishSending.
class Connection : public QObject {
 public:
  // Raised on the network thread.
  struct Events {
    std::function<void()> onArrival;       // NextArrival has one where it had none, or IsOver
    std::function<void()> onAcknowledged;  // LinesWaiting is less than it was
    std::function<void()> onClosed;        // after Close: nothing more will happen
    std::function<void(Privacy)> onPrivacy = {};  // it is another
    std::function<void()> onPeerKnown = {};       // WhoIsThere tells
  };
  struct KnownPeer {
    Peer peer;
    PublicKey key;  // "" in clear
  };

  // How long a closing connection goes on sending.
  static constexpr std::chrono::seconds kSendingLimit{2};
  // How many bytes one read returns at most.
  static constexpr qint64 kReadSize = qt::kReadSize;

  // Moves the socket, which has no parent, to the network thread. `timeout` is how long an
  // incomplete text waits for its next byte.
  Connection(QTcpSocket* socket, QThread& network, std::chrono::milliseconds timeout, Events events,
             PrivacyTerms terms = {}, ConnectionNumber number = 0);
  ~Connection() override;

  ConnectionNumber Number() const { return number_; }

  // Whether texts can be sent: the connection has not ended, as far as the system knows.
  bool IsOpen() const { return isOpen_; }

  void Send(std::u16string_view text, TextKind kind);
  // How many lines are not acknowledged; the last number once it has ended.
  std::size_t LinesWaiting() const { return linesWaiting_; }

  // The oldest arrival, if there is one. While several mebibytes of them wait no more is read, and
  // TCP's flow control slows the peer down.
  std::optional<std::u16string> NextArrival();
  bool HasArrival() const { return !arrivals_.IsEmpty(); }
  // The connection has ended, and every arrival has been taken.
  bool IsOver() const { return arrivals_.IsOver(); }

  // Nothing before onPeerKnown.
  std::optional<KnownPeer> WhoIsThere() const;
  // Lets the peer in: sends what waits.
  void Admit();
  // What comes may be raised: the peer is let in, or nobody asks who it is.
  bool IsAdmitted() const { return isAdmitted_; }
  // Why the connection ended before its peer was known.
  PrivacyFailure Failure() const { return failure_; }
  // The peer has said, in private, that it ends the conversation.
  bool HasPeerSaidGoodbye() const { return hasPeerSaidGoodbye_; }

  // Sends what is queued, for kSendingLimit at most; then the peer gets another second to close.
  void Close();
  bool IsClosed() const { return isClosed_; }
  // After Close: blocks until everything is sent, and aborts the connection at the deadline.
  void FinishSending(stream::TimePoint deadline);

 private:
  // All of these run on the network thread.
  void CheckThread() const { Q_ASSERT(QThread::currentThread() == thread()); }
  void Start();
  Road::Events RoadEvents();
  void TakeRoad(std::unique_ptr<Road> road);
  void GoClear(std::string heard, std::string_view nickname);
  void GoPrivate(Greetings greetings);
  void Enter(Privacy privacy);
  void Know(KnownPeer peer);
  void Fail(PrivacyFailure failure);
  void SendOrWait(Said said);
  void TellTakenIn();
  void Enqueue(std::u16string arrival);
  void OnEnded();
  void OnAcknowledged(std::size_t lines);
  void StartClosing();
  void WakeFinishSending();
  void Abort();

  const std::chrono::milliseconds timeout_;
  const Events events_;
  const PrivacyTerms terms_;
  const ConnectionNumber number_;
  std::atomic<bool> isOpen_;
  std::atomic<std::size_t> linesWaiting_ = 0;
  stream::ArrivalQueue arrivals_;
  std::atomic<bool> isClosed_ = false;
  std::mutex sendingMutex_;
  std::condition_variable sendingEnded_;
  bool hasSendingEnded_ = false;

  std::atomic<bool> isPrivate_ = false;
  std::atomic<PrivacyFailure> failure_ = PrivacyFailure::None;
  std::atomic<bool> hasPeerSaidGoodbye_ = false;
  std::atomic<bool> isAdmitted_;
  mutable std::mutex peerMutex_;
  std::optional<KnownPeer> peer_;
  std::atomic<std::uint64_t> takenIn_ = 0;  // arrivals
  std::atomic<bool> isTakenInTold_ = false;

  // For the network thread only.
  QTcpSocket* socket_;  // nothing once the conversation is private
  Sender* sender_ = nullptr;
  std::unique_ptr<Road> road_;
  bool letsIn_;
  bool hasStarted_ = false;
  std::deque<Said> waiting_;  // until the peer is let in
  bool isClosing_ = false;
};

// A connection is destroyed on its own thread.
struct DeleteOnItsThread {
  void operator()(Connection* connection) const { connection->deleteLater(); }
};
using ConnectionOwner = std::unique_ptr<Connection, DeleteOnItsThread>;

}  // namespace verlume::qt
