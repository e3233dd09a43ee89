// Sends texts over a connection so that each arrives by itself.
#pragma once

#include <QTcpSocket>
#include <QThread>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>

#include "stream/send_queue.h"

namespace verlume::qt {

// A child of its socket, and used on the socket's thread only.
class Sender : public QObject {
 public:
  explicit Sender(QTcpSocket* connection);

  // Returns at once; the text is sent when the peer's machine has those before it.
  void Send(stream::OutgoingText text);
  // The peer's machine has acknowledged everything.
  bool IsDone() const { return queue_.IsDone(); }
  // How many lines it has not acknowledged.
  std::size_t LinesWaiting() const { return queue_.LinesWaiting(); }
  // Checks what has been acknowledged, and sends what may be sent. While texts are queued a timer
  // calls it.
  void Flush();

  // The peer's machine has acknowledged this many more lines, or everything. May be raised from
  // inside Flush and Send.
  std::function<void(std::size_t lines)> onAcknowledged;

 private:
  void CheckThread() const { Q_ASSERT(QThread::currentThread() == thread()); }
  void CheckAcknowledgement();
  std::optional<std::string> TextToSend();

  QTcpSocket* connection_;
  stream::SendQueue queue_;
  QTimer poll_;
};

}  // namespace verlume::qt
