#include "raw_peer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace verlume::e2e {
namespace {

using namespace std::string_view_literals;

constexpr int kPatience = 30;  // seconds

constexpr std::string_view kMarker =
    "\0maet emulreV eht yb edaMemulreV "
    "\xf2\xe1\xe4\xdc\xec\xef \xf2\xe7\xf4 \xe1\xdf\xe3\xf1\xf5\xef\xe9\xec\xe7\xc4"
    "emulreVemulreV\0"sv;
static_assert(kMarker.size() == 69);

void SetPatience(int socket) {
  const timeval limit{kPatience, 0};
  ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
}

}  // namespace

RawPeer::RawPeer() : listener_(::socket(AF_INET, SOCK_STREAM, 0)) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  SetPatience(listener_);
  // A port that a user can type.
  for (int port = 20'000; port < 30'000; ++port) {
    address.sin_port = htons(static_cast<in_port_t>(port));
    if (::bind(listener_, reinterpret_cast<const sockaddr*>(&address), size) != 0) continue;
    if (::listen(listener_, 1) != 0) continue;
    port_ = QString::number(port);
    return;
  }
}

RawPeer::~RawPeer() {
  Close();
  ::close(listener_);
}

bool RawPeer::TakeCall(std::string_view nickname) {
  connection_ = ::accept(listener_, nullptr, nullptr);
  if (connection_ < 0) return false;
  SetPatience(connection_);
  const std::string start = std::string(kMarker) + "S" + std::string(nickname) + '\0';
  std::array<char, 256> answer;
  return Send(start) && ::recv(connection_, answer.data(), answer.size(), 0) > 0;
}

bool RawPeer::Send(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t sent = ::send(connection_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

void RawPeer::Close() {
  const int connection = std::exchange(connection_, -1);
  if (connection >= 0) ::close(connection);
}

}  // namespace verlume::e2e
