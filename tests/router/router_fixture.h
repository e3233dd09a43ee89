// A home with a default route, and what its router is asked and says.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include "platform_qt/router/router.h"
#include "router/home.h"

namespace verlume::router {

class RouterFixture : public testing::Test {
 protected:
  static constexpr std::int32_t kPort = 4000;

  void SetUp() override { home_.AddDefaultRoute(Home::kRouter); }

  static bool HasAnswered(const qt::QtRouter& router, RouterLanguage language) {
    return router.Report(language).state != RouterState::Asking;
  }
  static bool WaitForReports(const qt::QtRouter& router) {
    return WaitFor([&router] {
      return HasAnswered(router, RouterLanguage::Upnp) &&
             HasAnswered(router, RouterLanguage::NatPmp);
    });
  }
  // The router is asked for the port, and both languages have been answered.
  static bool MapAndWait(qt::QtRouter& router) {
    router.MapPort(kPort);
    return WaitForReports(router);
  }
  // Asks for the port, waits for both answers, and goes on with the router at hand.
  void AfterMapping(const std::function<void(qt::QtRouter& router)>& then,
                    const qt::RouterTimes& times = {}) {
    home_.OnMachine([&] {
      qt::QtRouter router(times);
      ASSERT_TRUE(MapAndWait(router));
      then(router);
    });
  }
  // What is reported in that language once the port has been asked for.
  RouterReport ReportOf(RouterLanguage language) {
    RouterReport report;
    home_.OnMachine([&] {
      qt::QtRouter router;
      router.MapPort(kPort);
      ASSERT_TRUE(WaitFor([&] { return HasAnswered(router, language); }));
      report = router.Report(language);
    });
    return report;
  }

  Home home_;
};

}  // namespace verlume::router
