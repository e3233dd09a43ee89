// Runs the tests that make networks of their own.
#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char* argv[]) {
  QCoreApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
