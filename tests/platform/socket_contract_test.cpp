#include "platform/socket_contract.h"

#include "platform_fake/fake_socket.h"

namespace verlume {
namespace {

class FakeWorld {
 public:
  Socket& New() {
    sockets_.push_back(std::make_unique<fake::FakeSocket>(network_));
    return *sockets_.back();
  }
  std::u16string Host() const { return u"anywhere"; }
  template <class Condition>
  bool Wait(Condition condition) {
    network_.RunUntilIdle();
    return condition();
  }

 private:
  fake::FakeNetwork network_;
  std::vector<std::unique_ptr<fake::FakeSocket>> sockets_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(FakeSocket, SocketContract, FakeWorld);

}  // namespace
}  // namespace verlume
