#include "platform_qt/router/http_exchange.h"

#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <string_view>

#include "platform_qt/network/descriptor.h"
#include "platform_qt/network/ipv4.h"

namespace verlume::qt {
namespace {

Descriptor Connect(const HttpUrl& url, const WaitLimit& limit) {
  Descriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
  const sockaddr_in to = SocketAddress(url.host, url.port);
  const int number = socket.Number();
  if (::connect(number, reinterpret_cast<const sockaddr*>(&to), sizeof to) == 0) return socket;
  if (errno != EINPROGRESS || !limit.Await(number, POLLOUT)) return {};
  int error = 0;
  socklen_t length = sizeof error;
  ::getsockopt(number, SOL_SOCKET, SO_ERROR, &error, &length);
  return error == 0 ? std::move(socket) : Descriptor();
}

bool SendAll(int socket, std::string_view bytes, const WaitLimit& limit) {
  while (!bytes.empty()) {
    const ssize_t sent = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(sent));
    } else if (errno != EAGAIN || !limit.Await(socket, POLLOUT)) {
      return false;
    }
  }
  return true;
}

HttpExchange ReadAnswer(int socket, const WaitLimit& limit) {
  HttpExchange exchange;
  HttpReader reader;
  std::array<char, 4096> bytes{};
  while (limit.Await(socket, POLLIN)) {
    const ssize_t size = ::recv(socket, bytes.data(), bytes.size(), 0);
    if (size < 0 && errno == EAGAIN) continue;
    if (size <= 0) {
      reader.End();
      break;
    }
    exchange.hasAnswered = true;
    if (!reader.Add({bytes.data(), static_cast<std::size_t>(size)})) break;
  }
  exchange.answer = reader.Answer();
  return exchange;
}

}  // namespace

HttpExchange AskHttp(const HttpQuestion& question, const WaitLimit& limit) {
  const Descriptor socket = Connect(question.url, limit);
  if (!socket.IsOpen()) return {};
  std::string text = question.method + " " + question.url.path + " HTTP/1.1\r\n";
  text += "Host: " + Ipv4Text(question.url.host) + ":" + std::to_string(question.url.port) + "\r\n";
  text += "Connection: close\r\nUser-Agent: Verlume UPnP/1.1\r\n" + question.fields;
  if (!question.body.empty()) {
    text += "Content-Length: " + std::to_string(question.body.size()) + "\r\n";
  }
  text += "\r\n" + question.body;
  if (!SendAll(socket.Number(), text, limit)) return {};
  return ReadAnswer(socket.Number(), limit);
}

}  // namespace verlume::qt
