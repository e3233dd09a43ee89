// Sends texts over a connection so that each arrives by itself.
#pragma once

#include <QElapsedTimer>
#include <QTcpSocket>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>

#include "stream/send_queue.h"

namespace verlume::qt {

// It belongs to the connection that it sends over, and dies with it.
class Sender : public QObject {
 public:
  explicit Sender(QTcpSocket* connection);

  // Returns at once; the text leaves when those before it have arrived.
  void Send(stream::OutgoingText text);
  // The peer's machine has acknowledged everything.
  bool IsDone() const { return queue_.IsDone(); }
  // How many lines it has not.
  std::size_t LinesWaiting() const { return queue_.LinesWaiting(); }
  // Looks at what has been acknowledged, and sends what may leave. Happens by itself while texts
  // wait and events are handled.
  void GoOn();

  // The peer's machine has acknowledged so many more lines, or all there is. May come from within
  // GoOn and Send.
  std::function<void(std::size_t lines)> onAcknowledged;

 private:
  void LookForAcknowledgement();
  std::optional<std::string> TextToSend();

  QTcpSocket* connection_;
  stream::SendQueue queue_;
  QElapsedTimer clock_;
  QTimer poll_;
};

}  // namespace verlume::qt
