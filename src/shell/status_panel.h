// The status panel: clock, duration, counters and lamp. Counts are kept as decimal text in the tags
// of their labels.
#pragma once

#include <cstdint>
#include <string>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/text_pair.h"

namespace verlume {

// The connection state in words.
const TextPair& ConnectionStateWords(const AppState& state);

// Shows the connection state: by the lamp's colour, and in words that assistive tools read for
// picShape.
void ShowLamp(const AppState& state, const MainWindow& frmMain);

// "#,###,###,##0" with the system's group separator.
std::u16string GroupedNumberText(std::int32_t number, const Locale& locale);

// Adds to the count in the label's tag (empty counts as 0) and shows it. Throws RunTimeFailure 6
// when the count does not fit into 32 bits.
void AddToCounter(Label& counter, std::size_t characters, const Locale& locale);

class StatusPanel {
 public:
  StatusPanel(Platform& platform, ErrorReport& errors) : platform_(platform), errors_(errors) {}

  // Once a second: shows the time, and counts the duration while connected.
  void tmrTimer_Timer();

  // Starts a chat: shows the current time as its start, and sets its counts to 0.
  void StartChat();

  // Empties the labels about the connection, except the local address and nickname.
  void ClearValues();

 private:
  Platform& platform_;
  ErrorReport& errors_;
};

}  // namespace verlume
