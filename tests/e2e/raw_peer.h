// A peer that is not a copy of the program: it does the handshake and then sends arbitrary bytes as
// fast as the connection accepts them.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace verlume::e2e {

class RawPeer {
 public:
  // Listens on the loopback.
  RawPeer();
  ~RawPeer();
  RawPeer(const RawPeer&) = delete;
  RawPeer& operator=(const RawPeer&) = delete;

  const QString& Port() const { return port_; }
  // Accepts a call and does the handshake under that nickname; false when none comes in time.
  bool TakeCall(std::string_view nickname);
  // Sends all bytes, however long that takes; false when the connection breaks or accepts nothing
  // for half a minute.
  bool Send(std::string_view bytes);
  void Close();

 private:
  int listener_ = -1;
  int connection_ = -1;
  QString port_;
};

}  // namespace verlume::e2e
