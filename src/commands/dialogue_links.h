// Opens an address that stands in the dialogue, after a question. A peer wrote it: nothing is
// opened, and nothing fetched, unless the user has seen where it leads.
#pragma once

#include <string_view>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class DialogueLinks {
 public:
  DialogueLinks(AppState& state, Platform& platform, ErrorReport& errors)
      : state_(state), platform_(platform), errors_(errors) {}

  // Asks, and says so if the address cannot be opened.
  void rtbData_Link(std::u16string_view address);

 private:
  bool UserAgrees(std::u16string_view address);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
};

}  // namespace verlume
