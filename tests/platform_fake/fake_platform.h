// A complete platform in memory.
#pragma once

#include "platform/platform.h"
#include "platform_fake/fake_about_window.h"
#include "platform_fake/fake_dialogs.h"
#include "platform_fake/fake_file_system.h"
#include "platform_fake/fake_macro_window.h"
#include "platform_fake/fake_main_window.h"
#include "platform_fake/fake_socket.h"
#include "platform_fake/fake_system.h"

namespace verlume::fake {

struct FakePlatform {
  // Platforms that share a network can call each other.
  explicit FakePlatform(FakeNetwork& network) : window(files), socket(network) {
    files.MakeFolder(u"/verlume");
  }

  FakeFileSystem files;
  FakeMainWindow window;
  FakeAboutWindow about;
  FakeMacroWindow macros{files};
  FakeSocket socket;
  FakeDialogs dialogs;
  FakeCommonDialog commonDialog;
  FakeClock clock;
  FakeLocale locale;
  FakeApplication application;
  FakeHelpViewer help;
  FakeSystemTools tools;

  Platform platform = {
      window.frmMain, about.frmAbout, macros.frmMacros, socket,      dialogs, commonDialog,
      files,          clock,          locale,           application, help,    tools};
};

}  // namespace verlume::fake
