// The other side of a conversation that is no copy of the program: it shakes hands and then sends
// whatever bytes it likes, as fast as the connection takes them.
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
  // Takes the call that comes, within some seconds, and names itself; false when none came.
  bool TakeCall(std::string_view nickname);
  // Sends all of it, however long that takes; false when the connection broke, or stood still for
  // half a minute.
  bool Send(std::string_view bytes);
  void Close();

 private:
  int listener_ = -1;
  int connection_ = -1;
  QString port_;
};

}  // namespace verlume::e2e
