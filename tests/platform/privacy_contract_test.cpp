#include "platform/privacy_contract.h"

#include <memory>
#include <vector>

#include "platform_fake/fake_socket.h"

namespace verlume {
namespace {

class FakePrivacyWorld {
 public:
  struct Side {
    Socket& socket;
    PeerPrivacy& privacy;
  };
  Side New() {
    sides_.push_back(std::make_unique<fake::FakeSocket>(network_));
    return {*sides_.back(), sides_.back()->privacy};
  }
  std::u16string Host() const { return u"bob"; }
  template <class Condition>
  bool Wait(Condition condition) {
    network_.RunUntilIdle();
    return condition();
  }

 private:
  fake::FakeNetwork network_;
  std::vector<std::unique_ptr<fake::FakeSocket>> sides_;
};

}  // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(FakeSocket, PrivacyContract, FakePrivacyWorld);

}  // namespace verlume
