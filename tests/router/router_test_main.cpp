// Runs the tests that ask routers in networks of their own.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <cstdio>
#include <system_error>

#include "router/home.h"

int main(int argc, char* argv[]) {
  try {
    const verlume::router::Home home;
  } catch (const std::system_error& failure) {
    std::fprintf(stderr, "The router tests need root and /dev/net/tun: %s\n", failure.what());
    return 1;
  }
  QCoreApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
