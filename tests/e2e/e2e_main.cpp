#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char* argv[]) {
  // Without this locale xdotool can type and find ASCII only.
  qputenv("LC_ALL", "C.UTF-8");
  QCoreApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
