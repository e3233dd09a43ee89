// Reads what came, or ended the connection, before its socket was in these hands: some systems tell
// that only once, and only to whom the socket belonged then.
#pragma once

#include <QTcpSocket>
#include <QTimer>

namespace verlume::qt {

class EndWatch : public QObject {
 public:
  // On the thread of the connected socket, which owns the watch. Looks until there is nothing that
  // Qt has not read; what it finds makes the socket raise its signals, as it would have.
  explicit EndWatch(QTcpSocket* socket);

 private:
  void Look();

  QTcpSocket* const socket_;
  QTimer timer_{this};
};

}  // namespace verlume::qt
