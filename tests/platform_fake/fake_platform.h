// A complete platform in memory.
#pragma once

#include "platform/platform.h"
#include "platform_fake/fake_about_window.h"
#include "platform_fake/fake_attention.h"
#include "platform_fake/fake_dialogs.h"
#include "platform_fake/fake_file_system.h"
#include "platform_fake/fake_macro_window.h"
#include "platform_fake/fake_main_window.h"
#include "platform_fake/fake_people_window.h"
#include "platform_fake/fake_reach_window.h"
#include "platform_fake/fake_router.h"
#include "platform_fake/fake_socket.h"
#include "platform_fake/fake_system.h"
#include "platform_fake/fake_verify_window.h"

namespace verlume::fake {

struct FakePlatform {
  // Platforms that share a network can call each other.
  explicit FakePlatform(FakeNetwork& network);
  ~FakePlatform();

  FakeFileSystem files;
  FakeMainWindow window;
  FakeAboutWindow about;
  FakeMacroWindow macros;
  FakePeopleWindow people;
  FakeVerifyWindow verify;
  FakeReachWindow reach;
  FakeSocket socket;
  FakeRouter router;
  FakeAddresses addresses;
  FakeDialogs dialogs;
  FakeCommonDialog commonDialog;
  FakeClock clock;
  FakeLocale locale;
  FakeApplication application;
  FakeHelpViewer help;
  FakeSystemTools tools;
  FakeClipboard clipboard;
  FakeLinkOpener links;
  FakeAttention attention;

  Platform platform;
};

}  // namespace verlume::fake
