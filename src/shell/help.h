// The detailed help.
#pragma once

#include "platform/platform.h"
#include "shell/error_report.h"

namespace verlume {

class Help {
 public:
  Help(Platform& platform, ErrorReport& errors) : platform_(platform), errors_(errors) {}

  // Opens the help file in force.
  void mnuHelpDetailed_Click();

 private:
  Platform& platform_;
  ErrorReport& errors_;
};

}  // namespace verlume
