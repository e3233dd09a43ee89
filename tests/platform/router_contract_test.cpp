#include "platform/router_contract.h"

#include "platform_fake/fake_router.h"

namespace verlume {
namespace {

// A network without any router.
class FakeRouterWorld {
  fake::FakeRouter router_;

 public:
  bool LetRouterAnswer() {
    const RouterState state = router_.Port() != 0 ? RouterState::Silent : RouterState::NotAsked;
    for (const RouterLanguage language : {RouterLanguage::Upnp, RouterLanguage::NatPmp}) {
      if (router_.Report(language).state != RouterState::Asking) return false;
      router_.Say(language, {state, u"", 0, u""});
    }
    return true;
  }

  Router& router = router_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(FakeRouter, RouterContract, FakeRouterWorld);

}  // namespace
}  // namespace verlume
