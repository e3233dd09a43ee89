// A TCP connection that was made. It lives on a thread of its own: however busy the windows are,
// what comes is read at once, so that two texts of the peer's do not become one, and what waits is
// sent as soon as it may be.
#pragma once

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

#include "platform_qt/net/sender.h"
#include "stream/arrival_assembler.h"
#include "stream/arrival_queue.h"

namespace verlume::qt {

// How long what waits is sent after the end of a connection.
inline constexpr int kSendingLimit = 2000;  // ms

// All that is public may be called from the thread that made it.
class Connection : public QObject {
 public:
  // Raised on the connection's own thread.
  struct Events {
    std::function<void()> onArrival;       // NextArrival has one where it had none, or IsOver
    std::function<void()> onAcknowledged;  // LinesWaiting is less than it was
    std::function<void()> onGone;          // after Leave: nothing more will happen
  };

  // Takes the socket, which has no parent, to `thread`. A text waits `patienceForTheRest`
  // milliseconds for its next byte.
  Connection(QTcpSocket* socket, QThread& thread, std::int64_t patienceForTheRest, Events events);
  ~Connection() override;

  // Whether texts can be sent: the connection has not ended, as far as the system knows.
  bool IsOpen() const { return isOpen_; }

  void Send(stream::OutgoingText text);
  // How many lines the peer's machine has not acknowledged; the last number when it has ended.
  std::size_t LinesWaiting() const { return linesWaiting_; }

  // What has come, in its order. Who takes nothing slows the peer down after some mebibytes.
  std::optional<std::u16string> NextArrival();
  bool HasArrival() const { return !arrivals_.IsEmpty(); }
  // The connection has ended, and all that had come before has been taken.
  bool IsOver() const { return arrivals_.IsOver(); }

  // Ends it: what waits is sent, for kSendingLimit at most; then the peer has another second to end
  // it too.
  void Leave();
  bool IsGone() const { return isGone_; }
  // After Leave: waits until all is sent, and cuts the connection when the limit has passed.
  void FinishSending(const QDeadlineTimer& limit);

 private:
  void Begin();
  void Read();
  void ReadOn();
  void LosePatience();
  void HandOn();
  void Add(std::string_view arrival);
  void End();
  void NoteAcknowledged(std::size_t lines);
  void BeginLeaving();
  void EndSending();
  void NoteSent();
  void Cut();

  QTcpSocket* const socket_;
  const Events events_;
  std::atomic<bool> isOpen_;
  std::atomic<std::size_t> linesWaiting_ = 0;
  stream::ArrivalQueue arrivals_;
  std::atomic<bool> isGone_ = false;
  std::mutex sentMutex_;
  std::condition_variable sent_;
  bool isSent_ = false;

  // These belong to the connection's own thread.
  Sender* sender_ = nullptr;
  stream::ArrivalAssembler assembler_;
  QElapsedTimer clock_;
  QTimer patience_{this};  // for the rest of a document
};

// A connection dies on its own thread.
struct DeleteOnItsThread {
  void operator()(Connection* connection) const { connection->deleteLater(); }
};
using ConnectionOwner = std::unique_ptr<Connection, DeleteOnItsThread>;

}  // namespace verlume::qt
