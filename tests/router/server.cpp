#include "router/server.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <utility>

namespace verlume::router {

using network::Checked;

Server::Server(const Home& home, int type, const std::string& address, std::uint16_t port,
               std::function<void(int)> serve)
    : serve_(std::move(serve)) {
  // A socket stays in the network that it was made in, whoever uses it.
  home.RouterSide().Run([&] {
    socket_ = network::Descriptor(Checked(::socket(AF_INET, type | SOCK_CLOEXEC, 0), "socket"));
    const int yes = 1;
    ::setsockopt(socket_.Number(), SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_port = htons(port);
    ::inet_pton(AF_INET, address.c_str(), &place.sin_addr);
    Checked(::bind(socket_.Number(), reinterpret_cast<sockaddr*>(&place), sizeof place), "bind");
    if (type == SOCK_STREAM) Checked(::listen(socket_.Number(), 16), "listen");
  });
  thread_ = std::thread([this] { Run(); });
}

Server::~Server() {
  isEnding_ = true;
  ::eventfd_write(wake_.Number(), 1);
  thread_.join();
}

void Server::Run() {
  while (!isEnding_) {
    std::array<pollfd, 2> waiting = {{{socket_.Number(), POLLIN, 0}, {wake_.Number(), POLLIN, 0}}};
    ::poll(waiting.data(), waiting.size(), -1);
    if (!isEnding_ && waiting[0].revents != 0) serve_(socket_.Number());
  }
}

}  // namespace verlume::router
