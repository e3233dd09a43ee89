// The menu Tools > Attention: how the user is told of what happens meanwhile.
#pragma once

#include <string_view>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

class AttentionSwitches {
 public:
  AttentionSwitches(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // Greys the entries that can do nothing: here, or as the others are set.
  void ShowState();

  // Each switches one of them, and saves the choice.
  void mnuAttentionLines_Click();
  void mnuAttentionText_Click();
  void mnuAttentionSound_Click();
  void mnuAttentionCount_Click();

 private:
  void Switch(MenuEntry& entry, bool& field, std::u16string_view key);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
};

}  // namespace verlume
