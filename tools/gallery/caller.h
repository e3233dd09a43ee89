// Somebody who calls the program, talks to it, and takes nothing in that it says: what it sends
// stays on its way.
#pragma once

#include <QTcpSocket>

namespace verlume::gallery {

class Caller {
 public:
  Caller();

  // Calls this machine.
  void Call(quint16 port);
  // Vanishes without a word.
  void Leave() { socket_.abort(); }

 private:
  QTcpSocket socket_;
};

}  // namespace verlume::gallery
