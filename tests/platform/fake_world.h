// The in-memory World of the socket contracts.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform_fake/fake_socket.h"

namespace verlume::fake {

class FakeWorld {
 public:
  Socket& New() {
    sockets_.push_back(std::make_unique<FakeSocket>(network_));
    return *sockets_.back();
  }
  std::u16string Host() const { return u"anywhere"; }
  template <class Condition>
  bool Wait(Condition condition) {
    network_.RunUntilIdle();
    return condition();
  }

 private:
  FakeNetwork network_;
  std::vector<std::unique_ptr<FakeSocket>> sockets_;
};

}  // namespace verlume::fake
