// Runs the tests in a Qt application. Without a display they run on Qt's offscreen platform.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
#ifdef Q_OS_LINUX
  const bool hasDisplay =
      qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
  if (!hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
#endif
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
