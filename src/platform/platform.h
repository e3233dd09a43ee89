// Everything the program is built on. It outlives the program.
#pragma once

#include "platform/about_window.h"
#include "platform/attention.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/links.h"
#include "platform/macro_window.h"
#include "platform/main_window.h"
#include "platform/network.h"
#include "platform/people_window.h"
#include "platform/privacy.h"
#include "platform/reach_window.h"
#include "platform/router.h"
#include "platform/socket.h"
#include "platform/system.h"
#include "platform/verify_window.h"

namespace verlume {

struct Platform {
  MainWindow& frmMain;
  AboutWindow& frmAbout;
  MacroWindow& frmMacros;
  PeopleWindow& frmPeople;
  VerifyWindow& frmVerify;
  ReachWindow& frmReach;
  Socket& sckControl;
  PeerPrivacy& privacy;
  Router& router;
  Network& network;
  Dialogs& dialogs;
  CommonDialog& dlgControl;
  FileSystem& files;
  Clock& clock;
  Locale& locale;
  Application& application;
  HelpViewer& help;
  SystemTools& tools;
  Clipboard& clipboard;
  LinkOpener& links;
  Attention& attention;
};

}  // namespace verlume
