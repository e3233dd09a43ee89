// The messages between two copies of the program: what is sent, and what an arrival does.
#pragma once

#include <string>
#include <string_view>

#include "commands/dialogue.h"
#include "platform/platform.h"
#include "records/dialogue_log.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/status_panel.h"

namespace verlume {

// The fixed text that opens every protocol message: NUL, 67 characters, NUL.
std::u16string BuildProtocolMarker();

class WireProtocol {
 public:
  struct Collaborators {
    Dialogue& dialogue;
    DialogueLog& log;
    StatusPanel& statusPanel;
  };

  WireProtocol(AppState& state, Platform& platform, ErrorReport& errors,
               Collaborators collaborators)
      : state_(state), platform_(platform), errors_(errors), with_(collaborators) {}

  // The only way anything is sent: one send, counted in lblBytesSent. Does nothing unless the
  // socket is connected. A failure is reported (227), not thrown.
  void SendToPeer(std::u16string_view text);

  void SendStart();                              // "S", right after accepting a call
  void SendNickname();                           // "N"
  void SendActionLine(std::u16string_view rtf);  // "M"
  void SendChatLine(std::u16string_view rtf) { SendToPeer(rtf); }

  // One arrival of data is one message.
  void OnDataArrival();

 private:
  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Collaborators with_;
};

}  // namespace verlume
