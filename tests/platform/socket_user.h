// Who uses a socket in a test.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/socket.h"

namespace verlume {

// A socket and the events that it has raised.
struct SocketUser {
  explicit SocketUser(Socket& itsSocket) : socket(itsSocket) {
    socket.onConnectionRequest = [this](std::int64_t id) {
      requests.push_back(id);
      if (answer) answer(id);
    };
    socket.onConnect = [this] { ++connects; };
    socket.onDataArrival = [this](std::int32_t total) {
      texts.push_back(socket.GetData());
      totals.push_back(total);
    };
    socket.onClose = [this] {
      ++closes;
      textsBeforeClose = texts.size();
    };
  }
  SocketUser(const SocketUser&) = delete;
  SocketUser& operator=(const SocketUser&) = delete;

  std::size_t Events() const { return requests.size() + connects + texts.size() + closes; }
  std::u16string Received() const {
    std::u16string all;
    for (const std::u16string& text : texts) all += text;
    return all;
  }

  Socket& socket;
  std::function<void(std::int64_t)> answer;
  std::vector<std::int64_t> requests;
  std::size_t connects = 0;
  std::vector<std::u16string> texts;
  std::vector<std::int32_t> totals;
  std::size_t closes = 0;
  std::size_t textsBeforeClose = 0;
};

}  // namespace verlume
