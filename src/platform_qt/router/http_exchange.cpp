#include "platform_qt/router/http_exchange.h"

#include <array>
#include <string_view>
#include <utility>

#include "platform_qt/os/open_socket.h"

namespace verlume::qt {
namespace {

OpenSocket Connect(const HttpUrl& url, const WaitLimit& limit) {
  OpenSocket socket = OpenSocket::Stream();
  if (!socket.IsOpen()) return socket;
  const SocketStep step = socket.Connect({url.host, url.port});
  if (step == SocketStep::Done) return socket;
  const bool hasCome = step == SocketStep::Later &&
                       limit.Await(socket.Number(), Readiness::Write) && socket.HasConnected();
  return hasCome ? std::move(socket) : OpenSocket();
}

bool SendAll(const OpenSocket& socket, std::string_view bytes, const WaitLimit& limit) {
  while (!bytes.empty()) {
    const SocketBytes sent = socket.Send(bytes);
    if (sent.size > 0) {
      bytes.remove_prefix(sent.size);
    } else if (sent.step != SocketStep::Later || !limit.Await(socket.Number(), Readiness::Write)) {
      return false;
    }
  }
  return true;
}

HttpExchange ReadAnswer(const OpenSocket& socket, const WaitLimit& limit) {
  HttpExchange exchange;
  HttpReader reader;
  std::array<char, 4096> bytes{};
  while (limit.Await(socket.Number(), Readiness::Read)) {
    const SocketBytes came = socket.Receive(bytes);
    if (came.step == SocketStep::Later) continue;
    if (came.size == 0) {
      reader.End();
      break;
    }
    exchange.hasAnswered = true;
    if (!reader.Add({bytes.data(), came.size})) break;
  }
  exchange.answer = reader.Answer();
  return exchange;
}

}  // namespace

HttpExchange AskHttp(const HttpQuestion& question, const WaitLimit& limit) {
  const OpenSocket socket = Connect(question.url, limit);
  if (!socket.IsOpen()) return {};
  std::string text = question.method + " " + question.url.path + " HTTP/1.1\r\n";
  text += "Host: " + Ipv4Text(question.url.host) + ":" + std::to_string(question.url.port) + "\r\n";
  text += "Connection: close\r\nUser-Agent: Verlume UPnP/1.1\r\n" + question.fields;
  if (!question.body.empty()) {
    text += "Content-Length: " + std::to_string(question.body.size()) + "\r\n";
  }
  text += "\r\n" + question.body;
  if (!SendAll(socket, text, limit)) return {};
  return ReadAnswer(socket, limit);
}

}  // namespace verlume::qt
