#include "platform/router_contract.h"

#include <sched.h>

#include "platform_qt/router/router.h"
#include "router/home.h"

namespace verlume {
namespace {

// In a network without any router: the answer is that there is none.
class LonelyWorld {
  struct InANetworkOfItsOwn {
    InANetworkOfItsOwn() { network::Checked(::unshare(CLONE_NEWNET), "unshare"); }
  };
  const InANetworkOfItsOwn network_;
  qt::QtRouter router_;

 public:
  bool LetRouterAnswer() {
    return router::WaitFor([this] {
      return router_.Report(RouterLanguage::Upnp).state != RouterState::Asking &&
             router_.Report(RouterLanguage::NatPmp).state != RouterState::Asking;
    });
  }

  Router& router = router_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(QtRouter, RouterContract, LonelyWorld);

}  // namespace
}  // namespace verlume
