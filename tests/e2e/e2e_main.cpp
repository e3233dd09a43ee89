#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char* argv[]) {
  // Without it xdotool types and finds nothing but ASCII.
  qputenv("LC_ALL", "C.UTF-8");
  QCoreApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
