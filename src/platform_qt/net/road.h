// How what is said travels over a connection: in clear, in private, or not at all as long as that
// is not settled. A road lives on the network thread, and all of it happens there.
#pragma once

#include <QObject>
#include <QThread>
#include <cstdint>
#include <functional>
#include <string>

#include "platform/socket.h"

namespace verlume::qt {

// A text on its way to the peer.
struct Said {
  std::u16string text;
  TextKind kind;
};

class Road : public QObject {
 public:
  struct Events {
    // One arrival; not empty.
    std::function<void(std::u16string)> onArrival;
    // Whether so many arrivals wait that no more is to be read.
    std::function<bool()> isFull;
    // So many more lines are acknowledged.
    std::function<void(std::size_t lines)> onAcknowledged;
    // After Close: everything is sent, and the own half of the connection is shut.
    std::function<void()> onSendingEnded;
    // The connection has ended. Everything that had come has been raised.
    std::function<void()> onEnded;
  };

  explicit Road(Events events) : events_(std::move(events)) {}

  // Begins to read. What is there already is read at once.
  virtual void Start() = 0;
  virtual void Send(Said said) = 0;
  // Arrivals were full, and no longer are.
  virtual void ResumeReading() = 0;
  // The program has taken in so many arrivals, of all.
  virtual void TakenIn(std::uint64_t /*arrivals*/) {}
  // The peer is let in.
  virtual void Admit() {}
  // Sends what is queued, then shuts the own half. Raises nothing more but onAcknowledged,
  // onSendingEnded and onEnded.
  virtual void Close() = 0;
  // Ends the connection at once. Raises nothing more.
  virtual void Abort() = 0;

 protected:
  void CheckThread() const { Q_ASSERT(QThread::currentThread() == thread()); }
  const Events& Tell() const { return events_; }

 private:
  const Events events_;
};

}  // namespace verlume::qt
