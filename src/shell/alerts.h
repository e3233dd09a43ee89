// Tells the user what happens: by announcements of assistive tools, and, while the user is in
// another program, by notifications, a sound and the number of unread lines.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/line_burst.h"
#include "shell/status_panel.h"

namespace verlume {

class Alerts {
 public:
  Alerts(const AppState& state, Platform& platform, ErrorReport& errors)
      : state_(state), platform_(platform), errors_(errors) {}

  // The peer says a line. An action line names its sender itself. A line is announced or notified,
  // not both. If more than one comes within a second, the user is told of the first one, and then
  // of their number.
  void OnRemoteLine(std::u16string_view text, bool isAction);
  void OnIncomingCall(std::u16string_view address);
  // The user has come back: nothing is unread any more.
  void attention_UserBack();
  // Once a second: tells of the lines that have come meanwhile, and announces the state of the
  // connection if it has changed.
  void tmrTimer_Timer();

 private:
  struct Line {
    std::u16string sender;
    std::u16string text;
    bool isAction = false;
  };

  bool NotifiesNow() const;
  void Tell(const Line& line);
  void TellNumber(std::size_t lines);
  void Notify(std::u16string_view title, std::u16string_view text);
  void ShowCount();
  void AnnounceConnectionState();

  const AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  LineBurst burst_;
  Line last_;  // that arrived
  int unread_ = 0;
  std::u16string_view announcedState_ = ConnectionStateWords({}).english;
};

}  // namespace verlume
