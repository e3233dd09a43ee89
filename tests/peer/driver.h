// The program's network layer, driven by commands and telling what happens, a line each.
#pragma once

#include <QString>
#include <functional>
#include <map>

#include "platform_qt/net/socket.h"

namespace verlume::peer {

class Driver {
 public:
  // The own key lies in `keyFile`.
  explicit Driver(const QString& keyFile);

  // Does what the line says; see the table in driver.cpp. Unknown commands are told.
  void Do(const QString& line);

 private:
  using Command = std::function<void(const QString& words)>;

  void TellEvents();
  void TellArrival();
  void TellPeer();
  void Listen(const QString& port);
  void Call(const QString& address);
  void Accept(const QString& id);

  qt::QtSocket socket_;
  PeerPrivacy& privacy_;
  std::map<QString, Command> commands_;
};

}  // namespace verlume::peer
