// A thread that serves a socket on the router's side until its owner's end.
#pragma once

#include <sys/eventfd.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>
#include <thread>

#include "router/home.h"

namespace verlume::router {

class Server {
 public:
  // `serve` gets the socket whenever it is readable. It ends soon once IsEnding.
  Server(const Home& home, int type, const std::string& address, std::uint16_t port,
         std::function<void(int socket)> serve);
  ~Server();

  bool IsEnding() const { return isEnding_; }
  int Number() const { return socket_.Number(); }

 private:
  void Run();

  network::Descriptor socket_;
  network::Descriptor wake_{::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
  std::function<void(int)> serve_;
  std::atomic<bool> isEnding_ = false;
  std::thread thread_;
};

}  // namespace verlume::router
