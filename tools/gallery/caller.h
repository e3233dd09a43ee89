// A peer that calls the program and sends lines, but reads nothing: what the program sends stays
// unacknowledged.
#pragma once

#include <QTcpSocket>

namespace verlume::gallery {

class Caller {
 public:
  Caller();

  // Calls this machine.
  void Call(quint16 port);
  // Breaks the connection without an orderly end.
  void Leave() { socket_.abort(); }

 private:
  QTcpSocket socket_;
};

}  // namespace verlume::gallery
