// Sides of conversations on this machine's own network, each with a folder for its key.
#pragma once

#include <QTemporaryDir>
#include <memory>
#include <string>
#include <vector>

#include "platform_qt/world.h"

namespace verlume::qt {

struct PrivateSide {
  PrivateSide() : qtSocket(stream::ArrivalAssembler::kTimeout, KeyFile()) {}
  std::string KeyFile() const { return folder.filePath("Verlume.key").toStdString(); }

  QTemporaryDir folder;
  QtSocket qtSocket;
};

class QtPrivacyWorld {
 public:
  struct Side {
    Socket& socket;
    PeerPrivacy& privacy;
  };
  Side New() {
    sides_.push_back(std::make_unique<PrivateSide>());
    QtSocket& socket = sides_.back()->qtSocket;
    return {socket, socket.ConnectionPrivacy()};
  }
  std::u16string Host() const { return u"127.0.0.1"; }
  template <class Condition>
  bool Wait(Condition condition) {
    return WaitFor(condition);
  }

 private:
  std::vector<std::unique_ptr<PrivateSide>> sides_;
};

}  // namespace verlume::qt
