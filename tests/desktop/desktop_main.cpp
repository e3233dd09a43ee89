// Runs the tests in a Qt application, with its accessibility switched on.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>

#include "platform_qt/platform.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // As if the user had a screen reader.
  qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
  verlume::qt::PrepareApplication();
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
